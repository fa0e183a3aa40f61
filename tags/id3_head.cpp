// ID3v2 for lists and displays: text frames as they stand. Extended headers, unsynchronisation and frame
// flags are not interpreted, and the three-letter frames of version 2 match nothing.
#include "tags/head_readers.h"
#include "tags/number_scan.h"

#include <array>

namespace {

constexpr uint64_t headerBytes = 10;

struct Frame
{
    std::string_view id;
    std::string AudioFileInfo::*field;
};

constexpr std::array<Frame, 10> frames{{
    {"TIT2", &AudioFileInfo::title},
    {"TPE1", &AudioFileInfo::artist},
    {"TALB", &AudioFileInfo::album},
    {"TCON", &AudioFileInfo::genre},
    {"TDRC", &AudioFileInfo::date},
    {"TYER", &AudioFileInfo::date},
    {"TCOM", &AudioFileInfo::composer},
    {"TIT1", &AudioFileInfo::work},
    {"MVNM", &AudioFileInfo::movementName},
    {"MVIN", &AudioFileInfo::movementNumber},
}};

void appendUtf8(std::string &text, uint16_t unit)
{
    if (unit < 0x80) {
        text += static_cast<char>(unit);
    } else if (unit < 0x800) {
        text += static_cast<char>(0xC0 | unit >> 6);
        text += static_cast<char>(0x80 | (unit & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | unit >> 12);
        text += static_cast<char>(0x80 | (unit >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (unit & 0x3F));
    }
}

std::string decodeUtf16(ByteView bytes, bool littleEndian)
{
    std::string text;
    for (uint64_t at = 0; bytes.has(at, 2); at += 2) {
        const uint16_t unit = littleEndian ? bytes.little16(at) : bytes.big16(at);
        if (unit == 0)
            break;
        appendUtf8(text, unit);
    }
    return text;
}

/// Whether the frame's text is wanted, so that pictures are not even read.
bool isWanted(std::string_view id)
{
    if (id == "COMM" || id == "TRCK")
        return true;
    return std::any_of(frames.begin(), frames.end(), [id](const Frame &frame) { return frame.id == id; });
}

void storeFrame(std::string_view id, ByteView payload, AudioFileInfo &info)
{
    std::string text = decodeId3Text(payload);
    if (id == "COMM") {
        // The language is cut off; the description in front of the text is not told apart from it.
        constexpr uint64_t fewest = 5;
        constexpr size_t language = 3;
        if (payload.size() - 1 >= fewest)
            info.comment = text.size() > language ? text.substr(language) : std::string();
    } else if (id == "TRCK") {
        if (const auto numbers = scanNumberPair(text)) {
            info.track = numbers->first;
            info.trackTotal = numbers->second;
        }
    } else {
        for (const Frame &frame : frames)
            if (frame.id == id)
                info.*frame.field = std::move(text);
    }
}

} // namespace

std::string decodeId3Text(ByteView payload)
{
    constexpr uint8_t latin1 = 0;
    constexpr uint8_t utf16 = 1;
    constexpr uint8_t utf8 = 3;
    const uint8_t encoding = payload.at(0);
    const ByteView text = payload.slice(1);
    if (encoding == latin1 || encoding == utf8)
        return std::string(text.text().substr(0, text.text().find_last_not_of('\0') + 1));
    if (text.holds("\xFF\xFE"))
        return decodeUtf16(text.slice(2), true);
    if (text.holds("\xFE\xFF"))
        return decodeUtf16(text.slice(2), false);
    return decodeUtf16(text, encoding == utf16);
}

void readId3(LazyBytes &bytes, AudioFileInfo &info)
{
    constexpr uint64_t fewestBytes = 11;
    constexpr uint8_t firstSyncSafeVersion = 4;
    const std::optional<uint64_t> start = bytes.find("ID3");
    if (!start || !bytes.has(*start, fewestBytes))
        return;
    const ByteView header = bytes.slice(*start, headerBytes);
    const bool syncSafe = header.at(3) >= firstSyncSafeVersion;
    uint64_t at = *start + headerBytes;
    const uint64_t tagBytes = std::min<uint64_t>(header.syncSafe28(6), bytes.size() - at);
    const uint64_t end = at + tagBytes;
    while (at + headerBytes <= end) {
        const ByteView frame = bytes.slice(at, headerBytes);
        const uint64_t size = syncSafe ? frame.syncSafe28(4) : frame.big32(4);
        if (size == 0 || size > tagBytes)
            return;
        // A text needs a byte behind its encoding. A frame may pass the tag's end but not the bytes'.
        const std::string_view id = frame.text(0, 4);
        if (size > 1 && bytes.has(at + headerBytes, size) && isWanted(id))
            storeFrame(id, bytes.slice(at + headerBytes, size), info);
        at += headerBytes + size;
    }
}
