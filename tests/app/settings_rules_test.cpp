#include "app/settings_rules.h"

#include <gtest/gtest.h>
#include <limits>
#include <utility>

namespace {

TEST(SettingsRules, SideWidth)
{
    EXPECT_EQ(sideWidthFromStored(500), 420);
    EXPECT_EQ(sideWidthFromStored(0), 240);
    EXPECT_EQ(sideWidthFromStored(-7), 240);
    EXPECT_EQ(sideWidthFromStored(1), 200);
    EXPECT_EQ(sideWidthFromStored(100), 200);
    EXPECT_EQ(sideWidthFromStored(333), 333);
    EXPECT_EQ(sideWidthFromUser(0), 200);
    EXPECT_EQ(sideWidthFromUser(421), 420);
    EXPECT_EQ(sideWidthFromUser(std::numeric_limits<int>::min()), 200);
}

TEST(SettingsRules, AStoredSideWidthOf500Gives420AndNoughtTheUsualAnd100TheLeast)
{
    for (const auto &[stored, width] : {std::pair{500, 420}, {0, 240}, {100, 200}, {200, 200}, {420, 420}})
        EXPECT_EQ(sideWidthFromStored(stored), width) << stored;
}

TEST(SettingsRules, ADenoiseTierOfSevenGivesThree)
{
    EXPECT_EQ(clampedDenoiseTier(7), 3);
}

TEST(SettingsRules, DenoiseTierAndHarmonics)
{
    EXPECT_EQ(clampedDenoiseTier(7), 3);
    EXPECT_EQ(clampedDenoiseTier(-1), 0);
    EXPECT_EQ(clampedDenoiseTier(2), 2);
    EXPECT_FALSE(harmonicsKept(0, true));
    EXPECT_TRUE(harmonicsKept(1, true));
    EXPECT_FALSE(harmonicsKept(3, false));
}

TEST(SettingsRules, TheFormerPlayOrderBecomesTwoAxes)
{
    const int expected[4][2] = {{0, 0}, {1, 0}, {0, 1}, {0, 2}};
    for (int former = 0; former < 4; ++former) {
        const auto axes = migratedPlayOrder({former, false, false});
        ASSERT_TRUE(axes);
        EXPECT_EQ(axes->order, expected[former][0]);
        EXPECT_EQ(axes->repeat, expected[former][1]);
    }
}

TEST(SettingsRules, OtherPlayOrdersAndNewerKeysAreLeftAlone)
{
    EXPECT_FALSE(migratedPlayOrder({-1, false, false}));
    EXPECT_FALSE(migratedPlayOrder({4, false, false}));
    EXPECT_FALSE(migratedPlayOrder({1, true, false}));
    EXPECT_FALSE(migratedPlayOrder({1, false, true}));
    EXPECT_FALSE(migratedPlayOrder({1, true, true}));
}

} // namespace
