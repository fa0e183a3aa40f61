#include "player_core/source/encoding_score.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdint>

namespace kelp_core {
namespace {

// The everyday characters of each language, most frequent first, with some that titles are made of.
constexpr std::string_view simplifiedUsual =
    "的一是不了人我在有他这中大来上个国到说们为子和你地出道也时年得就那要下以生会自着去之过家学对可她里后小么"
    "心多天而能好都"
    "然没日于起还发成事只作当想看文无开手用主行方又如前所本见经头面同三老从动两长知样现分将外身与高意进把法实"
    "回二理美点月明"
    "声全己话儿情名女力给几很最间新相东海口西再平真听世气少关入先山五太水万眼总书住笑通华王马命难神白路死感光"
    "爱让花风梦夜雨"
    "曲歌乐唱专辑星春秋冬夏红黄青林李张陈刘周杰伦邓丽君飞云雪泪恋离忘记等七十里香晴";
constexpr std::string_view traditionalUsual =
    "的一是不了人我在有他這中大來上個國到說們為子和你地出道也時年得就那要下以生會自著去之過家學對可她裡後小麼"
    "心多天而能好都"
    "然沒日於起還發成事只作當想看文無開手用主行方又如前所本見經頭面同三老從動兩長知樣現分將外身與高意進把法實"
    "回二理美點月明"
    "聲全己話兒情名女力給幾很最間新相東海口西再平真聽世氣少關入先山五太水萬眼總書住笑通華王馬命難神白路死感光"
    "愛讓花風夢夜雨"
    "曲歌樂唱專輯星春秋冬夏紅黃青林李張陳劉周傑倫鄧麗君飛雲雪淚戀離忘記等十友迅奕";
constexpr std::string_view hangulUsual = "이가는을의에다고나사랑하지기아도그대한너내로리은를어라해시만서인자"
                                         "노래정우안녕여보김마음요게세일오거니수전있없것들과면";

bool contains(std::string_view list, std::string_view character)
{
    return !character.empty() && list.find(character) != std::string_view::npos;
}

/// Walks a text of double bytes beside its conversion, and takes the mean of what judge says of each
/// character beyond ASCII: judge(lead, trail, character in UTF-8), trail 0 for a single byte.
template<typename Length, typename Judge>
double meanScore(std::string_view bytes, std::string_view utf8, const Length &length, const Judge &judge)
{
    double sum = 0;
    int count = 0;
    size_t to = 0;
    for (size_t at = 0; at < bytes.size();) {
        const auto lead = static_cast<uint8_t>(bytes[at]);
        const auto trail = static_cast<uint8_t>(at + 1 < bytes.size() ? bytes[at + 1] : 0);
        const size_t size = lead < 0x80 ? 1 : length(lead, trail);
        size_t toSize = 1;
        while (to + toSize < utf8.size() && (static_cast<uint8_t>(utf8[to + toSize]) & 0xC0) == 0x80)
            ++toSize;
        if (lead >= 0x80) {
            sum += judge(lead, size > 1 ? trail : uint8_t{0}, utf8.substr(std::min(to, utf8.size()), toSize));
            ++count;
        }
        at += size;
        to += toSize;
    }
    return count ? sum / count : 0;
}

size_t twoBytes(uint8_t, uint8_t)
{
    return 2;
}

constexpr double usual = 3, common = 1, neutral = 0.2, rare = -0.5, wrong = -1;

} // namespace

double scoreWindows1252(std::string_view bytes, std::string_view)
{
    // Western text has its accents one by one, between plain letters; runs of high bytes are something else.
    double sum = 0;
    int count = 0;
    const auto high = [&](size_t at) { return at < bytes.size() && static_cast<uint8_t>(bytes[at]) >= 0x80; };
    const auto letter = [&](size_t at) {
        return at < bytes.size() && std::isalpha(static_cast<unsigned char>(bytes[at])) != 0;
    };
    for (size_t at = 0; at < bytes.size();) {
        if (!high(at)) {
            ++at;
            continue;
        }
        size_t run = 0;
        bool allLetters = true;
        for (; high(at + run); ++run) {
            const auto byte = static_cast<uint8_t>(bytes[at + run]);
            allLetters = allLetters && byte >= 0xC0 && byte != 0xD7 && byte != 0xF7;
        }
        const bool besideLetter = (at > 0 && letter(at - 1)) || letter(at + run);
        double score = wrong;
        if (run == 1)
            score = allLetters && besideLetter ? usual : 0.8;
        else if (run == 2 && allLetters && besideLetter)
            score = neutral;
        sum += score * static_cast<double>(run);
        count += static_cast<int>(run);
        at += run;
    }
    return count ? sum / count : 0;
}

double scoreGb18030(std::string_view bytes, std::string_view asUtf8)
{
    const auto length = [](uint8_t, uint8_t trail) { return trail >= 0x30 && trail <= 0x39 ? size_t{4} : 2; };
    return meanScore(bytes, asUtf8, length, [](uint8_t lead, uint8_t trail, std::string_view character) {
        if (contains(simplifiedUsual, character))
            return usual;
        if (trail < 0xA1)
            return wrong; // the extensions hold what is hardly ever written
        if (lead >= 0xB0 && lead <= 0xD7)
            return common;
        return lead <= 0xA9 ? neutral : rare;
    });
}

double scoreBig5(std::string_view bytes, std::string_view asUtf8)
{
    return meanScore(bytes, asUtf8, twoBytes, [](uint8_t lead, uint8_t, std::string_view character) {
        if (contains(traditionalUsual, character))
            return usual;
        if (lead >= 0xA4 && lead <= 0xC6)
            return common;
        return lead >= 0xA1 && lead <= 0xA3 ? neutral : rare;
    });
}

double scoreShiftJis(std::string_view bytes, std::string_view asUtf8)
{
    const auto length = [](uint8_t lead, uint8_t) { return lead >= 0xA1 && lead <= 0xDF ? size_t{1} : 2; };
    return meanScore(bytes, asUtf8, length, [](uint8_t lead, uint8_t trail, std::string_view) {
        if (lead >= 0xA1 && lead <= 0xDF)
            return rare; // half-width kana: rare in titles, and what other encodings look like
        if ((lead == 0x82 && trail >= 0x9F) || (lead == 0x83 && trail <= 0x96))
            return usual; // kana
        if (lead >= 0x88 && lead <= 0x97)
            return common;
        return lead == 0x81 || lead == 0x82 || lead == 0x83 ? neutral : rare;
    });
}

double scoreEucKr(std::string_view bytes, std::string_view asUtf8)
{
    return meanScore(bytes, asUtf8, twoBytes, [](uint8_t lead, uint8_t trail, std::string_view character) {
        if (contains(hangulUsual, character))
            return usual;
        if (trail < 0xA1)
            return wrong;
        if (lead >= 0xB0 && lead <= 0xC8)
            return common;
        return lead <= 0xAC ? neutral : rare; // rare: Chinese characters
    });
}

} // namespace kelp_core
