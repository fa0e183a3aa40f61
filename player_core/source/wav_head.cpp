#include "player_core/source/wav_head.h"

#include "player_core/source/endian.h"

#include <cstring>

namespace kelp_core {
namespace {

constexpr int maxChunks = 4096;
constexpr uint64_t maxStatedBytes = uint64_t{1} << 60;

void readFormat(ByteInput &input, int64_t body, WavHead &head)
{
    uint8_t format[16];
    if (!input.readFully(body, format, sizeof format))
        return;
    head.extensible = format[0] == 0xFE && format[1] == 0xFF;
    head.blockAlign = format[12] | format[13] << 8;
}

std::optional<WavHead> readRiff(ByteInput &input)
{
    constexpr uint32_t open = 0xFFFFFFFF;
    // What programs write into the head that cannot come back to it, because they write to a pipe.
    constexpr uint32_t openFrom = 0x7FFF0000;
    WavHead head;
    int64_t longBytes = -1, at = 12;
    uint8_t chunk[8], size[8];
    for (int count = 0; count < maxChunks && input.readFully(at, chunk, sizeof chunk); ++count) {
        const uint32_t bytes = littleU32(chunk + 4);
        if (std::memcmp(chunk, "ds64", 4) == 0 && input.readFully(at + 16, size, sizeof size) &&
            littleU64(size) < maxStatedBytes)
            longBytes = static_cast<int64_t>(littleU64(size));
        if (std::memcmp(chunk, "fmt ", 4) == 0)
            readFormat(input, at + 8, head);
        if (std::memcmp(chunk, "data", 4) == 0) {
            // Zero is what a writer leaves that was stopped before it could come back to the head.
            const int64_t rest = input.sizeBytes() - at - 8;
            head.dataBytes = bytes == 0 ? -1 : static_cast<int64_t>(bytes);
            if (bytes == open)
                head.dataBytes = longBytes >= 0 ? longBytes : rest;
            else if (bytes >= openFrom && head.dataBytes > rest)
                head.dataBytes = rest;
            return head;
        }
        at += 8 + static_cast<int64_t>(bytes) + (bytes & 1);
    }
    return {};
}

std::optional<WavHead> readWave64(ByteInput &input)
{
    constexpr int64_t headBytes = 24;
    WavHead head;
    int64_t at = 40;
    uint8_t chunk[headBytes];
    for (int count = 0; count < maxChunks && input.readFully(at, chunk, sizeof chunk); ++count) {
        const uint64_t bytes = littleU64(chunk + 16);
        if (bytes < headBytes || bytes > maxStatedBytes)
            return {};
        if (std::memcmp(chunk, "fmt ", 4) == 0)
            readFormat(input, at + headBytes, head);
        if (std::memcmp(chunk, "data", 4) == 0) {
            head.dataBytes = static_cast<int64_t>(bytes) - headBytes;
            return head;
        }
        at += static_cast<int64_t>((bytes + 7) / 8 * 8);
    }
    return {};
}

} // namespace

std::optional<WavHead> readWavHead(ByteInput &input)
{
    uint8_t first[12];
    if (!input.readFully(0, first, sizeof first))
        return {};
    if (std::memcmp(first, "riff", 4) == 0)
        return readWave64(input);
    const bool riff = std::memcmp(first, "RIFF", 4) == 0 || std::memcmp(first, "RF64", 4) == 0 ||
                      std::memcmp(first, "BW64", 4) == 0;
    if (riff && std::memcmp(first + 8, "WAVE", 4) == 0)
        return readRiff(input);
    return {};
}

} // namespace kelp_core
