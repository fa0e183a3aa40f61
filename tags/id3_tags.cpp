#include "tags/id3_tags.h"

#include "platform/file_reader.h"
#include "tags/ascii.h"
#include "tags/byte_view.h"
#include "tags/file_range.h"
#include "tags/read_error.h"
#include "tags/wav_id3_chunk.h"

#include <array>

namespace {

constexpr uint64_t headerBytes = 10;
constexpr uint64_t tailBytes = 65536;

struct Id3Field
{
    std::string_view frame;
    std::string TagSet::*field;
};

constexpr std::array<Id3Field, 10> id3Fields{{
    {"TIT2", &TagSet::title},
    {"TPE1", &TagSet::artist},
    {"TALB", &TagSet::album},
    {"TPE2", &TagSet::albumArtist},
    {"TRCK", &TagSet::trackNumber},
    {"TDRC", &TagSet::date},
    {"TCOM", &TagSet::composer},
    {"TIT1", &TagSet::work},
    {"MVNM", &TagSet::movementName},
    {"MVIN", &TagSet::movementNumber},
}};

/// Reads a tag from a range of the file: no more than its own size, whatever the range's header claims.
bool readTagIn(const std::string &path, uint64_t offset, uint64_t length, TagSet &tags, std::string *error)
{
    std::vector<uint8_t> bytes;
    if (!readFileRange(path, offset, std::min(length, headerBytes), bytes, error))
        return false;
    const ByteView header(bytes);
    if (bytes.size() < headerBytes || !header.holds("ID3"))
        return true;
    const uint64_t tagBytes = std::min(length, headerBytes + header.syncSafe28(6));
    if (!readFileRange(path, offset, tagBytes, bytes, error))
        return false;
    tags = parseId3Tag(bytes);
    return true;
}

bool readWavTag(const std::string &path, TagSet &tags, std::string *error)
{
    constexpr uint64_t chunkHeaderBytes = 8;
    uint64_t offset = 0;
    uint64_t size = 0;
    if (!findWavId3Chunk(path, offset, size, error))
        return false;
    if (size == 0)
        return true;
    // A file that ends within the chunk is not whole, and must not be rewritten as if it were, even where the
    // tag itself is. Only the pad byte is left out by some programs.
    std::vector<uint8_t> last;
    if (const uint64_t end = offset + size;
        end > offset + chunkHeaderBytes + 1 && !readFileRange(path, end - 2, 1, last, error))
        return false;
    return readTagIn(path, offset + chunkHeaderBytes, size - chunkHeaderBytes, tags, error);
}

bool readDsfTag(const std::string &path, TagSet &tags, std::string *error)
{
    std::vector<uint8_t> bytes;
    if (!readFileRange(path, 0, 28, bytes, error))
        return false;
    const ByteView header(bytes);
    if (!header.holds("DSD "))
        return failRead(error, "不是 DSF");
    const uint64_t fileBytes = header.little64(12);
    const uint64_t pointer = header.little64(20);
    return pointer == 0 || pointer >= fileBytes || readTagIn(path, pointer, fileBytes - pointer, tags, error);
}

bool readDffTag(const std::string &path, TagSet &tags, std::string *error)
{
    const FileReader file(path);
    if (!file.isOpen())
        return failRead(error, errorNotOpened);
    const uint64_t length = std::min(file.size(), tailBytes);
    std::vector<uint8_t> bytes(static_cast<size_t>(length));
    if (file.readAt(file.size() - length, bytes) < length)
        return failRead(error, errorShortRead);
    const ByteView tail(bytes);
    const size_t start = tail.text().find("ID3");
    if (start != std::string_view::npos)
        tags = parseId3Tag(std::span<const uint8_t>(bytes).subspan(start));
    return true;
}

} // namespace

TagSet parseId3Tag(std::span<const uint8_t> tagBytes)
{
    constexpr uint8_t firstSyncSafeVersion = 4;
    TagSet tags;
    const ByteView bytes(tagBytes);
    if (!bytes.has(0, headerBytes) || !bytes.holds("ID3"))
        return tags;
    const uint64_t end = std::min<uint64_t>(bytes.size(), headerBytes + bytes.syncSafe28(6));
    for (uint64_t at = headerBytes; at + headerBytes <= end && bytes.at(at) != 0;) {
        const uint64_t size =
            bytes.at(3) >= firstSyncSafeVersion ? bytes.syncSafe28(at + 4) : bytes.big32(at + 4);
        if (size > end - at - headerBytes)
            break;
        if (size > 0) {
            for (const Id3Field &known : id3Fields) {
                if (!bytes.holds(known.frame, at))
                    continue;
                std::string text(bytes.text(at + headerBytes + 1, size - 1));
                std::erase(text, '\0');
                tags.*known.field = std::move(text);
            }
        }
        at += headerBytes + size;
    }
    return tags;
}

bool readId3Tags(const std::string &path, TagSet &tags, std::string *error)
{
    tags = {};
    const std::string suffix = suffixOf(path);
    if (suffix == "wav")
        return readWavTag(path, tags, error);
    if (suffix == "dsf")
        return readDsfTag(path, tags, error);
    if (suffix == "dff")
        return readDffTag(path, tags, error);
    return failRead(error, "这个格式不是 ID3 标签(flac 走 Vorbis)");
}
