#include "player_core/dsp/meters.h"

#include "telemetry_lines.h"

#include <cmath>
#include <numbers>
#include <vector>

#include <gtest/gtest.h>

using namespace kelp_core;

TEST(WaveformBuckets, IsSilentUntilAStretchIsThere)
{
    WaveformBuckets buckets(44100);
    const std::vector<double> pcm(128 * 14, 0.0);
    EXPECT_EQ(buckets.line(), "");
    buckets.add(pcm.data(), pcm.size() - 1, 1);
    EXPECT_EQ(buckets.line(), "");
    buckets.add(pcm.data(), 1, 1);
    EXPECT_NE(buckets.line(), "");
    buckets.reset();
    EXPECT_EQ(buckets.line(), "");
}

TEST(WaveformBuckets, KeepsTheMinimumAndMaximumOfEachBucketInTheirOrder)
{
    constexpr size_t perBucket = 14;
    WaveformBuckets buckets(44100);
    std::vector<double> pcm;
    for (int i = 0; i < 500; ++i) // an older stretch that must not be seen
        pcm.insert(pcm.end(), {0.9, -0.9});
    for (size_t frame = 0; frame < perBucket * 128; ++frame) {
        const double slope = static_cast<double>(frame / perBucket) / 128.0;
        pcm.push_back(frame % 2 ? slope : -slope);
        pcm.push_back(-0.5);
    }
    for (size_t at = 0; at < pcm.size() / 2; at += 101)
        buckets.add(pcm.data() + 2 * at, std::min<size_t>(101, pcm.size() / 2 - at), 2);
    const auto frame = parseWvf(buckets.line());
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->rateHz, 44100);
    ASSERT_EQ(frame->channels.size(), 2u);
    for (size_t i = 0; i < 128; ++i) {
        const double slope = static_cast<double>(i) / 128.0;
        EXPECT_NEAR(frame->channels[0].low[i], -slope, 0.005);
        EXPECT_NEAR(frame->channels[0].high[i], slope, 0.005);
        EXPECT_NEAR(frame->channels[1].low[i], -0.5, 0.005);
        EXPECT_NEAR(frame->channels[1].high[i], -0.5, 0.005);
    }
}

TEST(WaveformBuckets, MonoHasOneBlockAndBadSamplesStayInRange)
{
    WaveformBuckets buckets(192000);
    std::vector<double> pcm(20000, 7.0);
    pcm.back() = -7.0;
    buckets.add(pcm.data(), pcm.size(), 1);
    const auto frame = parseWvf(buckets.line());
    ASSERT_TRUE(frame);
    ASSERT_EQ(frame->channels.size(), 1u);
    EXPECT_EQ(frame->channels[0].high[0], 1.0);
    EXPECT_EQ(frame->channels[0].low[127], -1.0);
    pcm.assign(20000, std::nan(""));
    buckets.add(pcm.data(), pcm.size(), 1);
    const auto silent = parseWvf(buckets.line());
    ASSERT_TRUE(silent);
    EXPECT_NEAR(silent->channels[0].low[64], 0.0, 0.005);
}

TEST(WaveformBuckets, LowRatesStillFillABucket)
{
    WaveformBuckets buckets(8000);
    const std::vector<double> pcm(1000, 0.25);
    buckets.add(pcm.data(), pcm.size(), 1);
    EXPECT_TRUE(parseWvf(buckets.line()));
}
