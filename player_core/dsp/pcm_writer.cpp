#include "player_core/dsp/wire_writer.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace kelp_core {

namespace {

constexpr int containerBits(SampleEncoding encoding)
{
    switch (encoding) {
    case SampleEncoding::s16:
        return 16;
    case SampleEncoding::s24in3:
    case SampleEncoding::s24in4:
        return 24;
    default:
        return 32;
    }
}

/// The lowest `bytes` bytes of a sample, least significant first, whatever the machine's own order is.
template<int bytes>
void put(uint32_t value, uint8_t *out)
{
    for (int i = 0; i < bytes; ++i)
        out[i] = static_cast<uint8_t>(value >> (8 * i));
}

/// xorshift64*: one draw gives the two uniform numbers whose sum is triangular, within ±1 step.
double triangularNoise(uint64_t &state)
{
    state ^= state >> 12;
    state ^= state << 25;
    state ^= state >> 27;
    const uint64_t draw = state * 0x2545F4914F6CDD1Dull;
    const double sum = static_cast<double>(draw >> 32) + static_cast<double>(draw & 0xFFFFFFFFu);
    return sum * 0x1p-32 - 1.0 + 0x1p-32;
}

/// −1 … +1; a value beyond counts as clipped, and what is not a number becomes silence.
double limited(double value, uint64_t &clipped)
{
    if (value >= -1.0 && value <= 1.0)
        return value;
    if (std::isnan(value))
        return 0.0;
    ++clipped;
    return value > 0.0 ? 1.0 : -1.0;
}

template<int bytes, bool withDither>
void writeIntegers(const double *in, size_t samples, uint8_t *out, int validBits, int shift,
                   uint64_t &clipped, uint64_t &noise)
{
    const double scale = std::ldexp(1.0, validBits - 1);
    const double highest = scale - 1.0;
    for (size_t i = 0; i < samples; ++i, out += bytes) {
        double value = limited(in[i], clipped) * scale;
        if constexpr (withDither)
            value += triangularNoise(noise);
        // +1.0 itself has no integer; it takes the highest one.
        const auto step = std::llrint(std::clamp(value, -scale, highest));
        put<bytes>(static_cast<uint32_t>(static_cast<int32_t>(step)) << shift, out);
    }
}

} // namespace

PcmWriter::PcmWriter(const WireFormat &wire)
    : wire_(wire)
{
    const int room = containerBits(wire.encoding);
    if (wire_.validBits < 1 || wire_.validBits > room)
        wire_.validBits = room;
}

void PcmWriter::write(const double *in, size_t frames, uint8_t *out, bool dither)
{
    const size_t samples = frames * static_cast<size_t>(wire_.channels);
    const int bits = wire_.validBits;
    const int shift = containerBits(wire_.encoding) - bits;
    switch (wire_.encoding) {
    case SampleEncoding::s16:
        dither ? writeIntegers<2, true>(in, samples, out, bits, shift, clipped_, noise_)
               : writeIntegers<2, false>(in, samples, out, bits, shift, clipped_, noise_);
        return;
    case SampleEncoding::s24in3:
        dither ? writeIntegers<3, true>(in, samples, out, bits, shift, clipped_, noise_)
               : writeIntegers<3, false>(in, samples, out, bits, shift, clipped_, noise_);
        return;
    case SampleEncoding::s24in4:
    case SampleEncoding::s32:
        dither ? writeIntegers<4, true>(in, samples, out, bits, shift, clipped_, noise_)
               : writeIntegers<4, false>(in, samples, out, bits, shift, clipped_, noise_);
        return;
    case SampleEncoding::f32:
        for (size_t i = 0; i < samples; ++i) {
            const auto value = static_cast<float>(limited(in[i], clipped_));
            put<4>(std::bit_cast<uint32_t>(value), out + 4 * i);
        }
        return;
    case SampleEncoding::dsdU8:
    case SampleEncoding::dsdU16le:
    case SampleEncoding::dsdU16be:
    case SampleEncoding::dsdU32le:
    case SampleEncoding::dsdU32be:
        // PCM in a DSD frame would be noise at full level: such a device gets the DSD silence pattern.
        std::fill_n(out, samples * static_cast<size_t>(bytesPerSample(wire_.encoding)), dsdSilence);
        return;
    }
}

} // namespace kelp_core
