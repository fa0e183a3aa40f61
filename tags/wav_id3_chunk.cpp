#include "tags/wav_id3_chunk.h"

#include "platform/file_reader.h"
#include "tags/byte_view.h"
#include "tags/read_error.h"

#include <array>

bool findWavId3Chunk(const std::string &path, uint64_t &offset, uint64_t &size, std::string *error)
{
    constexpr uint64_t headerBytes = 8;
    constexpr uint64_t fewestBytes = 20;
    offset = 0;
    size = 0;
    const FileReader file(path);
    if (!file.isOpen())
        return failRead(error, errorNotOpened);
    std::array<uint8_t, 12> riff{};
    if (file.readAt(0, riff) < riff.size() || !ByteView(riff).holds("RIFF"))
        return failRead(error, "不是 RIFF/WAV");
    bool hasData = false;
    uint64_t at = riff.size();
    while (file.size() >= fewestBytes && at + headerBytes <= file.size()) {
        std::array<uint8_t, headerBytes> bytes{};
        if (file.readAt(at, bytes) < bytes.size())
            break;
        const ByteView header(bytes);
        const uint64_t payload = header.little32(4);
        const uint64_t step = headerBytes + payload + payload % 2;
        if (header.holds("ID3 ")) {
            offset = at;
            size = step;
            return true;
        }
        hasData = hasData || header.holds("data");
        at += step;
    }
    return hasData || failRead(error, "WAV 里没有 data chunk(文件不完整?)");
}
