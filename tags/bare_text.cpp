// "KEY=value" in bytes of any kind.
#include "tags/ascii.h"
#include "tags/byte_scan.h"
#include "tags/head_readers.h"

#include <array>

namespace {

struct BareKey
{
    std::string_view key;
    std::string AudioFileInfo::*field;
    bool replaces; ///< the field, even where it is filled
};

constexpr std::array<BareKey, 6> bareKeys{{
    {"TITLE", &AudioFileInfo::title, true},
    {"ARTIST", &AudioFileInfo::artist, false},
    {"ALBUM", &AudioFileInfo::album, false},
    {"GENRE", &AudioFileInfo::genre, false},
    {"DATE", &AudioFileInfo::date, false},
    {"COMMENT", &AudioFileInfo::comment, false},
}};

/// A "=" behind the last letter of a key, E, M or T in any case, or behind one of the few bytes that share
/// their bits. Audio data holds many a "=" and hardly this pair.
constexpr BytePair keysEnd{0xC6, 0x44, '='};
static_assert(std::all_of(bareKeys.begin(), bareKeys.end(), [](const BareKey &bare) {
    const char end = bare.key.back();
    return (end & keysEnd.firstMask) == keysEnd.first &&
           (asciiLower(end) & keysEnd.firstMask) == keysEnd.first;
}));

bool endsWithKey(std::string_view text, std::string_view key)
{
    if (text.size() < key.size())
        return false;
    const std::string_view end = text.substr(text.size() - key.size());
    for (size_t i = 0; i < key.size(); ++i)
        if (asciiUpper(end[i]) != key[i])
            return false;
    return true;
}

std::string valueAt(std::string_view text, uint64_t begin)
{
    constexpr std::string_view ends("\0\n\r", 3);
    const std::string_view value = text.substr(static_cast<size_t>(begin));
    return std::string(value.substr(0, value.find_first_of(ends)));
}

} // namespace

void scanBareText(LazyBytes &bytes, AudioFileInfo &info)
{
    const ByteView whole = bytes.all();
    const std::string_view text = whole.text();
    std::array<bool, bareKeys.size()> wanted{};
    size_t missing = 0;
    for (size_t i = 0; i < bareKeys.size(); ++i) {
        wanted[i] = bareKeys[i].replaces || (info.*bareKeys[i].field).empty();
        missing += wanted[i] ? 1 : 0;
    }
    // One walk over the "=" serves all keys; each takes its first hit.
    (void)findPair(whole, 0, keysEnd, [&](uint64_t letter) {
        const std::string_view before = text.substr(0, static_cast<size_t>(letter) + 1);
        for (size_t i = 0; i < bareKeys.size(); ++i) {
            if (!wanted[i] || !endsWithKey(before, bareKeys[i].key))
                continue;
            info.*bareKeys[i].field = valueAt(text, letter + 2);
            wanted[i] = false;
            --missing;
        }
        return missing == 0;
    });
}
