#include "tags/flac_tags.h"

#include "platform/file_reader.h"
#include "tags/ascii.h"
#include "tags/byte_view.h"
#include "tags/read_error.h"
#include "tags/vorbis_comment.h"

#include <array>

namespace {

struct FlacField
{
    std::string_view key;
    std::string TagSet::*field;
};

constexpr std::array<FlacField, 11> flacFields{{
    {"TITLE", &TagSet::title},
    {"ARTIST", &TagSet::artist},
    {"ALBUM", &TagSet::album},
    {"ALBUMARTIST", &TagSet::albumArtist},
    {"TRACKNUMBER", &TagSet::trackNumber},
    {"DATE", &TagSet::date},
    {"COMPOSER", &TagSet::composer},
    {"WORK", &TagSet::work},
    {"MOVEMENTNAME", &TagSet::movementName},
    {"MOVEMENT", &TagSet::movementName},
    {"MOVEMENTNUMBER", &TagSet::movementNumber},
}};

} // namespace

bool readFlacBlocks(const std::string &path, FlacBlocks &blocks, std::string *error)
{
    constexpr uint64_t headerBytes = 4;
    blocks = {};
    const FileReader file(path);
    if (!file.isOpen())
        return failRead(error, errorNotOpened);
    std::array<uint8_t, headerBytes> header{};
    if (file.readAt(0, header) < header.size() || !ByteView(header).holds("fLaC"))
        return failRead(error, "不是 FLAC(缺 fLaC 头)");
    uint64_t at = headerBytes;
    for (bool last = false; !last;) {
        if (file.readAt(at, header) < header.size())
            return failRead(error, "元数据块头读取失败");
        at += headerBytes;
        last = header[0] & 0x80;
        FlacBlock block{header[0] & 0x7F, {}};
        const uint64_t length = ByteView(header).big24(1);
        // Before memory is taken, so that a short file of many headers cannot ask for much.
        const bool fits = at <= file.size() && length <= file.size() - at;
        block.bytes.resize(fits ? static_cast<size_t>(length) : 0);
        if (!fits || file.readAt(at, block.bytes) < length)
            return failRead(error, "元数据块内容读取失败");
        at += length;
        if (block.type == FlacBlock::streamInfo && !blocks.hasStreamInfo) {
            blocks.hasStreamInfo = true;
            blocks.streamInfo = std::move(block.bytes);
        } else {
            blocks.others.push_back(std::move(block));
        }
    }
    blocks.audioStart = at;
    return true;
}

bool readFlacTags(const std::string &path, TagSet &tags, std::string *error)
{
    tags = {};
    FlacBlocks blocks;
    if (!readFlacBlocks(path, blocks, error))
        return false;
    for (const FlacBlock &block : blocks.others) {
        if (block.type != FlacBlock::vorbisComment)
            continue;
        std::string vendor;
        std::vector<VorbisComment> comments;
        // A malformed block gives the entries before its fault.
        (void)parseVorbisComment(block.bytes, vendor, comments);
        for (VorbisComment &comment : comments) {
            const std::string key = asciiUpper(comment.key);
            for (const FlacField &known : flacFields)
                if (known.key == key)
                    tags.*known.field = std::move(comment.value);
        }
    }
    return true;
}
