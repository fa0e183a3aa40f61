#include "playback/former_track.h"

#include <gtest/gtest.h>

namespace {

/// Of a session that announces its tracks; the one of 100 seconds was left behind its 98th.
FormerTrack leftNearItsEnd()
{
    FormerTrack former;
    former.announced();
    former.left(98., 100.);
    return former;
}

} // namespace

TEST(FormerTrack, HoldsWhatIsToldBeforeTheAnnouncement)
{
    FormerTrack former = leftNearItsEnd();
    EXPECT_TRUE(former.holdsPosition(98.1, 100.));
    EXPECT_TRUE(former.holdsEnd());
    EXPECT_TRUE(former.holdsPosition(99.9, 100.)) << "however long the next one takes to open";
    former.announced();
    EXPECT_FALSE(former.holdsEnd());
    EXPECT_FALSE(former.holdsPosition(98.2, 100.));
}

TEST(FormerTrack, ANewBeginningIsTheNextTracksEvenUnannounced)
{
    FormerTrack former = leftNearItsEnd();
    EXPECT_FALSE(former.holdsPosition(0.1, 100.));
    EXPECT_FALSE(former.holdsEnd());
    EXPECT_FALSE(former.holdsPosition(98.1, 100.)) << "from then on all are";
}

TEST(FormerTrack, AnotherLengthIsTheNextTracks)
{
    FormerTrack former = leftNearItsEnd();
    EXPECT_FALSE(former.holdsPosition(98.1, 200.));
}

TEST(FormerTrack, ASessionThatAnnouncesNothingIsTakenAtItsWord)
{
    FormerTrack former;
    former.left(98., 100.);
    EXPECT_FALSE(former.holdsEnd());
    EXPECT_FALSE(former.holdsPosition(98.1, 100.));
}

TEST(FormerTrack, OneThatHasEndedIsNotWaitedFor)
{
    FormerTrack former = leftNearItsEnd();
    former.forget();
    EXPECT_FALSE(former.holdsEnd());
    EXPECT_FALSE(former.holdsPosition(98.1, 100.));
}
