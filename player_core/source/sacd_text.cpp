#include "player_core/source/sacd_text.h"

#include "player_core/source/endian.h"
#include "player_core/source/text_encoding.h"

#include <algorithm>

namespace kelp_core {
namespace {

/// A title fills no more; what runs on is damage.
constexpr size_t maxTextBytes = 2048;
constexpr int maxItems = 32;

/// The encoding of a character set as iconv calls it; null for one that is not in the standard. Each is the
/// widest that holds the set, since discs use more characters than their sets have.
const char *encodingOf(int characterSet)
{
    switch (characterSet) {
    case 1: // ISO 646: every byte of it is the same in ISO 8859-1
    case 2:
    case 7:
        return "ISO-8859-1";
    case 3:
        return "CP932";
    case 4:
        return "CP949";
    case 5:
        return "GB18030";
    case 6:
        return "BIG5-HKSCS";
    default:
        return nullptr;
    }
}

/// Leaves out the escape sequences of ISO 2022: ESC, bytes 0x20 … 0x2F, one byte 0x30 … 0x7E.
std::string withoutEscapes(std::string_view bytes)
{
    std::string out;
    for (size_t at = 0; at < bytes.size(); ++at) {
        if (bytes[at] != '\x1B') {
            out += bytes[at];
            continue;
        }
        while (at + 1 < bytes.size() && bytes[at + 1] >= 0x20 && bytes[at + 1] <= 0x2F)
            ++at;
        ++at;
    }
    return out;
}

bool hasHighBytes(std::string_view bytes)
{
    return std::any_of(bytes.begin(), bytes.end(),
                       [](char byte) { return static_cast<uint8_t>(byte) >= 0x80; });
}

/// The bytes from a place to the next NUL; nothing when there is none within reach.
std::string_view textAt(std::span<const uint8_t> bytes, size_t at)
{
    if (at >= bytes.size())
        return {};
    const auto rest = bytes.subspan(at, std::min(maxTextBytes, bytes.size() - at));
    const auto end = std::find(rest.begin(), rest.end(), uint8_t{0});
    if (end == rest.end())
        return {};
    return {reinterpret_cast<const char *>(rest.data()), static_cast<size_t>(end - rest.begin())};
}

bool beginsWith(std::span<const uint8_t> bytes, std::string_view word)
{
    return bytes.size() >= word.size() && std::equal(word.begin(), word.end(), bytes.begin());
}

SacdTrackText readTrackText(std::span<const uint8_t> table, size_t at, int characterSet)
{
    constexpr uint8_t titleType = 1, performerType = 2, phonetic = 0x80;
    SacdTrackText text;
    std::string soundOfTitle, soundOfPerformer;
    const int items = std::min<int>(table[at], maxItems);
    at += 4;
    for (int item = 0; item < items && at + 2 < table.size(); ++item) {
        const uint8_t type = table[at];
        const std::string_view bytes = textAt(table, at + 2);
        const std::string words = sacdTextToUtf8(bytes, characterSet);
        if (type == titleType)
            text.title = words;
        else if (type == performerType)
            text.performer = words;
        else if (type == (titleType | phonetic))
            soundOfTitle = words;
        else if (type == (performerType | phonetic))
            soundOfPerformer = words;
        at += 2 + bytes.size() + 1;
        while (at < table.size() && table[at] == 0)
            ++at; // items may be filled up with zeros; none has the type 0
    }
    if (text.title.empty())
        text.title = soundOfTitle;
    if (text.performer.empty())
        text.performer = soundOfPerformer;
    return text;
}

} // namespace

std::string sacdTextToUtf8(std::string_view bytes, int characterSet)
{
    constexpr int ascii = 1, latin1WithEscapes = 7;
    std::string plain = characterSet == latin1WithEscapes ? withoutEscapes(bytes) : std::string(bytes);
    std::string text;
    const char *encoding = encodingOf(characterSet);
    // Discs that say ASCII and hold high bytes mean something else, and do not say what.
    if (encoding && !(characterSet == ascii && hasHighBytes(plain)))
        text = convertToUtf8(plain, encoding).value_or(std::string());
    if (text.empty() && !plain.empty())
        text = decodeText(plain).text;
    for (char &letter : text) {
        if (static_cast<uint8_t>(letter) < 0x20 || letter == 0x7F)
            letter = ' ';
    }
    const size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

SacdDiscText readSacdDiscText(std::span<const uint8_t> sector, int characterSet)
{
    constexpr size_t positionsAt = 16, positions = 16;
    constexpr size_t albumTitle = 0, albumArtist = 1, discTitle = 8, discArtist = 9;
    if (!beginsWith(sector, "SACDText") || sector.size() < positionsAt + 2 * positions)
        return {};
    const auto words = [&](size_t which) {
        const size_t at = bigU16(sector.data() + positionsAt + 2 * which);
        return at == 0 ? std::string() : sacdTextToUtf8(textAt(sector, at), characterSet);
    };
    return {words(albumTitle), words(albumArtist), words(discTitle), words(discArtist)};
}

std::vector<SacdTrackText> readSacdTrackTexts(std::span<const uint8_t> table, int tracks, int characterSet)
{
    constexpr size_t positionsAt = 8;
    std::vector<SacdTrackText> texts;
    if (!beginsWith(table, "SACDTTxt"))
        return texts;
    for (int track = 0; track < tracks; ++track) {
        const size_t positionAt = positionsAt + 2 * static_cast<size_t>(track);
        if (positionAt + 2 > table.size())
            break;
        const size_t at = bigU16(table.data() + positionAt);
        texts.push_back(at >= positionsAt && at < table.size() ? readTrackText(table, at, characterSet)
                                                               : SacdTrackText{});
    }
    return texts;
}

} // namespace kelp_core
