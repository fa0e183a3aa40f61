#include "player_core/source/text_encoding.h"

#include "player_core/source/encoding_score.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include <iconv.h>

namespace kelp_core {
namespace {

struct Candidate
{
    const char *encoding;
    EncodingScore score;
};

// In the order that wins a draw.
constexpr std::array candidates{
    Candidate{"WINDOWS-1252", scoreWindows1252},
    Candidate{"GB18030", scoreGb18030},
    Candidate{"BIG5-HKSCS", scoreBig5},
    Candidate{"CP932", scoreShiftJis},
    Candidate{"CP949", scoreEucKr},
};

uint8_t byteAt(std::string_view bytes, size_t at)
{
    return at < bytes.size() ? static_cast<uint8_t>(bytes[at]) : 0;
}

/// Every byte as the character of its number: always possible.
std::string latin1ToUtf8(std::string_view bytes)
{
    std::string text;
    for (const char byte : bytes) {
        const auto code = static_cast<uint8_t>(byte);
        if (code < 0x80) {
            text += byte;
        } else {
            text += static_cast<char>(0xC0 | code >> 6);
            text += static_cast<char>(0x80 | (code & 0x3F));
        }
    }
    return text;
}

/// UTF-16 without a mark shows by its zeros: nearly every second byte of a sheet's plain words.
const char *unmarkedUtf16(std::string_view bytes)
{
    constexpr size_t lookAt = 512;
    size_t evenZeros = 0, oddZeros = 0;
    const size_t pairs = std::min(bytes.size(), lookAt) / 2;
    for (size_t i = 0; i < pairs; ++i) {
        evenZeros += bytes[2 * i] == 0;
        oddZeros += bytes[2 * i + 1] == 0;
    }
    if (pairs < 2)
        return nullptr;
    if (oddZeros * 2 > pairs && evenZeros == 0)
        return "UTF-16LE";
    if (evenZeros * 2 > pairs && oddZeros == 0)
        return "UTF-16BE";
    return nullptr;
}

std::optional<DecodedText> decodeMarked(std::string_view bytes)
{
    if (bytes.substr(0, 3) == "\xEF\xBB\xBF" && isUtf8(bytes.substr(3)))
        return DecodedText{std::string(bytes.substr(3)), "UTF-8"};
    const bool little = byteAt(bytes, 0) == 0xFF && byteAt(bytes, 1) == 0xFE;
    const bool big = byteAt(bytes, 0) == 0xFE && byteAt(bytes, 1) == 0xFF;
    const char *encoding = little ? "UTF-16LE" : big ? "UTF-16BE" : unmarkedUtf16(bytes);
    if (!encoding)
        return {};
    std::string_view body = bytes.substr(little || big ? 2 : 0);
    body = body.substr(0, body.size() / 2 * 2);
    if (auto text = convertToUtf8(body, encoding))
        return DecodedText{*text, encoding};
    return {};
}

} // namespace

bool isUtf8(std::string_view bytes)
{
    for (size_t at = 0; at < bytes.size();) {
        const uint8_t lead = byteAt(bytes, at);
        const size_t size = lead < 0x80   ? 1
                            : lead < 0xC2 ? 0
                            : lead < 0xE0 ? 2
                            : lead < 0xF0 ? 3
                            : lead < 0xF5 ? 4
                                          : 0;
        if (size == 0 || at + size > bytes.size())
            return false;
        for (size_t i = 1; i < size; ++i) {
            if ((byteAt(bytes, at + i) & 0xC0) != 0x80)
                return false;
        }
        const uint8_t second = byteAt(bytes, at + 1);
        if ((lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
            (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F))
            return false;
        at += size;
    }
    return true;
}

std::optional<std::string> convertToUtf8(std::string_view bytes, const char *encoding)
{
    const iconv_t converter = iconv_open("UTF-8", encoding);
    if (converter == reinterpret_cast<iconv_t>(-1))
        return {};
    std::string out(bytes.size() * 4 + 16, '\0'); // no encoding grows by more
    std::string copy(bytes);
    char *from = copy.data();
    char *to = out.data();
    size_t fromLeft = copy.size(), toLeft = out.size();
    const size_t result = iconv(converter, &from, &fromLeft, &to, &toLeft);
    iconv_close(converter);
    if (result == static_cast<size_t>(-1) || fromLeft != 0)
        return {};
    out.resize(out.size() - toLeft);
    return out;
}

DecodedText decodeText(std::string_view bytes)
{
    if (auto marked = decodeMarked(bytes))
        return *marked;
    if (isUtf8(bytes))
        return {std::string(bytes), "UTF-8"};
    DecodedText best;
    double bestScore = -1e9;
    for (const Candidate &candidate : candidates) {
        const auto text = convertToUtf8(bytes, candidate.encoding);
        if (!text)
            continue;
        const double score = candidate.score(bytes, *text);
        if (score > bestScore) {
            bestScore = score;
            best = {*text, candidate.encoding};
        }
    }
    if (bestScore < -1e8)
        return {latin1ToUtf8(bytes), "ISO-8859-1"};
    return best;
}

} // namespace kelp_core
