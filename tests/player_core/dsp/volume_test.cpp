#include "player_core/dsp/volume.h"

#include "player_core/dsp/fixed_text.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

using namespace kelp_core;

TEST(Volume, CubicLawWithExactEnds)
{
    EXPECT_EQ(gainForVolume(100), 1.0);
    EXPECT_EQ(gainForVolume(0), 0.0);
    EXPECT_EQ(gainForVolume(50), 0.125);
    EXPECT_EQ(gainForVolume(-5), 0.0);
    EXPECT_EQ(gainForVolume(101), 1.0);
    for (int volume = 1; volume <= 100; ++volume)
        EXPECT_GT(gainForVolume(volume), gainForVolume(volume - 1));
}

TEST(Volume, DecibelsHaveHundredthsAndAFloor)
{
    EXPECT_EQ(decibels(1.0), 0.0);
    EXPECT_FALSE(std::signbit(decibels(1.0 - 1e-9)));
    EXPECT_DOUBLE_EQ(decibels(0.125), -18.06);
    EXPECT_DOUBLE_EQ(decibels(2.0), 6.02);
    EXPECT_EQ(decibels(0.0), -120.0);
    EXPECT_EQ(decibels(-1.0), -120.0);
    EXPECT_EQ(decibels(1e-9), -120.0);
    EXPECT_EQ(decibels(std::nan("")), -120.0);
}

TEST(Volume, FixedTextHasAPointAndNoMinusZero)
{
    EXPECT_EQ(fixedText(-6.0206, 2), "-6.02");
    EXPECT_EQ(fixedText(-0.001, 2), "0.00");
    EXPECT_EQ(fixedText(0.0, 1), "0.0");
    EXPECT_EQ(fixedText(1234.56, 0), "1235");
}

TEST(GainRamp, UnityLeavesSamplesAlone)
{
    GainRamp ramp(48000);
    std::vector<double> pcm{0.1, -0.0, 1.0, std::nextafter(1.0, 2.0)};
    const std::vector<double> before = pcm;
    ramp.apply(pcm.data(), 2, 2);
    EXPECT_EQ(pcm, before);
    EXPECT_TRUE(std::signbit(pcm[1]));
    EXPECT_TRUE(ramp.isUnity());
}

TEST(GainRamp, ReachesItsTargetInFiveMillisecondsWithoutAStep)
{
    GainRamp ramp(48000);
    ramp.setTarget(0.125);
    EXPECT_FALSE(ramp.settled());
    std::vector<double> pcm(480 * 2, 1.0);
    // Calls of odd lengths give the same ramp as one call.
    ramp.apply(pcm.data(), 7, 2);
    ramp.apply(pcm.data() + 14, 473, 2);
    for (size_t frame = 1; frame < 480; ++frame) {
        EXPECT_LE(pcm[2 * frame], pcm[2 * frame - 2]);
        EXPECT_LT(pcm[2 * frame - 2] - pcm[2 * frame], 0.875 / 240 * 1.001);
        EXPECT_EQ(pcm[2 * frame], pcm[2 * frame + 1]);
    }
    EXPECT_GT(pcm[2 * 238], 0.125);
    EXPECT_EQ(pcm[2 * 240], 0.125);
    EXPECT_TRUE(ramp.settled());
    EXPECT_FALSE(ramp.isUnity());
}

TEST(GainRamp, TurnsRoundOnItsWay)
{
    GainRamp ramp(44100, 0.5);
    ramp.setTarget(1.0);
    std::vector<double> pcm(1000, 1.0);
    ramp.apply(pcm.data(), 100, 1);
    ramp.setTarget(0.0);
    ramp.apply(pcm.data() + 100, 900, 1);
    for (size_t i = 1; i < 1000; ++i)
        EXPECT_LT(std::abs(pcm[i] - pcm[i - 1]), 0.01);
    EXPECT_EQ(pcm[999], 0.0);
    ramp.jump(1.0);
    EXPECT_TRUE(ramp.isUnity());
}
