// The head of a FLAC file: STREAMINFO, and the comment where the head holds it whole.
#include "tags/flac_tags.h"
#include "tags/head_readers.h"
#include "tags/number_scan.h"

#include <array>

namespace {

struct CommentField
{
    std::string_view key;
    std::string AudioFileInfo::*field;
};

constexpr std::array<CommentField, 12> commentFields{{
    {"TITLE", &AudioFileInfo::title},
    {"ARTIST", &AudioFileInfo::artist},
    // Whichever of the two comes first is the artist: albums are grouped by it.
    {"ALBUMARTIST", &AudioFileInfo::artist},
    {"ALBUM", &AudioFileInfo::album},
    {"GENRE", &AudioFileInfo::genre},
    {"DATE", &AudioFileInfo::date},
    {"COMMENT", &AudioFileInfo::comment},
    {"COMPOSER", &AudioFileInfo::composer},
    {"WORK", &AudioFileInfo::work},
    {"MOVEMENTNAME", &AudioFileInfo::movementName},
    {"MOVEMENT", &AudioFileInfo::movementName},
    {"MOVEMENTNUMBER", &AudioFileInfo::movementNumber},
}};

bool sameKey(std::string_view key, std::string_view upper)
{
    if (key.size() != upper.size())
        return false;
    for (size_t i = 0; i < key.size(); ++i)
        if (asciiUpper(key[i]) != upper[i])
            return false;
    return true;
}

void storeComment(std::string_view key, std::string_view value, AudioFileInfo &info)
{
    for (const CommentField &known : commentFields) {
        if (!sameKey(key, known.key))
            continue;
        std::string &field = info.*known.field;
        if (field.empty())
            field = value;
        return;
    }
    if (info.track != 0 || !(sameKey(key, "TRACKNUMBER") || sameKey(key, "TRACK")))
        return;
    if (const auto numbers = scanNumberPair(value)) {
        info.track = numbers->first;
        if (numbers->second > 0)
            info.trackTotal = numbers->second;
    }
}

/// As far as the lengths fit.
void readComments(ByteView block, AudioFileInfo &info)
{
    if (!block.has(0, 4) || !block.has(4, uint64_t(block.little32(0)) + 4))
        return;
    uint64_t at = 4 + uint64_t(block.little32(0));
    const uint32_t count = block.little32(at);
    at += 4;
    for (uint32_t i = 0; i < count && block.has(at, 4); ++i) {
        const uint64_t length = block.little32(at);
        if (!block.has(at + 4, length))
            return;
        const std::string_view entry = block.text(at + 4, length);
        const size_t equals = entry.find('=');
        if (equals != std::string_view::npos)
            storeComment(entry.substr(0, equals), entry.substr(equals + 1), info);
        at += 4 + length;
    }
}

} // namespace

void readFlacComment(LazyBytes &head, AudioFileInfo &info)
{
    for (uint64_t at = 4; head.has(at, 4);) {
        const ByteView header = head.slice(at, 4);
        const uint64_t length = header.big24(1);
        if (!head.has(at + 4, length))
            return;
        if ((header.at(0) & 0x7F) == FlacBlock::vorbisComment) {
            readComments(head.slice(at + 4, length), info);
            return;
        }
        if (header.at(0) & 0x80)
            return;
        at += 4 + length;
    }
}

bool readFlacHead(LazyBytes &head, AudioFileInfo &info)
{
    const ByteView bytes = head.first(42);
    const uint64_t length = bytes.big24(5);
    if ((bytes.at(4) & 0x7F) != FlacBlock::streamInfo || length < 18 || !head.has(8, length))
        return false;
    const uint64_t packed = bytes.big64(18); // 20 bits of rate, 3 of channels, 5 of depth, 36 of samples
    info.sampleRate = static_cast<uint32_t>(packed >> 44U);
    info.channels = static_cast<uint32_t>(packed >> 41U & 0x7U) + 1;
    info.bitsPerSample = static_cast<uint32_t>(packed >> 36U & 0x1FU) + 1;
    info.totalSamples = packed & 0xFFFFFFFFFULL;
    return true;
}
