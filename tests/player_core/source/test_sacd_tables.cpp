// The tables of SACD images: what is listed, which area is played, and what a damaged copy costs.

#include "player_core/source/sacd_toc.h"

#include "tests/support/sacd_maker.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace kelp_test;
using kelp_core::readSacdImage;
using kelp_core::SacdOutcome;

SacdOutcome readBytes(const std::vector<uint8_t> &bytes)
{
    kelp_core::MemoryInput input(bytes);
    return readSacdImage(input);
}

void wipe(SacdImageMade &image, int sector, int count = 1)
{
    for (int i = 0; i < count; ++i)
        std::fill_n(image.bytes.begin() + static_cast<std::ptrdiff_t>(image.at(sector + i)), 2048,
                    uint8_t{0});
}

SacdRecipe stereoRecipe(int sectorBytes = 2048)
{
    return {.sectorBytes = sectorBytes, .areas = {plainArea(SacdForm::plain14, 3, 3)}};
}

SacdAreaRecipe multiArea()
{
    return plainArea(SacdForm::dstStored, 2, 3, 6, 7, SignalShape::noise, "Multi");
}

TEST(SacdTables, BothSizesOfSectorsAreRead)
{
    for (const int sectorBytes : {2048, 2064}) {
        const SacdOutcome outcome = readBytes(makeSacd(stereoRecipe(sectorBytes)).bytes);
        ASSERT_TRUE(outcome.image) << outcome.error;
        EXPECT_EQ(outcome.image->storedBytes, sectorBytes);
        EXPECT_EQ(outcome.image->title, "Album");
        EXPECT_TRUE(outcome.image->warnings.empty());
        const kelp_core::SacdArea &area = outcome.image->area;
        EXPECT_FALSE(area.multichannel);
        EXPECT_FALSE(area.dst);
        EXPECT_EQ(area.channels, 2);
        EXPECT_EQ(area.rateHz, 2822400);
        ASSERT_EQ(area.tracks.size(), 3U);
        EXPECT_EQ(area.tracks[1].number, 2);
        EXPECT_EQ(area.tracks[1].startFrame, 3);
        EXPECT_EQ(area.tracks[1].frames, 3);
        EXPECT_EQ(area.tracks[1].title, "Track 2");
        EXPECT_EQ(area.startFrame(), 0);
        EXPECT_EQ(area.endFrame(), 9);
        EXPECT_EQ(area.find(4), nullptr);
    }
}

TEST(SacdTables, StereoIsPlayedWhereThereIsOne)
{
    SacdRecipe recipe = stereoRecipe();
    EXPECT_EQ(readBytes(makeSacd(recipe).bytes).image->choice,
              "The SACD image holds a stereo area only, which is played.");
    recipe.areas.insert(recipe.areas.begin(), multiArea());
    const SacdOutcome both = readBytes(makeSacd(recipe).bytes);
    ASSERT_TRUE(both.image) << both.error;
    EXPECT_FALSE(both.image->area.multichannel);
    EXPECT_EQ(both.image->choice,
              "The SACD image holds a stereo area and a multichannel area of 6 channels, so "
              "the stereo area is played.");
    recipe.areas.pop_back();
    const SacdOutcome multi = readBytes(makeSacd(recipe).bytes);
    ASSERT_TRUE(multi.image) << multi.error;
    EXPECT_TRUE(multi.image->area.multichannel);
    EXPECT_TRUE(multi.image->area.dst);
    EXPECT_EQ(multi.image->area.channels, 6);
    EXPECT_EQ(multi.image->choice,
              "The SACD image holds no stereo area, so its multichannel area of 6 channels is played.");
}

TEST(SacdTables, AStereoAreaThatCannotBeReadGivesWayToTheOther)
{
    SacdRecipe recipe = stereoRecipe();
    recipe.areas.push_back(multiArea());
    SacdImageMade image = makeSacd(recipe);
    wipe(image, image.areas[0].table);
    wipe(image, image.areas[0].copy);
    const SacdOutcome outcome = readBytes(image.bytes);
    ASSERT_TRUE(outcome.image) << outcome.error;
    EXPECT_TRUE(outcome.image->area.multichannel);
    EXPECT_EQ(outcome.image->choice,
              "The stereo area of the SACD image cannot be read (the stereo table is damaged: its name is "
              "missing), so its multichannel area of 6 channels is played.");
}

TEST(SacdTables, TitlesComeInTheDiscsCharacterSet)
{
    SacdRecipe recipe = stereoRecipe();
    recipe.characterSet = 3;
    recipe.title = "管弦楽";
    recipe.areas[0].tracks[0].title = "第一楽章";
    recipe.areas[0].tracks[1].title = "";
    recipe.areas[0].tracks[2].title = "ｶﾅ 漢字";
    recipe.areas[0].tracks[2].performer = "演奏";
    const SacdOutcome outcome = readBytes(makeSacd(recipe).bytes);
    ASSERT_TRUE(outcome.image) << outcome.error;
    EXPECT_EQ(outcome.image->title, "管弦楽");
    EXPECT_EQ(outcome.image->area.tracks[0].title, "第一楽章");
    EXPECT_EQ(outcome.image->area.tracks[1].title, "");
    EXPECT_EQ(outcome.image->area.tracks[2].title, "ｶﾅ 漢字");
    EXPECT_EQ(outcome.image->area.tracks[2].performer, "演奏");
}

TEST(SacdTables, NumbersCountOnOverTheDiscsOfASet)
{
    SacdRecipe recipe = stereoRecipe();
    recipe.areas[0].numberOffset = 11;
    const SacdOutcome outcome = readBytes(makeSacd(recipe).bytes);
    ASSERT_TRUE(outcome.image) << outcome.error;
    EXPECT_EQ(outcome.image->area.tracks.front().number, 12);
    EXPECT_EQ(outcome.image->area.tracks.front().title, "Track 1");
}

/// What is destroyed in an image whose listing must stay the same.
struct Loss
{
    const char *name;
    void (*destroy)(SacdImageMade &image);
};

TEST(SacdTables, ADamagedCopyCostsNothing)
{
    static constexpr std::array losses{
        Loss{"first master table", [](SacdImageMade &image) { wipe(image, 510, 10); }},
        Loss{"first two master tables", [](SacdImageMade &image) { wipe(image, 510, 20); }},
        Loss{"numbers of the first master table",
             [](SacdImageMade &image) {
                 std::fill_n(image.bytes.begin() + static_cast<std::ptrdiff_t>(image.at(510, 64)), 16,
                             uint8_t{0xFF});
             }},
        Loss{"area table", [](SacdImageMade &image) { wipe(image, image.areas[0].table); }},
        Loss{"list of times", [](SacdImageMade &image) { wipe(image, image.areas[0].table + 2); }},
        Loss{"list of sectors", [](SacdImageMade &image) { wipe(image, image.areas[0].table + 1); }},
        Loss{"copy of the area table",
             [](SacdImageMade &image) { wipe(image, image.areas[0].copy, image.areas[0].tableSectors); }},
        Loss{"both lists of sectors",
             [](SacdImageMade &image) {
                 wipe(image, image.areas[0].table + 1);
                 wipe(image, image.areas[0].copy + 1);
             }},
        Loss{"both lists of times",
             [](SacdImageMade &image) {
                 wipe(image, image.areas[0].table + 2);
                 wipe(image, image.areas[0].copy + 2);
             }},
        Loss{"sizes of the tables",
             [](SacdImageMade &image) {
                 image.bytes[image.at(image.areas[0].table, 10)] = 0;
                 image.bytes[image.at(image.areas[0].table, 11)] = 0;
             }},
    };
    for (const int sectorBytes : {2048, 2064}) {
        for (const Loss &loss : losses) {
            SacdImageMade image = makeSacd(stereoRecipe(sectorBytes));
            loss.destroy(image);
            const SacdOutcome outcome = readBytes(image.bytes);
            ASSERT_TRUE(outcome.image) << loss.name << ": " << outcome.error;
            EXPECT_EQ(outcome.image->title, "Album") << loss.name;
            ASSERT_EQ(outcome.image->area.tracks.size(), 3U) << loss.name;
            for (int i = 0; i < 3; ++i) {
                const kelp_core::SacdTrack &track = outcome.image->area.tracks[static_cast<size_t>(i)];
                EXPECT_EQ(track.startFrame, 3 * i) << loss.name;
                EXPECT_EQ(track.frames, 3) << loss.name;
                EXPECT_EQ(track.title, "Track " + std::to_string(i + 1)) << loss.name;
            }
        }
    }
}

TEST(SacdTables, WhatIsNoImageIsNamed)
{
    EXPECT_EQ(readBytes({}).error, "the file is empty");
    EXPECT_EQ(readBytes(std::vector<uint8_t>(600 * 2048, 0)).error, "this is not an SACD image");
    SacdImageMade image = makeSacd(stereoRecipe());
    for (const int at : {510, 520, 530})
        std::fill_n(image.bytes.begin() + static_cast<std::ptrdiff_t>(image.at(at, 64)), 16, uint8_t{0});
    EXPECT_EQ(readBytes(image.bytes).error, "the SACD image is damaged: its master table names no area");
    image = makeSacd(stereoRecipe());
    wipe(image, image.areas[0].table);
    wipe(image, image.areas[0].copy);
    EXPECT_EQ(readBytes(image.bytes).error,
              "the SACD image is damaged: the stereo table is damaged: its name is missing");
}

TEST(SacdTables, ATrackBehindTheEndIsLeftOutWithAWarning)
{
    SacdImageMade image = makeSacd(stereoRecipe());
    // The third track's first sector, in both copies.
    for (const int table : {image.areas[0].table, image.areas[0].copy})
        image.bytes[image.at(table + 1, 8 + 4 * 2)] = 0x10;
    // The second track's time, which then is none.
    for (const int table : {image.areas[0].table, image.areas[0].copy})
        image.bytes[image.at(table + 2, 8 + 4 * 1 + 1)] = 61;
    const SacdOutcome outcome = readBytes(image.bytes);
    ASSERT_TRUE(outcome.image) << outcome.error;
    EXPECT_EQ(outcome.image->area.tracks.size(), 1U);
    EXPECT_EQ(outcome.image->warnings,
              (std::vector<std::string>{"the times of track 2 make no sense",
                                        "track 3 lies behind the end of the image"}));
}

TEST(SacdTables, HugeCountsAreBounded)
{
    SacdImageMade image = makeSacd(stereoRecipe());
    for (const int table : {image.areas[0].table, image.areas[0].copy}) {
        image.bytes[image.at(table, 10)] = 0xFF; // sectors of the table
        image.bytes[image.at(table, 11)] = 0xFF;
        image.bytes[image.at(table, 68)] = 0xFF; // number offset
        image.bytes[image.at(table, 69)] = 0xFF; // tracks
        image.bytes[image.at(table, 80)] = 0xFF; // text channels
        std::fill_n(image.bytes.begin() + static_cast<std::ptrdiff_t>(image.at(table, 76)), 4, uint8_t{0xFF});
    }
    const SacdOutcome outcome = readBytes(image.bytes);
    ASSERT_TRUE(outcome.image) << outcome.error;
    EXPECT_EQ(outcome.image->area.tracks.size(), 3U);
    EXPECT_EQ(outcome.image->warnings.size(), 252U);
    EXPECT_EQ(outcome.image->area.lastSector, static_cast<int64_t>(image.bytes.size() / 2048 - 1));
}

} // namespace
