#include "player_core/dsp/resampler.h"

#include "modulator.h"

#include <cmath>
#include <numbers>
#include <vector>

#include <gtest/gtest.h>

using namespace kelp_core;

namespace {

std::vector<double> sine(double hz, int rateHz, size_t frames, int channels = 1)
{
    std::vector<double> pcm;
    for (size_t i = 0; i < frames; ++i) {
        for (int c = 0; c < channels; ++c)
            pcm.push_back(0.5 / (c + 1) *
                          std::sin(2.0 * std::numbers::pi * hz * static_cast<double>(i) / rateHz));
    }
    return pcm;
}

std::vector<double> resampled(Resampler &resampler, const std::vector<double> &in, size_t channels,
                              size_t piece)
{
    std::vector<double> out;
    const size_t frames = in.size() / channels;
    for (size_t at = 0; at < frames; at += piece)
        resampler.process(in.data() + at * channels, std::min(piece, frames - at), out);
    resampler.flush(out);
    return out;
}

constexpr int rates[][2] = {{44100, 48000}, {48000, 44100},  {44100, 96000},   {192000, 44100},
                            {96000, 44100}, {44100, 176400}, {352800, 192000}, {8000, 44100}};

} // namespace

TEST(Resampler, NamesGoBothWays)
{
    for (ResampleQuality quality : {ResampleQuality::fast, ResampleQuality::standard, ResampleQuality::best})
        EXPECT_EQ(resampleQualityByName(resampleQualityName(quality)), quality);
    EXPECT_EQ(resampleQualityByName("best"), ResampleQuality::best);
    EXPECT_FALSE(resampleQualityByName("hq"));
}

TEST(Resampler, LengthIsRoundedExactly)
{
    for (const auto &[from, to] : rates) {
        for (ResampleQuality quality :
             {ResampleQuality::fast, ResampleQuality::standard, ResampleQuality::best}) {
            Resampler resampler(quality, from, to, 2);
            ASSERT_TRUE(resampler.works());
            for (size_t frames : {0, 1, 2, 5, 100, 1001, 30011}) {
                const std::vector<double> out = resampled(resampler, sine(500, from, frames, 2), 2, 997);
                const auto wanted = static_cast<size_t>(
                    (frames * static_cast<uint64_t>(to) + static_cast<uint64_t>(from) / 2) /
                    static_cast<uint64_t>(from));
                EXPECT_EQ(out.size(), wanted * 2) << from << ' ' << to << ' ' << frames;
            }
        }
    }
}

TEST(Resampler, AnyCuttingOfTheInputGivesTheSameSamples)
{
    const std::vector<double> in = sine(1234, 44100, 20000, 2);
    Resampler resampler(ResampleQuality::standard, 44100, 48000, 2);
    const std::vector<double> whole = resampled(resampler, in, 2, 20000);
    for (size_t piece : {1, 7, 512, 4096})
        ASSERT_EQ(resampled(resampler, in, 2, piece), whole) << piece;
}

TEST(Resampler, ASineKeepsAmplitudeAndTime)
{
    struct Row
    {
        ResampleQuality quality;
        double snrDb;
    };
    for (const Row &row : {Row{ResampleQuality::fast, 95}, Row{ResampleQuality::standard, 140},
                           Row{ResampleQuality::best, 160}}) {
        for (const auto &[from, to] : rates) {
            Resampler resampler(row.quality, from, to, 1);
            const std::vector<double> out =
                resampled(resampler, sine(997, from, static_cast<size_t>(from)), 1, 4096);
            const SineFit fit = fitSine(out, out.size() / 4, out.size() * 3 / 4, 997, to);
            EXPECT_NEAR(20 * std::log10(fit.amplitude), -6.0206, 0.001);
            EXPECT_LT(std::abs(fit.delaySeconds), 1e-7);
            EXPECT_GT(fit.snrDb, row.snrDb) << resampleQualityName(row.quality) << ' ' << from << ' ' << to;
        }
    }
}

TEST(Resampler, SameRatePassesUntouched)
{
    Resampler resampler(ResampleQuality::best, 44100, 44100, 2);
    const std::vector<double> in = sine(997, 44100, 1000, 2);
    EXPECT_TRUE(resampler.works());
    EXPECT_EQ(resampled(resampler, in, 2, 33), in);
}

TEST(Resampler, ResetForgetsWhatCameBefore)
{
    const std::vector<double> in = sine(700, 48000, 3000);
    Resampler resampler(ResampleQuality::best, 48000, 44100, 1);
    const std::vector<double> fresh = resampled(resampler, in, 1, 3000);
    std::vector<double> out;
    const std::vector<double> loud(5000, 1.0);
    resampler.process(loud.data(), loud.size(), out);
    resampler.reset();
    EXPECT_EQ(resampled(resampler, in, 1, 3000), fresh);
}

TEST(Resampler, ImpossibleRatesAreRefusedQuietly)
{
    Resampler resampler(ResampleQuality::standard, 44100, 0, 2);
    EXPECT_FALSE(resampler.works());
    EXPECT_TRUE(resampled(resampler, sine(500, 44100, 100, 2), 2, 100).empty());
}
