// Old texts become UTF-8: titles as they stand in real sheets, in each encoding.

#include "player_core/source/cue_sheet.h"
#include "player_core/source/text_encoding.h"

#include <gtest/gtest.h>

#include <iconv.h>

namespace {

using namespace kelp_core;

std::string encode(const std::string &utf8, const char *encoding)
{
    const iconv_t converter = iconv_open(encoding, "UTF-8");
    EXPECT_NE(converter, reinterpret_cast<iconv_t>(-1)) << encoding;
    std::string copy = utf8, out(utf8.size() * 4 + 8, '\0');
    char *from = copy.data();
    char *to = out.data();
    size_t fromLeft = copy.size(), toLeft = out.size();
    EXPECT_NE(iconv(converter, &from, &fromLeft, &to, &toLeft), static_cast<size_t>(-1)) << utf8;
    iconv_close(converter);
    out.resize(out.size() - toLeft);
    return out;
}

struct Sample
{
    const char *encoding;
    const char *text;
};

void PrintTo(const Sample &sample, std::ostream *out)
{
    *out << sample.encoding << ' ' << sample.text;
}

class Encodings : public testing::TestWithParam<Sample>
{
};

TEST_P(Encodings, AreGuessed)
{
    const std::string sheet =
        std::string("REM GENRE Pop\nPERFORMER \"") + GetParam().text +
        "\"\nTITLE \"Live 2001\"\nFILE \"CDImage.wav\" WAVE\n  TRACK 01 AUDIO\n    TITLE \"" +
        GetParam().text + "\"\n    INDEX 01 00:00:00\n";
    const DecodedText decoded = decodeText(encode(sheet, GetParam().encoding));
    EXPECT_EQ(decoded.text, sheet) << "taken for " << decoded.encoding;
}

INSTANTIATE_TEST_SUITE_P(
    Titles, Encodings,
    testing::Values(Sample{"WINDOWS-1252", "Café del Mar"}, Sample{"WINDOWS-1252", "Motörhead – Überjam"},
                    Sample{"WINDOWS-1252", "Björk, Sigur Rós, Mötley Crüe"},
                    Sample{"WINDOWS-1252", "L’été à Saint-Étienne"},
                    Sample{"WINDOWS-1252", "Señorita ¿Qué pasó?"},
                    Sample{"WINDOWS-1252", "Für Elise (Große Fuge)"}, Sample{"GB18030", "七里香"},
                    Sample{"GB18030", "周杰伦 - 晴天"}, Sample{"GB18030", "邓丽君 月亮代表我的心"},
                    Sample{"GB18030", "交响曲第五号 命运"}, Sample{"GB18030", "王菲 红豆"},
                    Sample{"BIG5", "陳奕迅 十年"}, Sample{"BIG5", "鄧麗君 月亮代表我的心"},
                    Sample{"BIG5", "周杰倫 七里香"}, Sample{"BIG5", "張學友 吻別"},
                    Sample{"SHIFT-JIS", "宇多田ヒカル 初恋"}, Sample{"SHIFT-JIS", "さくらの唄"},
                    Sample{"SHIFT-JIS", "坂本龍一 戦場のメリークリスマス"},
                    Sample{"EUC-KR", "이문세 사랑이 지나가면"}, Sample{"EUC-KR", "김광석 서른 즈음에"},
                    Sample{"EUC-KR", "나는 너를 사랑해"}, Sample{"UTF-8", "Ænima 七里香 サクラ"},
                    Sample{"UTF-16LE", "Café 七里香"}, Sample{"UTF-16BE", "plain words only"}));

TEST(TextEncoding, MarksDecide)
{
    EXPECT_EQ(decodeText("\xEF\xBB\xBFTITLE").text, "TITLE");
    EXPECT_EQ(decodeText(std::string_view("\xFF\xFET\0I\0", 6)).text, "TI");
    EXPECT_EQ(decodeText(std::string_view("\xFE\xFF\0T\0I\0", 7)).text, "TI")
        << "half a character at the end";
}

TEST(TextEncoding, NeverFails)
{
    const DecodedText decoded = decodeText("a\x81\xFF\xFF\x8D z");
    EXPECT_TRUE(isUtf8(decoded.text));
    EXPECT_EQ(decodeText("").text, "");
}

TEST(TextEncoding, KnowsWellFormedUtf8)
{
    EXPECT_TRUE(isUtf8("aé七😀"));
    for (const char *bad :
         {"\x80", "\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE4\xB8", "\xFF"})
        EXPECT_FALSE(isUtf8(bad));
}

TEST(TextEncoding, SheetsKeepTheBytesOfFileNames)
{
    const std::string sheet =
        "TITLE \"七里香\"\nFILE \"周杰伦.wav\" WAVE\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n";
    const auto parsed = parseCueSheet(encode(sheet, "GB18030"));
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->title, "七里香");
    EXPECT_EQ(parsed->files[0].name, "周杰伦.wav");
    EXPECT_EQ(parsed->files[0].rawName, encode("周杰伦.wav", "GB18030"));
}

} // namespace
