#include "player_core/dsp/meters.h"

#include <array>
#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

using namespace kelp_core;

TEST(LevelMeter, TakesThePeaksOfTheFirstTwoChannelsAndResets)
{
    LevelMeter meter;
    const std::vector<double> pcm{0.5, -0.25, 1.0, -0.1, 0.1, 1.0};
    meter.add(pcm.data(), 2, 3);
    EXPECT_EQ(meter.take(), (std::array<double, 2>{-6.02, -12.04}));
    EXPECT_EQ(meter.take(), (std::array<double, 2>{-120.0, -120.0}));
}

TEST(LevelMeter, MonoGivesBothSides)
{
    LevelMeter meter;
    const std::vector<double> pcm{0.1, -0.125};
    meter.add(pcm.data(), 2, 1);
    EXPECT_EQ(meter.take(), (std::array<double, 2>{-18.06, -18.06}));
}

TEST(LevelMeter, WritesItsLine)
{
    LevelMeter meter;
    EXPECT_EQ(meter.line(), "LVL -120.00 -120.00");
    const std::vector<double> pcm{1.0, 0.5};
    meter.add(pcm.data(), 1, 2);
    EXPECT_EQ(meter.line(), "LVL 0.00 -6.02");
    const std::vector<double> over{1.5, 1e-7};
    meter.add(over.data(), 1, 2);
    EXPECT_EQ(meter.line(), "LVL 3.52 -120.00");
    const std::vector<double> broken{std::numeric_limits<double>::infinity(), std::nan("")};
    meter.add(broken.data(), 1, 2);
    EXPECT_EQ(meter.line(), "LVL 60.00 -120.00");
}
