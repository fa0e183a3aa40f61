// AIFF: chunks with big-endian sizes behind "FORM", a size and a kind.
#include "platform/file_reader.h"
#include "tags/head_readers.h"

#include <array>

namespace {

constexpr uint64_t firstChunk = 12;
constexpr uint64_t headerBytes = 8;
constexpr uint64_t fewestBytes = 20;
constexpr int mostChunks = 8192;
constexpr uint64_t longestText = 8192;

struct TextChunk
{
    std::string_view id;
    std::string AudioFileInfo::*field;
    bool inHead; ///< the walk of the head knows it
};

constexpr TextChunk textChunks[] = {
    {"NAME", &AudioFileInfo::title, true},
    {"AUTH", &AudioFileInfo::artist, true},
    {"ANNO", &AudioFileInfo::comment, true},
    {"(c) ", &AudioFileInfo::comment, false},
};

const TextChunk *textChunk(ByteView header)
{
    for (const TextChunk &known : textChunks)
        if (header.holds(known.id))
            return &known;
    return nullptr;
}

void fill(std::string &field, ByteView text)
{
    if (field.empty())
        field = upToNul(text.text());
}

/// From the head as far as that is read: a file with its texts in front costs no further call to the system.
size_t readAt(const FileReader &file, const LazyBytes &head, uint64_t offset, std::span<uint8_t> bytes)
{
    const ByteView loaded = head.loaded();
    if (!loaded.has(offset, bytes.size()))
        return file.readAt(offset, bytes);
    std::copy_n(loaded.data() + offset, bytes.size(), bytes.begin());
    return bytes.size();
}

} // namespace

void readAiffTexts(const FileReader &file, const LazyBytes &head, AudioFileInfo &info)
{
    if (file.size() < fewestBytes)
        return;
    uint64_t at = firstChunk;
    for (int count = 0; count < mostChunks && at + headerBytes <= file.size(); ++count) {
        std::array<uint8_t, headerBytes> bytes{};
        if (readAt(file, head, at, bytes) < bytes.size())
            return;
        const ByteView header(bytes);
        const uint64_t size = header.big32(4);
        const TextChunk *known = textChunk(header);
        if (known && size >= 1 && size <= longestText) {
            std::array<uint8_t, longestText> text; // NOLINT: filled below
            const std::span<uint8_t> room(text.data(), static_cast<size_t>(size));
            fill(info.*known->field, ByteView(room.first(readAt(file, head, at + headerBytes, room))));
        }
        at += headerBytes + size + size % 2;
    }
}

bool readAiffHead(LazyBytes &head, AudioFileInfo &info)
{
    // The 80-bit rate of the chunk is not read. Lists and ranks have been built on this constant.
    constexpr uint32_t settledRate = 44100;
    if (head.size() < fewestBytes)
        return false;
    for (uint64_t at = firstChunk; head.has(at, headerBytes);) {
        const ByteView chunk = head.slice(at, 26);
        const uint64_t size = chunk.big32(4);
        const TextChunk *known = textChunk(chunk);
        if (chunk.holds("COMM") && size >= 18 && chunk.has(0, 26)) {
            info.channels = chunk.big16(8);
            info.totalSamples = chunk.big32(10);
            info.bitsPerSample = chunk.big16(14);
            info.sampleRate = settledRate;
        } else if (chunk.holds("SSND") && chunk.has(8, 4)) {
            info.dataOffset = static_cast<uint32_t>(chunk.big32(8) + headerBytes + at);
            info.dataSize = static_cast<uint32_t>(size);
        } else if (known && known->inHead && head.has(at + headerBytes, size)) {
            fill(info.*known->field, head.slice(at + headerBytes, size));
        }
        at += headerBytes + size + size % 2;
    }
    return info.sampleRate > 0;
}
