#include "playback/playlist_entry.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(PlaylistEntry, APlainRowsKeyEndsInEmptyFieldsAndZero)
{
    PlaylistEntry entry;
    entry.path = u"/m/a.flac"_s;
    EXPECT_EQ(rowKey(entry), u"/m/a.flac\u001f\u001f\u001f0"_s);
    EXPECT_FALSE(entry.isContainerTrack());
}

TEST(PlaylistEntry, TracksOfASheetDifferByTheirNumber)
{
    PlaylistEntry entry{{}, u"/m/a.flac"_s, u"/m/a.cue"_s, {}, 3, 0., 0.};
    EXPECT_EQ(rowKey(entry), u"/m/a.flac\u001f/m/a.cue\u001f\u001f3"_s);
    EXPECT_EQ(rowKey(entry, 4), u"/m/a.flac\u001f/m/a.cue\u001f\u001f4"_s);
    EXPECT_TRUE(entry.isContainerTrack());
}

TEST(PlaylistEntry, TitlesAndTimesAreNoPartOfTheIdentity)
{
    PlaylistEntry entry;
    entry.path = u"x"_s;
    PlaylistEntry other = entry;
    other.text = u"another title"_s;
    other.endSec = 12.;
    EXPECT_EQ(rowKey(entry), rowKey(other));
}
