#include "player_core/session/sheet_successor.h"

#include <gtest/gtest.h>

namespace kelp_core {
namespace {

constexpr auto listing = "CUE\tAlbum\tSomeone\n"
                         "TRACK\t1\t0\t10\tOne\t\t/a/album.flac\n"
                         "TRACK\t2\t10\t20\tTwo\t\t/a/album.flac\n"
                         "WARN something\n"
                         "TRACK\t4\t0\t20\tFour\t\t/a/other.flac\n";

bool same(const std::string &a, const std::string &b)
{
    return a == b;
}

TEST(SheetSuccessor, TheSheetsFileMeansItsNextTrack)
{
    EXPECT_EQ(sheetSuccessor(listing, 1, "/a/album.flac", same), 2);
}

TEST(SheetSuccessor, TheNextTrackMayStandInAnotherFileAndSkipANumber)
{
    EXPECT_EQ(sheetSuccessor(listing, 2, "/a/other.flac", same), 4);
}

TEST(SheetSuccessor, AnyOtherFileIsMeantAsItStands)
{
    EXPECT_EQ(sheetSuccessor(listing, 1, "/a/other.flac", same), std::nullopt);
    EXPECT_EQ(sheetSuccessor(listing, 1, "/b/next.flac", same), std::nullopt);
}

TEST(SheetSuccessor, NothingFollowsTheLastTrack)
{
    EXPECT_EQ(sheetSuccessor(listing, 4, "/a/other.flac", same), std::nullopt);
}

TEST(SheetSuccessor, AnErrorTextListsNothing)
{
    EXPECT_EQ(sheetSuccessor("cannot open: no such file\n", 1, "/a/album.flac", same), std::nullopt);
    EXPECT_EQ(sheetSuccessor("TRACK\tx\t0\t1\tT\t\t/a/album.flac\n", 0, "/a/album.flac", same), std::nullopt);
    EXPECT_EQ(sheetSuccessor("", 1, "/a/album.flac", same), std::nullopt);
}

TEST(ImageSuccessor, TheSameImageMeansItsNextTrack)
{
    EXPECT_EQ(imageSuccessor({1, 2, 3}, true, 1), 2);
    EXPECT_EQ(imageSuccessor({12, 14}, true, 12), 14);
}

TEST(ImageSuccessor, BehindTheLastTrackItBeginsAnew)
{
    EXPECT_EQ(imageSuccessor({1, 2, 3}, true, 3), 1);
}

TEST(ImageSuccessor, AnotherImageBeginsWithItsFirstTrack)
{
    EXPECT_EQ(imageSuccessor({5, 6}, false, 5), 5);
    EXPECT_EQ(imageSuccessor({5, 6}, true, 0), 5);
}

TEST(ImageSuccessor, WhatIsNoImageHasNone)
{
    EXPECT_EQ(imageSuccessor({}, true, 1), std::nullopt);
}

} // namespace
} // namespace kelp_core
