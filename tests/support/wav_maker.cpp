#include "tests/support/wav_maker.h"

#include "tests/support/byte_writer.h"

namespace kelp_test {
namespace {

constexpr uint8_t guidTail[14] = {0, 0, 0, 0, 0x10, 0, 0x80, 0, 0, 0xAA, 0, 0x38, 0x9B, 0x71};

std::vector<uint8_t> sampleBytes(const PcmSignal &signal, int containerBytes)
{
    if (signal.isFloat || containerBytes == 0)
        return rawBytes(signal);
    ByteWriter out;
    for (const double sample : signal.samples)
        out.little(static_cast<uint64_t>(toInteger(sample, 8 * containerBytes)), containerBytes);
    return out.bytes;
}

ByteWriter formatChunk(const PcmSignal &signal, bool extensible, int bytes)
{
    ByteWriter format;
    const auto channels = static_cast<uint64_t>(signal.channels);
    const auto rate = static_cast<uint64_t>(signal.rateHz);
    const auto width = static_cast<uint64_t>(bytes);
    const uint64_t tag = signal.isFloat ? 3 : 1;
    format.little(extensible ? 0xFFFE : tag, 2).little(channels, 2).little(rate, 4);
    format.little(rate * channels * width, 4).little(channels * width, 2);
    format.little(width * 8, 2);
    if (extensible) {
        const uint64_t mask = signal.channels == 1 ? 4 : (1ULL << signal.channels) - 1;
        format.little(22, 2).little(static_cast<uint64_t>(signal.depthBits), 2).little(mask, 4);
        format.little(tag, 2);
        for (const uint8_t byte : guidTail)
            format.little(byte, 1);
    }
    return format;
}

std::vector<uint8_t> w64Bytes(const ByteWriter &format, const std::vector<uint8_t> &data)
{
    const auto guid = [](ByteWriter &out, const char *word, bool riff) {
        static constexpr uint8_t riffTail[12] = {0x2E, 0x91, 0xCF, 0x11, 0xA5, 0xD6,
                                                 0x28, 0xDB, 0x04, 0xC1, 0x00, 0x00};
        static constexpr uint8_t otherTail[12] = {0xF3, 0xAC, 0xD3, 0x11, 0x8C, 0xD1,
                                                  0x00, 0xC0, 0x4F, 0x8E, 0xDB, 0x8A};
        out.text(word);
        for (const uint8_t byte : riff ? riffTail : otherTail)
            out.little(byte, 1);
    };
    ByteWriter out;
    const auto padded = [](size_t size) { return (size + 7) / 8 * 8; };
    guid(out, "riff", true);
    out.little(40 + 24 + padded(format.bytes.size()) + 24 + padded(data.size()), 8);
    guid(out, "wave", false);
    guid(out, "fmt ", false);
    out.little(24 + format.bytes.size(), 8).append(format.bytes);
    out.zeros(padded(format.bytes.size()) - format.bytes.size());
    guid(out, "data", false);
    out.little(24 + data.size(), 8).append(data).zeros(padded(data.size()) - data.size());
    return out.bytes;
}

/// An AIFF rate: 80-bit extended precision.
void extendedRate(ByteWriter &out, int rateHz)
{
    int exponent = 16383 + 31;
    auto mantissa = static_cast<uint64_t>(rateHz);
    while (!(mantissa & 0x80000000)) {
        mantissa <<= 1;
        --exponent;
    }
    out.big(static_cast<uint64_t>(exponent), 2).big(mantissa << 32, 8);
}

} // namespace

std::vector<uint8_t> wavBytes(const PcmSignal &signal, const WavOptions &options)
{
    const int bytes = options.containerBytes ? options.containerBytes : (signal.depthBits + 7) / 8;
    const ByteWriter format = formatChunk(signal, options.form == WavForm::extensible, bytes);
    const auto data = options.samples.empty() ? sampleBytes(signal, options.containerBytes) : options.samples;
    if (options.form == WavForm::w64)
        return w64Bytes(format, data);
    const bool rf64 = options.form == WavForm::rf64;
    const bool blank = rf64 || options.unknownLength;
    ByteWriter body;
    body.text("WAVE");
    if (rf64)
        body.text("ds64")
            .little(28, 4)
            .little(4 + 36 + 8 + format.bytes.size() + 8 + data.size(), 8)
            .little(data.size(), 8)
            .little(signal.frames(), 8)
            .little(0, 4);
    body.text("fmt ").little(format.bytes.size(), 4).append(format.bytes);
    body.text("data").little(blank ? 0xFFFFFFFF : data.size(), 4).append(data).zeros(data.size() & 1);
    if (!options.id3.empty())
        body.text("id3 ").little(options.id3.size(), 4).append(options.id3).zeros(options.id3.size() & 1);
    ByteWriter out;
    out.text(rf64 ? "RF64" : "RIFF").little(blank ? 0xFFFFFFFF : body.bytes.size(), 4).append(body.bytes);
    return out.bytes;
}

std::vector<uint8_t> aiffBytes(const PcmSignal &signal, bool littleEndian, const std::vector<uint8_t> &id3)
{
    const bool compressed = littleEndian || signal.isFloat;
    const int bytes = (signal.depthBits + 7) / 8;
    const std::vector<uint8_t> little = rawBytes(signal);
    ByteWriter data;
    for (size_t at = 0; at < little.size(); at += static_cast<size_t>(bytes)) {
        uint64_t value = 0;
        for (int i = 0; i < bytes; ++i)
            value |= static_cast<uint64_t>(little[at + static_cast<size_t>(i)]) << (8 * i);
        if (bytes == 1)
            value ^= 0x80; // AIFF's eight bits are signed
        littleEndian ? data.little(value, bytes) : data.big(value, bytes);
    }
    ByteWriter common;
    common.big(static_cast<uint64_t>(signal.channels), 2).big(signal.frames(), 4);
    common.big(static_cast<uint64_t>(signal.depthBits), 2);
    extendedRate(common, signal.rateHz);
    if (compressed)
        common.text(littleEndian ? "sowt" : signal.depthBits == 64 ? "fl64" : "fl32").zeros(2);
    ByteWriter body;
    body.text(compressed ? "AIFC" : "AIFF");
    if (compressed)
        body.text("FVER").big(4, 4).big(0xA2805140, 4);
    body.text("COMM").big(common.bytes.size(), 4).append(common.bytes);
    body.text("SSND").big(8 + data.bytes.size(), 4).zeros(8).append(data.bytes).zeros(data.bytes.size() & 1);
    if (!id3.empty())
        body.text("ID3 ").big(id3.size(), 4).append(id3).zeros(id3.size() & 1);
    ByteWriter out;
    out.text("FORM").big(body.bytes.size(), 4).append(body.bytes);
    return out.bytes;
}

} // namespace kelp_test
