#include "engine/line_prefix.h"

#include "engine/line_words.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(LinePrefix, PlayerPrefixIsStrippedOnce)
{
    EXPECT_EQ(stripPlayerPrefix(u"[player] PG 1 2"), u"PG 1 2");
    EXPECT_EQ(stripPlayerPrefix(u"[player] [player] x"), u"[player] x");
    EXPECT_EQ(stripPlayerPrefix(u"x [player] y"), u"x [player] y");
    EXPECT_EQ(stripPlayerPrefix(u"[player]x"), u"[player]x");
    EXPECT_EQ(stripPlayerPrefix(u""), u"");
}

TEST(LinePrefix, EmbeddedAtTheStartBehindABlankAndBehindABracket)
{
    EXPECT_EQ(embeddedRest(u"LVL -1 -2", "LVL "_L1), u"-1 -2");
    EXPECT_EQ(embeddedRest(u"12:00:01.250 LVL -1 -2", "LVL "_L1), u"-1 -2");
    EXPECT_EQ(embeddedRest(u"[12:00:01]LVL -1 -2", "LVL "_L1), u"-1 -2");
}

TEST(LinePrefix, BehindALetterOrATabItIsNoPrefix)
{
    EXPECT_FALSE(embeddedRest(u"xLVL -1 -2", "LVL "_L1));
    EXPECT_FALSE(embeddedRest(u"12:00:01\tLVL -1 -2", "LVL "_L1));
    EXPECT_FALSE(embeddedRest(u"nothing here", "LVL "_L1));
}

TEST(LinePrefix, OnlyTheFirstOccurrenceCounts)
{
    EXPECT_FALSE(embeddedRest(u"xLVL LVL -1 -2", "LVL "_L1));
    EXPECT_EQ(embeddedRest(u"LVL xLVL ", "LVL "_L1), u"xLVL ");
}

TEST(LineWords, CutsAtBlanksAndLineEnds)
{
    const LineWords words = wordsOf(u"  a  b\r\nc ");
    ASSERT_EQ(words.size(), 3);
    EXPECT_EQ(words[0], u"a");
    EXPECT_EQ(words[1], u"b");
    EXPECT_EQ(words[2], u"c");
    EXPECT_TRUE(wordsOf(u" \r\n ").isEmpty());
}

TEST(LineWords, LooksAtNoMoreThanAskedFor)
{
    EXPECT_EQ(wordsOf(u"a b c d", 2).size(), 2);
    EXPECT_EQ(wordsOf(u"a", 2).size(), 1);
    EXPECT_TRUE(wordsOf(u"a", 0).isEmpty());
}

TEST(LineWords, NumbersParseWholeOrNotAtAll)
{
    EXPECT_EQ(finiteNumber(u"-3.25"), -3.25);
    EXPECT_EQ(finiteNumber(u"1e3"), 1000.);
    for (const QStringView bad : {u"", u"3.25x", u"nan", u"inf", u"-inf", u"1e999", u"1,5"})
        EXPECT_FALSE(finiteNumber(bad)) << bad.toUtf8().toStdString();
    EXPECT_EQ(wholeNumber(u"-12"), -12);
    for (const QStringView bad : {u"", u"12.0", u"0x10", u"99999999999", u"1k"})
        EXPECT_FALSE(wholeNumber(bad)) << bad.toUtf8().toStdString();
}

TEST(LineWords, LeadingDigits)
{
    EXPECT_EQ(leadingDigits(u"24-bit"), 24);
    EXPECT_EQ(leadingDigits(u"24"), 24);
    EXPECT_FALSE(leadingDigits(u"-24"));
    EXPECT_FALSE(leadingDigits(u""));
    EXPECT_FALSE(leadingDigits(u"99999999999 bit"));
}

} // namespace
