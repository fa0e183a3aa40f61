#include "tests/support/dsd_file_maker.h"

#include "tests/support/byte_writer.h"
#include "tests/support/dst_encoder.h"

#include <array>

namespace kelp_test {
namespace {

uint8_t reversed(uint8_t byte)
{
    unsigned turned = 0;
    for (int bit = 0; bit < 8; ++bit)
        turned |= (byte >> bit & 1U) << (7 - bit);
    return static_cast<uint8_t>(turned);
}

void chunk(ByteWriter &out, const char *id, const std::vector<uint8_t> &body)
{
    out.text(id).big(body.size(), 8).append(body).zeros(body.size() & 1);
}

std::vector<uint8_t> dffProperties(const DsdSignal &signal, bool dst)
{
    static constexpr std::array stereo{"SLFT", "SRGT"};
    static constexpr std::array many{"MLFT", "MRGT", "C   ", "LFE ", "LS  ", "RS  "};
    ByteWriter rate, channels, coding, out;
    rate.big(static_cast<uint64_t>(signal.rateHz), 4);
    channels.big(static_cast<uint64_t>(signal.channels), 2);
    for (size_t i = 0; i < static_cast<size_t>(signal.channels); ++i)
        channels.text(signal.channels <= 2 ? stereo[i] : many[i % many.size()]);
    const char *name = dst ? "DST Encoded" : "not compressed";
    coding.text(dst ? "DST " : "DSD ").big(std::string_view(name).size(), 1).text(name);
    out.text("SND ");
    chunk(out, "FS  ", rate.bytes);
    chunk(out, "CHNL", channels.bytes);
    chunk(out, "CMPR", coding.bytes);
    return out.bytes;
}

std::vector<uint8_t> dstBody(const DsdSignal &signal, DstKind kind)
{
    const size_t frameBytes = static_cast<size_t>(signal.rateHz / 600) * static_cast<size_t>(signal.channels);
    const size_t frames = signal.bytes.size() / frameBytes;
    ByteWriter information, out;
    information.big(frames, 4).big(75, 2);
    chunk(out, "FRTE", information.bytes);
    for (size_t frame = 0; frame < frames; ++frame) {
        const auto begin = signal.bytes.begin() + static_cast<std::ptrdiff_t>(frame * frameBytes);
        const std::vector<uint8_t> bits(begin, begin + static_cast<std::ptrdiff_t>(frameBytes));
        std::vector<uint8_t> packed{0};
        if (kind == DstKind::coded)
            packed = encodeDstFrame(bits, signal.channels);
        else
            packed.insert(packed.end(), bits.begin(), bits.end());
        chunk(out, "DSTF", packed);
    }
    return out.bytes;
}

} // namespace

std::vector<uint8_t> dsfBytes(const DsdSignal &signal, const DsfOptions &options)
{
    constexpr size_t blockBytes = 4096;
    const auto channels = static_cast<size_t>(signal.channels);
    const size_t frames = signal.frames();
    ByteWriter data;
    for (size_t block = 0; block * blockBytes < frames; ++block) {
        for (size_t channel = 0; channel < channels; ++channel) {
            for (size_t i = block * blockBytes; i < (block + 1) * blockBytes; ++i) {
                const uint8_t byte = i < frames ? signal.bytes[i * channels + channel] : 0;
                data.bytes.push_back(options.highestBitFirst ? byte : reversed(byte));
            }
        }
    }
    static constexpr std::array channelTypes{0, 1, 2, 3, 4, 6, 7};
    const size_t total = 28 + 52 + 12 + data.bytes.size();
    ByteWriter out;
    out.text("DSD ").little(28, 8).little(total + options.id3.size(), 8);
    out.little(options.id3.empty() ? 0 : total, 8);
    out.text("fmt ").little(52, 8).little(1, 4).little(0, 4);
    out.little(static_cast<uint64_t>(channelTypes[channels % channelTypes.size()]), 4).little(channels, 4);
    out.little(static_cast<uint64_t>(signal.rateHz), 4).little(options.highestBitFirst ? 8 : 1, 4);
    out.little(frames * 8 - static_cast<size_t>(options.unusedBits), 8).little(blockBytes, 4).little(0, 4);
    out.text("data").little(12 + data.bytes.size(), 8).append(data.bytes).append(options.id3);
    return out.bytes;
}

std::vector<uint8_t> dffBytes(const DsdSignal &signal, DstKind dst, const std::vector<uint8_t> &id3)
{
    ByteWriter version, body, out;
    version.big(0x01050000, 4);
    body.text("DSD ");
    chunk(body, "FVER", version.bytes);
    chunk(body, "PROP", dffProperties(signal, dst != DstKind::none));
    if (dst == DstKind::none)
        chunk(body, "DSD ", signal.bytes);
    else
        chunk(body, "DST ", dstBody(signal, dst));
    if (!id3.empty())
        chunk(body, "ID3 ", id3);
    chunk(out, "FRM8", body.bytes);
    return out.bytes;
}

std::vector<uint8_t> wsdBytes(const DsdSignal &signal)
{
    constexpr size_t dataAt = 0x800;
    ByteWriter out;
    out.text("1bit").zeros(4).big(0x11, 1).zeros(3).zeros(4).big(dataAt + signal.bytes.size(), 4);
    out.big(0x80, 4).big(dataAt, 4).zeros(4);
    out.big(0, 4).big(static_cast<uint64_t>(signal.rateHz), 4).zeros(4);
    out.big(static_cast<uint64_t>(signal.channels), 1).zeros(3);
    out.zeros(dataAt - out.bytes.size()).append(signal.bytes);
    return out.bytes;
}

} // namespace kelp_test
