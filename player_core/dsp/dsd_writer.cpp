#include "player_core/dsp/wire_writer.h"

#include <array>

namespace kelp_core {

namespace {

constexpr std::array<uint8_t, 2> dopMarkers{0x05, 0xFA};

} // namespace

DsdWriter::DsdWriter(const WireFormat &wire)
    : wire_(wire)
{
}

size_t DsdWriter::dsdFramesPerWireFrame() const
{
    return wire_.carrier == Carrier::dop ? 2 : static_cast<size_t>(bytesPerSample(wire_.encoding));
}

size_t DsdWriter::write(const uint8_t *dsd, size_t dsdFrames, uint8_t *out)
{
    const auto channels = static_cast<size_t>(wire_.channels);
    const size_t unit = dsdFramesPerWireFrame();
    const size_t wireFrames = dsdFrames / unit;
    for (size_t frame = 0; frame < wireFrames; ++frame) {
        packFrame(dsd, channels, 1, out);
        dsd += unit * channels;
        out += wire_.bytesPerFrame();
    }
    return wireFrames;
}

void DsdWriter::silence(size_t wireFrames, uint8_t *out)
{
    for (size_t frame = 0; frame < wireFrames; ++frame) {
        packFrame(&dsdSilence, 0, 0, out);
        out += wire_.bytesPerFrame();
    }
}

void DsdWriter::packFrame(const uint8_t *dsd, size_t timeStride, size_t channelStride, uint8_t *out)
{
    const int channels = wire_.channels;
    if (wire_.carrier != Carrier::dop) {
        const auto size = static_cast<size_t>(bytesPerSample(wire_.encoding));
        // ALSA: the oldest bit is the top bit of the sample, so a little-endian sample has the youngest byte
        // first.
        const bool youngestFirst =
            wire_.encoding == SampleEncoding::dsdU16le || wire_.encoding == SampleEncoding::dsdU32le;
        for (int channel = 0; channel < channels; ++channel, dsd += channelStride, out += size) {
            for (size_t i = 0; i < size; ++i)
                out[youngestFirst ? size - 1 - i : i] = dsd[i * timeStride];
        }
        return;
    }
    const uint8_t marker = dopMarkers[marker_ ? 1 : 0];
    marker_ = !marker_;
    for (int channel = 0; channel < channels; ++channel, dsd += channelStride) {
        if (wire_.encoding == SampleEncoding::s32)
            *out++ = 0;
        *out++ = dsd[timeStride];
        *out++ = dsd[0];
        *out++ = marker;
        if (wire_.encoding == SampleEncoding::s24in4)
            *out++ = marker & 0x80 ? 0xFF : 0x00;
    }
}

} // namespace kelp_core
