// The text of SACD images in each of their character sets.

#include "player_core/source/sacd_text.h"

#include "player_core/source/text_encoding.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using namespace kelp_core;

struct SetCase
{
    int set;
    const char *bytes;
    const char *utf8;
};

constexpr std::array sets{
    SetCase{1, "Fidelio", "Fidelio"},
    SetCase{2, "Caf\xE9 \xC4\xFC", "Café Äü"},
    SetCase{3, "\x89\xB9\x8Ay \xB6\xC0", "音楽 ｶﾀ"}, // with half-width kana
    SetCase{4, "\xC7\xD1\xB1\xB9", "한국"},
    SetCase{5, "\xD2\xF4\xC0\xD6", "音乐"},
    SetCase{6, "\xAD\xB5\xBC\xD6", "音樂"},
    SetCase{7, "\x1B$ACaf\xE9", "Café"},
    SetCase{7, "\x1B-A\xC4 b", "Ä b"},
};

TEST(SacdText, EveryCharacterSetBecomesUtf8)
{
    for (const SetCase &one : sets)
        EXPECT_EQ(sacdTextToUtf8(one.bytes, one.set), one.utf8) << "set " << one.set;
}

TEST(SacdText, WhatIsNotValidInItsSetIsGuessedAt)
{
    EXPECT_EQ(sacdTextToUtf8("Caf\xC3\xA9", 1), "Café"); // says ASCII, is UTF-8
    EXPECT_EQ(sacdTextToUtf8("Caf\xE9", 3),
              "Café"); // says Shift-JIS, which it would end within a character of
    EXPECT_EQ(sacdTextToUtf8("plain", 0), "plain");
    EXPECT_EQ(sacdTextToUtf8("plain", 200), "plain");
    EXPECT_TRUE(isUtf8(sacdTextToUtf8("\xFF\xFE\xFD\x80", 3)));
}

TEST(SacdText, ControlCharactersBecomeBlanks)
{
    EXPECT_EQ(sacdTextToUtf8("  one\ttwo\nthree\x7F ", 2), "one two three");
    EXPECT_EQ(sacdTextToUtf8("", 2), "");
    EXPECT_EQ(sacdTextToUtf8("\x1B", 7), "");
}

std::vector<uint8_t> sectorOf(const std::string &name)
{
    std::vector<uint8_t> sector(2048, 0);
    std::copy(name.begin(), name.end(), sector.begin());
    return sector;
}

TEST(SacdText, DiscTextStandsAtItsPositions)
{
    auto sector = sectorOf("SACDText");
    const std::string album = "Album", disc = "Disc";
    sector[17] = 100;
    std::copy(album.begin(), album.end(), sector.begin() + 100);
    sector[16 + 2 * 8] = 0x01;
    sector[16 + 2 * 8 + 1] = 0x00;
    std::copy(disc.begin(), disc.end(), sector.begin() + 256);
    sector[16 + 2 * 9] = 0xFF; // behind the sector
    const SacdDiscText text = readSacdDiscText(sector, 2);
    EXPECT_EQ(text.albumTitle, "Album");
    EXPECT_EQ(text.discTitle, "Disc");
    EXPECT_EQ(text.albumArtist, "");
    EXPECT_EQ(text.discArtist, "");
    EXPECT_EQ(readSacdDiscText(sectorOf("SACDTEXT"), 2).albumTitle, "");
    EXPECT_EQ(readSacdDiscText({}, 2).albumTitle, "");
}

TEST(SacdText, TrackTextsHoldItemsOfSeveralTypes)
{
    auto sector = sectorOf("SACDTTxt");
    const std::string items("\3\0\0\0\4 composer\0\1 Title\0\0\0\2 Someone\0", 34);
    sector[9] = 64;
    std::copy(items.begin(), items.end(), sector.begin() + 64);
    const std::string phonetic("\1\0\0\0\x81 Sound\0", 12);
    sector[13] = 128; // of the third track; the second has none
    std::copy(phonetic.begin(), phonetic.end(), sector.begin() + 128);
    const auto texts = readSacdTrackTexts(sector, 3, 2);
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[0].title, "Title");
    EXPECT_EQ(texts[0].performer, "Someone");
    EXPECT_EQ(texts[1].title, "");
    EXPECT_EQ(texts[2].title, "Sound");
}

TEST(SacdText, DamagedTrackTextsStayWithinTheirTable)
{
    auto sector = sectorOf("SACDTTxt");
    std::fill(sector.begin() + 8, sector.end(), uint8_t{0xFF});
    EXPECT_EQ(readSacdTrackTexts(sector, 255, 3).size(), 255U);
    // A count of 255 items whose last text has no end.
    sector = sectorOf("SACDTTxt");
    sector[8] = 0x07;
    sector[9] = 0xF0;
    std::fill(sector.begin() + 0x7F0, sector.end(), uint8_t{'A'});
    EXPECT_EQ(readSacdTrackTexts(sector, 1, 2)[0].title, "");
    EXPECT_TRUE(readSacdTrackTexts(std::span(sector).first(9), 4, 2).empty());
    EXPECT_TRUE(readSacdTrackTexts({}, 4, 2).empty());
}

} // namespace
