// How the areas share the window's size.
#include "ui/area_plan.h"

#include <gtest/gtest.h>

TEST(AreaPlan, AtItsInitialSizeTheWindowHasRoomForAll)
{
    const AreaPlan plan = planAreas({1280, 860, 0, 240});
    EXPECT_FALSE(plan.compact);
    EXPECT_EQ(plan.leftWidth, 320);
    EXPECT_EQ(plan.sideWidth, 240);
    EXPECT_EQ(plan.padding, 16);
    EXPECT_EQ(plan.volumeWidth, 112);
    EXPECT_TRUE(plan.showsModel && plan.showsSummary && plan.showsAudioLine && plan.showsAlbum);
    EXPECT_EQ(plan.mostTitlePixels, 34);
    EXPECT_EQ(plan.timePixels, 30);
}

TEST(AreaPlan, TheSmallestWindowIsCompact)
{
    const AreaPlan plan = planAreas({1000, 640, 0, 240});
    EXPECT_TRUE(plan.compact);
    EXPECT_EQ(plan.leftWidth, 300);
    EXPECT_EQ(plan.sideWidth, 200);
    EXPECT_EQ(plan.padding, 12);
    EXPECT_EQ(plan.volumeWidth, 80);
    EXPECT_EQ(plan.mostTitlePixels, 20);
    EXPECT_FALSE(plan.showsModel);
    EXPECT_FALSE(plan.showsSummary);
    EXPECT_TRUE(plan.showsInstruments);
}

TEST(AreaPlan, NarrowGivesWayInOneOrder)
{
    // Once something has given way at a width, it stays so at every smaller one; and nothing gives way
    // before what stands ahead of it in the order.
    AreaPlan former = planAreas({1600, 860, 0, 240});
    for (int width = 1600; width >= areas::leastWidth; width -= 10) {
        const AreaPlan plan = planAreas({width, 860, 0, 240});
        EXPECT_LE(plan.showsModel, former.showsModel);
        EXPECT_LE(plan.showsSummary, former.showsSummary);
        EXPECT_LE(plan.volumeWidth, former.volumeWidth);
        EXPECT_LE(plan.leftWidth, former.leftWidth);
        EXPECT_LE(plan.sideWidth, former.sideWidth);
        EXPECT_LE(plan.buttonPadding, former.buttonPadding);
        EXPECT_TRUE(plan.showsSummary || !plan.showsModel);
        EXPECT_TRUE(plan.volumeWidth == 112 || !plan.showsSummary);
        EXPECT_TRUE(plan.sideWidth == 240 || plan.leftWidth == 300);
        former = plan;
    }
}

TEST(AreaPlan, AWideWindowStepsUp)
{
    const AreaPlan plan = planAreas({1920, 1080, 0, 240});
    EXPECT_EQ(plan.leftWidth, 360);
    EXPECT_EQ(plan.mostTitlePixels, 40);
    EXPECT_EQ(plan.timePixels, 44);
    EXPECT_EQ(planAreas({3840, 2160, 0, 240}).leftWidth, 360);
}

TEST(AreaPlan, WhatOpensTakesItsHeightFromTheBody)
{
    EXPECT_FALSE(planAreas({1280, 860, 0, 240}).compact);
    EXPECT_TRUE(planAreas({1280, 860, 238, 240}).compact);
    EXPECT_FALSE(planAreas({1000, 640, 150, 240}).showsInstruments);
}

TEST(AreaPlan, TheSideKeepsItsLimitsAndLeavesTheCentreItsRoom)
{
    EXPECT_EQ(planAreas({1600, 860, 0, 420}).sideWidth, 420);
    EXPECT_EQ(planAreas({1280, 860, 0, 200}).sideWidth, 200);
    EXPECT_EQ(planAreas({1100, 860, 0, 420}).sideWidth, 300);
}

TEST(AreaPlan, TheDiscHasItsLimits)
{
    EXPECT_EQ(discDiameter(2000, 3000), 440);
    EXPECT_EQ(discDiameter(100, 3000), 120);
    EXPECT_EQ(discDiameter(318, 720), 259);
    EXPECT_EQ(discDiameter(248, 720), 200);
}
