// Where the window comes up again.
#include "ui/window_place.h"

#include <gtest/gtest.h>

namespace {

const QRect left(0, 0, 1920, 1080);
const QRect right(1920, 0, 2560, 1440);

} // namespace

TEST(WindowPlace, AReachablePlaceIsKept)
{
    const QRect onRight(2400, 100, 1280, 860);
    EXPECT_EQ(reachablePlace(onRight, {left, right}), onRight);
    const QRect halfOut(-900, 40, 1280, 860);
    EXPECT_EQ(reachablePlace(halfOut, {left}), halfOut);
}

TEST(WindowPlace, AScreenThatHasGoneIsReplacedByThePrimaryOne)
{
    const QRect place = reachablePlace({2400, 100, 1280, 860}, {left});
    EXPECT_EQ(place.size(), QSize(1280, 860));
    EXPECT_TRUE(left.contains(place));
    EXPECT_LE((place.center() - left.center()).manhattanLength(), 2);
}

TEST(WindowPlace, AWindowThatIsTooLargeIsMadeToFit)
{
    const QRect small(0, 0, 1024, 768);
    EXPECT_EQ(reachablePlace({5000, 5000, 2000, 1500}, {small}), small);
}

TEST(WindowPlace, ATitleBarAboveTheScreenCannotBeReached)
{
    EXPECT_NE(reachablePlace({100, -56, 1280, 860}, {left}), QRect(100, -56, 1280, 860));
    EXPECT_EQ(reachablePlace({100, -30, 1280, 860}, {left}), QRect(100, -30, 1280, 860));
}
