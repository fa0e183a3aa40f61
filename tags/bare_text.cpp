// "KEY=value" in bytes of any kind.
#include "tags/ascii.h"
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

} // namespace

void scanBareText(LazyBytes &bytes, AudioFileInfo &info)
{
    const std::string_view text = bytes.all().text();
    std::array<bool, bareKeys.size()> wanted{};
    for (size_t i = 0; i < bareKeys.size(); ++i)
        wanted[i] = bareKeys[i].replaces || (info.*bareKeys[i].field).empty();
    // One walk over the "=" serves all keys; each takes its first hit.
    for (size_t equals = text.find('='); equals != std::string_view::npos;
         equals = text.find('=', equals + 1)) {
        // The last letters of the keys: audio data holds many a "=" and hardly a key.
        if (equals == 0 ||
            std::string_view("ETM").find(asciiUpper(text[equals - 1])) == std::string_view::npos)
            continue;
        for (size_t i = 0; i < bareKeys.size(); ++i) {
            if (!wanted[i] || !endsWithKey(text.substr(0, equals), bareKeys[i].key))
                continue;
            constexpr std::string_view ends("\0\n\r", 3);
            const std::string_view value = text.substr(equals + 1);
            info.*bareKeys[i].field = value.substr(0, value.find_first_of(ends));
            wanted[i] = false;
        }
    }
}
