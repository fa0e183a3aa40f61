// APEv2. Only the head of a file is looked at, so the tag of a longer file is not found: lists must not cost
// more than head and tail. The size is taken to count the header too, which is this reader's settled way.
#include "tags/byte_scan.h"
#include "tags/head_readers.h"
#include "tags/number_scan.h"

#include <array>

namespace {

constexpr std::string_view magic = "APETAGEX";
constexpr uint64_t headerBytes = 32;
constexpr uint64_t searchBytes = 4096;
constexpr uint64_t fewestToFooter = 40;

struct Item
{
    std::string_view key;
    std::string AudioFileInfo::*field;
};

constexpr std::array<Item, 19> items{{
    {"TITLE", &AudioFileInfo::title},
    {"Title", &AudioFileInfo::title},
    {"ARTIST", &AudioFileInfo::artist},
    {"Artist", &AudioFileInfo::artist},
    {"ALBUM", &AudioFileInfo::album},
    {"Album", &AudioFileInfo::album},
    {"GENRE", &AudioFileInfo::genre},
    {"Genre", &AudioFileInfo::genre},
    {"DATE", &AudioFileInfo::date},
    {"Year", &AudioFileInfo::date},
    {"COMMENT", &AudioFileInfo::comment},
    {"Comment", &AudioFileInfo::comment},
    {"COMPOSER", &AudioFileInfo::composer},
    {"Composer", &AudioFileInfo::composer},
    {"WORK", &AudioFileInfo::work},
    {"Work", &AudioFileInfo::work},
    {"MOVEMENT", &AudioFileInfo::movementName},
    {"Movement", &AudioFileInfo::movementName},
    {"MOVEMENTNAME", &AudioFileInfo::movementName},
}};

std::optional<uint64_t> findFooter(ByteView bytes)
{
    const uint64_t nearest = bytes.size() > searchBytes ? bytes.size() - searchBytes : 1;
    // The last one is meant, since it is looked for from the end backwards.
    return findLastWord(bytes.slice(0, bytes.size() - headerBytes + magic.size()), magic, nearest);
}

void storeItem(std::string_view key, std::string_view value, AudioFileInfo &info)
{
    if (key == "TRACK" || key == "Track") {
        if (const std::optional<int32_t> number = takeNumber(value))
            info.track = *number;
        return;
    }
    if (key == "MOVEMENTNUMBER" || key == "MovementNumber") {
        info.movementNumber = value;
        return;
    }
    for (const Item &item : items)
        if (item.key == key)
            info.*item.field = value;
}

} // namespace

void readApeTag(LazyBytes &bytes, AudioFileInfo &info)
{
    if (bytes.size() <= headerBytes)
        return;
    const ByteView whole = bytes.all();
    if (whole.size() <= headerBytes)
        return;
    const std::optional<uint64_t> footer = findFooter(whole);
    if (!footer)
        return;
    const uint64_t size = whole.little32(*footer + 12);
    if (size > *footer + headerBytes)
        return;
    const uint64_t header = *footer + headerBytes - size;
    if (header + fewestToFooter > *footer || !whole.holds(magic, header))
        return;

    const ByteView list = whole.slice(0, *footer);
    for (uint64_t at = header + headerBytes; list.has(at, 8);) {
        const uint64_t length = list.little32(at);
        const std::string_view rest = list.slice(at + 8).text();
        const auto keyBytes = static_cast<size_t>(std::find(rest.begin(), rest.end(), '\0') - rest.begin());
        if (keyBytes == rest.size() || length > rest.size() - keyBytes - 1)
            return;
        storeItem(rest.substr(0, keyBytes), rest.substr(keyBytes + 1, static_cast<size_t>(length)), info);
        at += 8 + keyBytes + 1 + length;
    }
}
