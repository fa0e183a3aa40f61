#include "player_core/dsp/speed_stage.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <vector>

#include <fftw3.h>
#include <gtest/gtest.h>

using namespace kelp_core;

namespace {

std::vector<double> tone(double hz, int rateHz, size_t frames, int channels)
{
    std::vector<double> pcm;
    for (size_t i = 0; i < frames; ++i)
        for (int c = 0; c < channels; ++c)
            pcm.push_back(0.5 * std::sin(2.0 * std::numbers::pi * hz * static_cast<double>(i) / rateHz));
    return pcm;
}

std::vector<double> sped(const SpeedPlan &plan, const std::vector<double> &in, int rateHz, int channels,
                         size_t piece = 4096)
{
    SpeedStage stage(plan, ResampleQuality::standard, rateHz, channels);
    std::vector<double> out;
    const size_t width = static_cast<size_t>(channels);
    const size_t frames = in.size() / width;
    for (size_t at = 0; at < frames; at += piece)
        stage.process(in.data() + at * width, std::min(piece, frames - at), out);
    stage.flush(out);
    return out;
}

/// The strongest frequency of the first channel's middle.
double dominantHz(const std::vector<double> &pcm, int rateHz, int channels)
{
    constexpr int size = 16384;
    const size_t width = static_cast<size_t>(channels);
    const size_t first = (pcm.size() / width - size) / 2;
    std::vector<double> in(size);
    std::vector<std::complex<double>> out(size / 2 + 1);
    for (size_t i = 0; i < size; ++i)
        in[i] = pcm[(first + i) * width] *
                (0.5 - 0.5 * std::cos(2.0 * std::numbers::pi * static_cast<double>(i) / size));
    fftw_plan plan =
        fftw_plan_dft_r2c_1d(size, in.data(), reinterpret_cast<fftw_complex *>(out.data()), FFTW_ESTIMATE);
    fftw_execute(plan);
    fftw_destroy_plan(plan);
    const auto loudest = std::max_element(out.begin() + 1, out.end(),
                                          [](auto a, auto b) { return std::norm(a) < std::norm(b); });
    return static_cast<double>(loudest - out.begin()) * rateHz / size;
}

constexpr double ratios[] = {0.5, 0.75, 1.25, 1.5, 2.0, 3.0};

} // namespace

TEST(SpeedStage, OnlyAnotherSpeedThanTheOriginalCounts)
{
    for (const double ratio : {1.0, 0.9996, 1.0004})
        EXPECT_FALSE((SpeedPlan{ratio, true}.active())) << ratio;
    for (const double ratio : {0.5, 0.99, 1.01, 3.0})
        EXPECT_TRUE((SpeedPlan{ratio, true}.active())) << ratio;
}

TEST(SpeedStage, KeepsThePitchAndGivesTheLengthToTheFrame)
{
    for (const int rateHz : {44100, 96000, 192000}) {
        for (const double ratio : ratios) {
            const size_t frames = static_cast<size_t>(rateHz) * 4 + 11;
            const auto out = sped({ratio, true}, tone(1000, rateHz, frames, 2), rateHz, 2);
            EXPECT_EQ(out.size() / 2, static_cast<size_t>(std::llround(static_cast<double>(frames) / ratio)))
                << rateHz << " Hz at " << ratio;
            EXPECT_NEAR(dominantHz(out, rateHz, 2), 1000, 1.5 * rateHz / 16384.0)
                << rateHz << " Hz at " << ratio;
        }
    }
}

TEST(SpeedStage, WithoutThePitchLockThePitchGoesAlong)
{
    for (const double ratio : ratios) {
        const auto out = sped({ratio, false}, tone(1000, 44100, 44100 * 4, 2), 44100, 2);
        EXPECT_EQ(out.size() / 2, static_cast<size_t>(std::llround(44100 * 4 / ratio))) << ratio;
        EXPECT_NEAR(dominantHz(out, 44100, 2), 1000 * ratio, 4) << ratio;
    }
}

TEST(SpeedStage, APlaceInTheMusicComesAtItsTime)
{
    for (const int rateHz : {44100, 192000}) {
        for (const double ratio : ratios) {
            // Quiet, then a tone from the second second on.
            std::vector<double> in(static_cast<size_t>(rateHz) * 2, 0.0);
            const auto rest = tone(700, rateHz, static_cast<size_t>(rateHz) * 2, 1);
            in.insert(in.end(), rest.begin(), rest.end());
            const auto out = sped({ratio, true}, in, rateHz, 1);
            const auto first =
                std::find_if(out.begin(), out.end(), [](double s) { return std::abs(s) > 0.1; });
            const double sec = static_cast<double>(first - out.begin()) / rateHz;
            EXPECT_NEAR(sec, 2.0 / ratio, 0.06) << rateHz << " Hz at " << ratio;
        }
    }
}

TEST(SpeedStage, ManyChannelsStayTogetherAndShortInputIsNoTrouble)
{
    const auto in = tone(440, 48000, 48000, 6);
    const auto out = sped({1.5, true}, in, 48000, 6, 1000);
    ASSERT_EQ(out.size(), 6u * 32000u);
    for (size_t f = 4000; f < 28000; f += 37)
        for (size_t c = 1; c < 6; ++c)
            ASSERT_NEAR(out[f * 6 + c], out[f * 6], 1e-4) << f;
    for (const size_t frames : {0u, 1u, 10u, 500u})
        EXPECT_EQ(sped({2.0, true}, tone(440, 44100, frames, 2), 44100, 2).size() / 2,
                  static_cast<size_t>(std::llround(static_cast<double>(frames) / 2)));
}

TEST(SpeedStage, TheLevelStays)
{
    for (const double ratio : ratios) {
        const auto out = sped({ratio, true}, tone(1000, 44100, 44100 * 3, 1), 44100, 1);
        double sum = 0;
        const size_t from = out.size() / 4;
        const size_t to = out.size() * 3 / 4;
        for (size_t i = from; i < to; ++i)
            sum += out[i] * out[i];
        EXPECT_NEAR(std::sqrt(sum / static_cast<double>(to - from)), 0.5 / std::numbers::sqrt2, 0.03)
            << ratio;
    }
}
