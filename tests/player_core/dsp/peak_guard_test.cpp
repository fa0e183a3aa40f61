#include "player_core/dsp/peak_guard.h"

#include "allocation_counter.h"

#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include <gtest/gtest.h>

using namespace kelp_core;

namespace {

constexpr int rateHz = 44100;
constexpr size_t mostFrames = 441;

/// All that comes out of a guard, the rest included, whatever the pieces.
std::vector<double> guarded(PeakGuard &guard, const std::vector<double> &in, size_t channels, size_t piece)
{
    std::vector<double> out;
    std::vector<double> room((mostFrames + guard.lookAhead()) * channels);
    const size_t frames = in.size() / channels;
    for (size_t at = 0; at < frames; at += piece) {
        const size_t n = guard.process(in.data() + at * channels, std::min(piece, frames - at), room.data());
        out.insert(out.end(), room.begin(), room.begin() + static_cast<std::ptrdiff_t>(n * channels));
    }
    const size_t n = guard.flush(room.data());
    out.insert(out.end(), room.begin(), room.begin() + static_cast<std::ptrdiff_t>(n * channels));
    return out;
}

std::vector<double> noise(size_t samples, double peak, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> value(-peak, peak);
    std::vector<double> pcm(samples);
    for (double &sample : pcm)
        sample = value(random);
    return pcm;
}

std::vector<double> sine(double hz, double peak, size_t frames)
{
    std::vector<double> pcm(frames);
    for (size_t i = 0; i < frames; ++i)
        pcm[i] = peak * std::sin(2.0 * std::numbers::pi * hz * static_cast<double>(i) / rateHz);
    return pcm;
}

} // namespace

TEST(PeakGuard, IsBitExactWhereNothingPassesFullScale)
{
    for (const size_t channels : {1u, 2u, 6u}) {
        for (const size_t piece : {1u, 7u, 64u, 65u, 66u, 441u}) {
            PeakGuard guard(rateHz, static_cast<int>(channels), mostFrames);
            std::vector<double> in = noise(3000 * channels, 1.0, 5);
            in[100] = 1.0; // full scale itself is allowed
            in[200] = -1.0;
            EXPECT_EQ(guarded(guard, in, channels, piece), in) << channels << " channels by " << piece;
            EXPECT_EQ(guard.guardedFrames(), 0u);
            EXPECT_EQ(guard.lowestGain(), 1.0);
        }
    }
}

TEST(PeakGuard, NeverLetsASamplePassFullScale)
{
    for (const size_t piece : {1u, 13u, 441u}) {
        for (const unsigned seed : {1u, 2u, 3u}) {
            PeakGuard guard(rateHz, 2, mostFrames);
            const std::vector<double> out = guarded(guard, noise(40'000, 3.0, seed), 2, piece);
            ASSERT_EQ(out.size(), 40'000u);
            for (const double sample : out)
                ASSERT_LE(std::abs(sample), 1.0);
            EXPECT_GT(guard.guardedFrames(), 0u);
            EXPECT_LT(guard.lowestGain(), 0.5);
        }
    }
}

TEST(PeakGuard, BringsALonelyPeakDownWithoutAStepAndLetsTheRestAlone)
{
    PeakGuard guard(rateHz, 1, mostFrames);
    std::vector<double> in = sine(100, 0.5, 60'000);
    in[20'000] = 2.0;
    const std::vector<double> out = guarded(guard, in, 1, 441);
    ASSERT_EQ(out.size(), in.size());
    EXPECT_LE(out[20'000], 1.0);
    EXPECT_GT(out[20'000], 0.9);
    double before = 1.0;
    for (size_t i = 0; i < in.size(); ++i) {
        const double gain = std::abs(in[i]) > 1e-3 ? out[i] / in[i] : before;
        EXPECT_LT(std::abs(gain - before), 0.02) << "a step at " << i;
        before = gain;
    }
    EXPECT_TRUE(std::equal(in.begin(), in.begin() + 19'900, out.begin())) << "touched before the peak comes";
    // The gain comes back within some time constants of a tenth of a second, and to exactly 1.
    EXPECT_TRUE(std::equal(in.end() - 200, in.end() - 100, out.end() - 200)) << "never let go again";
    EXPECT_LT(guard.guardedFrames(), 35'000u);
}

TEST(PeakGuard, KeepsTheBalanceOfTheChannels)
{
    PeakGuard guard(rateHz, 2, mostFrames);
    std::vector<double> in;
    for (const double sample : sine(1000, 1.5, 5000)) {
        in.push_back(sample);
        in.push_back(sample / 3);
    }
    const std::vector<double> out = guarded(guard, in, 2, 100);
    for (size_t i = 0; i < out.size(); i += 2)
        EXPECT_NEAR(out[i], 3 * out[i + 1], 1e-12);
}

TEST(PeakGuard, APeakAtTheVeryStartAndTheVeryEndIsCaught)
{
    PeakGuard guard(rateHz, 1, mostFrames);
    std::vector<double> in(1000, 0.25);
    in.front() = 1.7;
    in.back() = -1.9;
    for (const double sample : guarded(guard, in, 1, 441))
        ASSERT_LE(std::abs(sample), 1.0);
}

TEST(PeakGuard, PassesOnWhatIsNotANumber)
{
    PeakGuard guard(rateHz, 1, mostFrames);
    std::vector<double> in(500, 0.5);
    in[100] = std::nan("");
    const std::vector<double> out = guarded(guard, in, 1, 50);
    ASSERT_EQ(out.size(), in.size());
    EXPECT_TRUE(std::isnan(out[100]));
    EXPECT_EQ(out[101], 0.5);
}

TEST(PeakGuard, AllocatesNothingWhileItWorks)
{
    PeakGuard guard(rateHz, 2, mostFrames);
    const std::vector<double> in = noise(mostFrames * 2, 2.0, 1);
    std::vector<double> out((mostFrames + guard.lookAhead()) * 2);
    const long before = allocationsOfThisThread();
    guard.process(in.data(), mostFrames, out.data());
    guard.flush(out.data());
    EXPECT_EQ(allocationsOfThisThread() - before, 0);
}
