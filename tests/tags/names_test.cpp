#include "tags/disc_number.h"
#include "tags/track_file_name.h"

#include <gtest/gtest.h>

TEST(DiscNumber, FromPaths)
{
    struct Case
    {
        const char *path;
        int disc;
    };
    const Case cases[] = {
        {"/m/Album/CD2/01.flac", 2},
        {"/m/Album/disc - 2/01.flac", 2},
        {"/m/Album/Disc 03/01.flac", 3},
        {"/m/Album (Disk_4)/01.flac", 4},
        {"/m/[DVD 12] x/01.flac", 12},
        {"/m/CD100/01.flac", 0},
        {"/m/CD100/CD3.flac", 3},
        {"/m/discography/01.flac", 0},
        {"/m/CD0/CD00/01.flac", 0},
        {"/m/CD1/CD2/01.flac", 1},
        {"/m/ABCD1/01.flac", 0},
        {"/m/a+cd5", 5},
        {"/m/a.cd5", 5},
        {"/m/a\\cd5", 5},
        {"/m/acd5", 0},
        {"/m/cdrom 1/a", 0},
        {"/m/Disc/1.flac", 0},
        {"cd1", 1},
        {"cd", 0},
        {"", 0},
        {"cd99", 99},
        {"xcd", 0},
        {"/m/CD - . _7", 7},
        {"/m/cd \xE9", 0},
    };
    for (const Case &c : cases)
        EXPECT_EQ(discNumberFromPath(c.path), c.disc) << c.path;
}

TEST(TrackFileName, FromNames)
{
    struct Case
    {
        const char *name;
        TrackFileName expected;
    };
    const Case cases[] = {
        {"02. Song", {"02", "Song"}},
        {"2 Song", {"02", "Song"}},
        {"12345 Song", {"", "12345 Song"}},
        {"1234 Song", {"1234", "Song"}},
        {"track_07 - Song", {"07", "Song"}},
        {"Track 7 Song", {"07", "Song"}},
        {"track 12345 Song", {"", "track 12345 Song"}},
        {"CD1-02 Title", {"02", "Title"}},
        {"Disc 1.3) Title", {"03", "Title"}},
        {"CD1 Title", {"", "CD1 Title"}},
        {"disc", {"", "disc"}},
        {"03、歌", {"03", "歌"}},
        {"03 ， ：歌", {"03", "歌"}},
        {"03：、歌", {"03", "、歌"}},
        {"07", {"", "07"}},
        {"track 07", {"", "track 07"}},
        {"01 - [x] y", {"01", "[x] y"}},
        {"01)] x", {"01", "x"}},
        {" \t Song \r\n", {"", "Song"}},
        {"", {"", ""}},
        {" \n", {"", ""}},
    };
    for (const Case &c : cases)
        EXPECT_EQ(parseTrackFileName(c.name), c.expected) << c.name;
}
