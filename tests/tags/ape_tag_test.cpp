#include "tests/tags/tags_support.h"

#include <gtest/gtest.h>

using namespace tags_test;
using kelp_test::apeTag;

namespace {

AudioFileInfo infoOf(const Bytes &bytes)
{
    return tagsIn(readApeTag, bytes);
}

/// A tag with something in front, so that its footer is not at the very front of the bytes.
Bytes tagOf(const std::vector<std::pair<std::string, std::string>> &items)
{
    return joined({Bytes(10), apeTag(items)});
}

} // namespace

TEST(ApeTag, EveryKeyInBothSpellings)
{
    const AudioFileInfo upper = infoOf(tagOf({{"TITLE", "T"},
                                              {"ARTIST", "A"},
                                              {"ALBUM", "B"},
                                              {"GENRE", "G"},
                                              {"DATE", "1"},
                                              {"COMMENT", "C"},
                                              {"COMPOSER", "P"},
                                              {"WORK", "W"},
                                              {"MOVEMENT", "M"},
                                              {"MOVEMENTNUMBER", "2"},
                                              {"TRACK", "3/12"}}));
    const AudioFileInfo mixed = infoOf(tagOf({{"Title", "T"},
                                              {"Artist", "A"},
                                              {"Album", "B"},
                                              {"Genre", "G"},
                                              {"Year", "1"},
                                              {"Comment", "C"},
                                              {"Composer", "P"},
                                              {"Work", "W"},
                                              {"Movement", "M"},
                                              {"MovementNumber", "2"},
                                              {"Track", "3"}}));
    EXPECT_EQ(upper, mixed);
    EXPECT_EQ(upper.title + upper.artist + upper.album + upper.genre + upper.date + upper.comment +
                  upper.composer + upper.work + upper.movementName + upper.movementNumber,
              "TABG1CPWM2");
    EXPECT_EQ(upper.track, 3);
    EXPECT_EQ(upper.trackTotal, 0);
    EXPECT_EQ(infoOf(tagOf({{"MOVEMENTNAME", "M"}})).movementName, "M");
}

TEST(ApeTag, OtherSpellingsDoNotMatchAndLaterItemsOverwrite)
{
    EXPECT_EQ(infoOf(tagOf({{"title", "T"}, {"Date", "D"}, {"YEAR", "Y"}})), AudioFileInfo());
    EXPECT_EQ(infoOf(tagOf({{"Title", "1"}, {"TITLE", "2"}})).title, "2");
}

TEST(ApeTag, TheSizeCountsTheHeader)
{
    EXPECT_EQ(infoOf(joined({Bytes(10), apeTag({{"Title", "T"}}, false)})).title, "");
}

TEST(ApeTag, TheFooterStandsWithinTheLast4096Bytes)
{
    const Bytes tag = joined({Bytes(5000), apeTag({{"Title", "T"}})});
    EXPECT_EQ(infoOf(joined({tag, Bytes(4096 - 32)})).title, "T");
    EXPECT_EQ(infoOf(joined({tag, Bytes(4096 - 31)})).title, "");
}

TEST(ApeTag, TheLastFooterCounts)
{
    EXPECT_EQ(infoOf(joined({tagOf({{"Title", "1"}}), tagOf({{"Title", "2"}})})).title, "2");
}

TEST(ApeTag, ATagAtTheEndOfALongFileIsNotFound)
{
    EXPECT_EQ(readFileOf(joined({bytesOf("MAC "), Bytes(70000, 1), apeTag({{"Title", "T"}})})).info.title,
              "");
    EXPECT_EQ(readFileOf(joined({bytesOf("MAC "), Bytes(60000, 1), apeTag({{"Title", "T"}})})).info.title,
              "T");
}

TEST(ApeTag, AHeaderThatIsNotThereIsNoTag)
{
    Bytes bytes = tagOf({{"Title", "T"}});
    bytes[10] = 'a';
    EXPECT_EQ(infoOf(bytes).title, "");
    EXPECT_EQ(infoOf(Bytes(bytes.begin() + 11, bytes.end())).title, "") << "a negative place";
    EXPECT_EQ(infoOf(tagOf({})).title, "") << "no room for an item";
}

TEST(ApeTag, ItemsThatPassTheFooterEndTheReading)
{
    Bytes bytes = tagOf({{"Artist", "A"}, {"Title", "T"}});
    const size_t secondItem = 10 + 32 + 8 + 7 + 1;
    bytes[secondItem] = 2;
    EXPECT_EQ(infoOf(bytes).artist, "A");
    EXPECT_EQ(infoOf(bytes).title, "");
}

TEST(ApeTag, AKeyWithoutANulEndsTheReading)
{
    Bytes bytes = tagOf({{"Artist", "A"}, {"Title", ""}});
    const size_t lastNul = bytes.size() - 33;
    bytes[lastNul] = 'x';
    EXPECT_EQ(infoOf(bytes).artist, "A");
}
