#include "player_core/dsp/pdm_decimator.h"

#include "modulator.h"

#include <algorithm>
#include <cmath>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

using namespace kelp_core;

namespace {

constexpr int dsd64 = 2822400;

std::vector<double> decoded(PdmDecimator &decimator, const std::vector<uint8_t> &dsd, int channels,
                            size_t piece)
{
    std::vector<double> out;
    const size_t frames = dsd.size() / static_cast<size_t>(channels);
    for (size_t at = 0; at < frames; at += piece)
        decimator.process(dsd.data() + at * static_cast<size_t>(channels), std::min(piece, frames - at), out);
    decimator.flush(out);
    return out;
}

std::vector<double> decodedMono(PdmFilter filter, int dsdRateHz, int pcmRateHz,
                                const std::vector<uint8_t> &dsd)
{
    PdmDecimator decimator(filter, dsdRateHz, pcmRateHz, 1);
    return decoded(decimator, dsd, 1, dsd.size());
}

std::vector<uint8_t> noise(size_t bytes)
{
    std::vector<uint8_t> dsd(bytes);
    uint32_t state = 12345;
    for (uint8_t &byte : dsd) {
        state = state * 1664525u + 1013904223u;
        byte = static_cast<uint8_t>(state >> 24);
    }
    return dsd;
}

double peakOf(const std::vector<double> &samples)
{
    double peak = 0.0;
    for (double sample : samples)
        peak = std::max(peak, std::abs(sample));
    return peak;
}

} // namespace

TEST(PdmDecimator, RatesAreOfferedHighestFirst)
{
    using Rates = std::vector<int>;
    EXPECT_EQ(PdmDecimator::pcmRatesFor(dsd64), (Rates{352800, 176400, 88200, 44100}));
    EXPECT_EQ(PdmDecimator::pcmRatesFor(dsd64 * 32), (Rates{352800, 176400, 88200, 44100}));
    EXPECT_EQ(PdmDecimator::pcmRatesFor(3072000), (Rates{192000, 96000, 48000}));
    EXPECT_EQ(PdmDecimator::pcmRatesFor(6144000), (Rates{192000, 96000, 48000}));
    EXPECT_EQ(PdmDecimator::pcmRatesFor(1000000), Rates{});
    EXPECT_EQ(PdmDecimator::pcmRatesFor(0), Rates{});
    EXPECT_FALSE(PdmDecimator::supports(dsd64, 96000));
    EXPECT_FALSE(PdmDecimator::supports(dsd64, 705600));
    EXPECT_FALSE(PdmDecimator::supports(dsd64, 0));
}

TEST(PdmDecimator, UnsupportedRatesGiveNothing)
{
    PdmDecimator decimator(PdmFilter::fast, dsd64, 96000, 2);
    EXPECT_TRUE(decoded(decimator, noise(1000), 2, 100).empty());
    decimator.reset();
}

TEST(PdmDecimator, ASineKeepsItsAmplitudeTimeAndFrequency)
{
    struct Row
    {
        int times;
        int pcmRateHz;
        double snrDb; ///< what this simple modulator leaves within the pass band of every filter, less 1 dB
    };
    for (const Row &row : {Row{1, 44100, 69}, Row{1, 88200, 55}, Row{1, 352800, 43}, Row{2, 44100, 84},
                           Row{4, 44100, 99}, Row{8, 88200, 99}, Row{16, 44100, 128}, Row{32, 176400, 110}}) {
        const int dsdRateHz = dsd64 * row.times;
        const std::vector<uint8_t> dsd =
            dsdSine(997.0, 0.5, dsdRateHz, static_cast<size_t>(dsdRateHz / 8 / 8));
        for (PdmFilter filter : {PdmFilter::fast, PdmFilter::standard, PdmFilter::best}) {
            const std::vector<double> pcm = decodedMono(filter, dsdRateHz, row.pcmRateHz, dsd);
            const auto ratio = static_cast<size_t>(dsdRateHz / row.pcmRateHz);
            ASSERT_EQ(pcm.size(), (dsd.size() * 8 + ratio / 2) / ratio);
            const SineFit fit = fitSine(pcm, pcm.size() / 8, pcm.size() * 7 / 8, 997.0, row.pcmRateHz);
            // 50 % modulation is 0 dB of DSD and −6.02 dBFS.
            EXPECT_NEAR(20.0 * std::log10(fit.amplitude), -6.0206, 0.001);
            // The modulator itself is a bit late, and the middle of a bit half a bit behind its beginning.
            EXPECT_NEAR(fit.delaySeconds * dsdRateHz, 1.5, 0.05) << row.times << " to " << row.pcmRateHz;
            EXPECT_GT(fit.snrDb, row.snrDb)
                << pdmFilterName(filter) << ' ' << row.times << " to " << row.pcmRateHz;
        }
    }
}

TEST(PdmDecimator, DsdOfThe48kHzFamilyIsDecodedToItsOwnRates)
{
    for (int dsdRateHz : {3072000, 12288000}) {
        const std::vector<uint8_t> dsd =
            dsdSine(1500.0, 0.25, dsdRateHz, static_cast<size_t>(dsdRateHz / 80));
        for (int pcmRateHz : PdmDecimator::pcmRatesFor(dsdRateHz)) {
            const std::vector<double> pcm = decodedMono(PdmFilter::standard, dsdRateHz, pcmRateHz, dsd);
            EXPECT_EQ(pcm.size(), static_cast<size_t>(pcmRateHz / 10));
            const SineFit fit = fitSine(pcm, pcm.size() / 8, pcm.size() * 7 / 8, 1500.0, pcmRateHz);
            EXPECT_NEAR(20.0 * std::log10(fit.amplitude), -12.0412, 0.002);
            EXPECT_NEAR(fit.delaySeconds * dsdRateHz, 1.5, 0.1);
        }
    }
}

TEST(PdmDecimator, SilencePatternIsSilence)
{
    for (int pcmRateHz : {352800, 176400, 88200, 44100}) {
        for (PdmFilter filter : {PdmFilter::fast, PdmFilter::standard, PdmFilter::best}) {
            for (uint8_t pattern : {0x69, 0x96}) {
                const std::vector<double> pcm =
                    decodedMono(filter, dsd64, pcmRateHz, std::vector<uint8_t>(20000, pattern));
                // 0x96 is the primed pattern in another phase, so only its start and end are a small event.
                const auto margin = static_cast<std::ptrdiff_t>(pattern == 0x69 ? 0 : pcm.size() / 3);
                EXPECT_LT(peakOf({pcm.begin() + margin, pcm.end() - margin}), 1e-6)
                    << pdmFilterName(filter) << ' ' << pcmRateHz;
            }
        }
    }
}

TEST(PdmDecimator, FullModulationIsFullScale)
{
    const std::vector<double> pcm =
        decodedMono(PdmFilter::standard, dsd64, 88200, std::vector<uint8_t>(40000, 0xFF));
    EXPECT_NEAR(pcm[pcm.size() / 2], 1.0, 1e-6);
    const std::vector<double> low =
        decodedMono(PdmFilter::standard, dsd64, 88200, std::vector<uint8_t>(40000, 0x00));
    EXPECT_NEAR(low[low.size() / 2], -1.0, 1e-6);
}

TEST(PdmDecimator, AnyCuttingOfTheInputGivesTheSameSamples)
{
    for (int channels : {1, 2, 5, 6}) {
        const std::vector<uint8_t> dsd = noise(static_cast<size_t>(channels) * 9001);
        for (int pcmRateHz : {352800, 44100}) {
            PdmDecimator decimator(PdmFilter::standard, dsd64, pcmRateHz, channels);
            const std::vector<double> whole = decoded(decimator, dsd, channels, 9001);
            for (size_t piece : {1, 3, 7, 588, 4704}) {
                // One and the same object: flush() has reset it.
                ASSERT_EQ(decoded(decimator, dsd, channels, piece), whole) << channels << ' ' << piece;
            }
        }
    }
}

TEST(PdmDecimator, ChannelsDoNotTouchEachOther)
{
    const std::vector<uint8_t> first = noise(6000);
    std::vector<uint8_t> six;
    for (size_t i = 0; i < first.size(); ++i) {
        for (size_t c = 0; c < 6; ++c)
            six.push_back(c == 4 ? first[i] : 0x69);
    }
    PdmDecimator decimator(PdmFilter::best, dsd64, 88200, 6);
    const std::vector<double> pcm = decoded(decimator, six, 6, 1000);
    const std::vector<double> mono = decodedMono(PdmFilter::best, dsd64, 88200, first);
    ASSERT_EQ(pcm.size(), mono.size() * 6);
    for (size_t i = 0; i < mono.size(); ++i) {
        ASSERT_EQ(pcm[6 * i + 4], mono[i]);
        ASSERT_LT(std::abs(pcm[6 * i + 3]), 1e-6);
    }
}

TEST(PdmDecimator, LengthIsRoundedExactly)
{
    for (int pcmRateHz : {352800, 176400, 88200, 44100}) {
        const auto ratio = static_cast<size_t>(dsd64 / pcmRateHz);
        for (size_t bytes : {0, 1, 2, 3, 4, 5, 7, 8, 9, 11, 12, 13, 100, 4704, 10001}) {
            const std::vector<double> pcm = decodedMono(PdmFilter::best, dsd64, pcmRateHz, noise(bytes));
            EXPECT_EQ(pcm.size(), (bytes * 8 + ratio / 2) / ratio) << bytes << ' ' << pcmRateHz;
        }
    }
}

TEST(PdmDecimator, ResetForgetsWhatCameBefore)
{
    const std::vector<uint8_t> dsd = noise(3000);
    PdmDecimator decimator(PdmFilter::standard, dsd64, 44100, 2);
    const std::vector<double> fresh = decoded(decimator, dsd, 2, 1500);
    std::vector<double> out;
    decimator.process(std::vector<uint8_t>(2000, 0xFF).data(), 1000, out);
    decimator.reset();
    EXPECT_EQ(decoded(decimator, dsd, 2, 1500), fresh);
}

TEST(PdmDecimator, SilentMusicBeginsAndEndsWithoutAStep)
{
    // 0x69 is what stands before and behind: the edges of such a stream are as silent as its middle.
    const std::vector<double> pcm =
        decodedMono(PdmFilter::fast, dsd64, 176400, std::vector<uint8_t>(352, 0x69));
    EXPECT_EQ(pcm.size(), 176u);
    EXPECT_LT(peakOf(pcm), 1e-6);
}

TEST(PdmDecimator, ThreadsShareTheirTables)
{
    const std::vector<uint8_t> dsd = noise(4000);
    const std::vector<double> wanted = decodedMono(PdmFilter::best, dsd64, 88200, dsd);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int round = 0; round < 3; ++round)
                EXPECT_EQ(decodedMono(PdmFilter::best, dsd64, 88200, dsd), wanted);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
}
