#include "player_core/dsp/meters.h"

#include "player_core/dsp/fftw_lock.h"
#include "telemetry_lines.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <numbers>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

using namespace kelp_core;

namespace {

std::vector<double> sine(double hz, int rateHz, double left, double right, size_t frames)
{
    std::vector<double> pcm;
    for (size_t i = 0; i < frames; ++i) {
        const double value = std::sin(2.0 * std::numbers::pi * hz * static_cast<double>(i) / rateHz + 0.3);
        pcm.insert(pcm.end(), {left * value, right * value});
    }
    return pcm;
}

SpcFrame frameOf(SpectrumAnalyser &analyser)
{
    const auto frame = parseSpc(analyser.line());
    return frame ? *frame : SpcFrame{};
}

size_t bandOf(double hz, double topHz)
{
    return static_cast<size_t>(64 * std::log(hz / 20.0) / std::log(topHz / 20.0));
}

} // namespace

TEST(SpectrumAnalyser, AFullScaleSineReadsZeroInItsBand)
{
    for (int rateHz : {44100, 48000, 96000, 192000, 352800}) {
        const double topHz = std::min(96000.0, rateHz / 2.0);
        for (double hz : {60.0, 100.0, 440.0, 1000.0, 4321.0, 9999.0, 15000.0, 19999.0}) {
            SpectrumAnalyser analyser(rateHz);
            const std::vector<double> pcm = sine(hz, rateHz, 1.0, 1.0, 40000);
            analyser.add(pcm.data(), 40000, 2);
            const SpcFrame frame = frameOf(analyser);
            ASSERT_EQ(frame.main.size(), 64u);
            EXPECT_EQ(frame.rateHz, rateHz);
            EXPECT_GT(frame.main[bandOf(hz, topHz)], -0.5) << hz << " Hz at " << rateHz;
            // Far from the sine there is nothing.
            const size_t far = bandOf(hz, topHz) > 32 ? 10 : 60;
            EXPECT_LT(frame.main[far], -80.0) << hz << " Hz at " << rateHz;
        }
    }
}

TEST(SpectrumAnalyser, LevelsAreThoseOfTheLouderChannelEvenOutOfPhase)
{
    SpectrumAnalyser analyser(44100);
    const std::vector<double> pcm = sine(1000.0, 44100, 0.1, -0.5, 5000);
    analyser.add(pcm.data(), 5000, 2);
    const SpcFrame frame = frameOf(analyser);
    EXPECT_NEAR(frame.main.at(bandOf(1000.0, 22050.0)), -6.02, 0.4);
    EXPECT_EQ(frame.main, frame.second);
}

TEST(SpectrumAnalyser, SecondBlockCanBeTheRightChannel)
{
    SpectrumAnalyser analyser(44100, SpectrumSecondBlock::rightChannel);
    std::vector<double> pcm = sine(1000.0, 44100, 1.0, 0.0, 5000);
    const std::vector<double> other = sine(5000.0, 44100, 0.0, 0.1, 5000);
    for (size_t i = 0; i < pcm.size(); ++i)
        pcm[i] += other[i];
    analyser.add(pcm.data(), 5000, 2);
    const SpcFrame frame = frameOf(analyser);
    ASSERT_EQ(frame.second.size(), 64u);
    EXPECT_NEAR(frame.main[bandOf(1000.0, 22050.0)], 0.0, 0.5);
    EXPECT_LT(frame.main[bandOf(5000.0, 22050.0)], -90.0);
    EXPECT_NEAR(frame.second[bandOf(5000.0, 22050.0)], -20.0, 0.5);
    EXPECT_LT(frame.second[bandOf(1000.0, 22050.0)], -90.0);
}

TEST(SpectrumAnalyser, PeaksFallByTwelveDecibelsASecond)
{
    constexpr int rateHz = 48000;
    SpectrumAnalyser analyser(rateHz);
    const std::vector<double> pcm = sine(1000.0, rateHz, 1.0, 1.0, 8000);
    analyser.add(pcm.data(), 8000, 2);
    const size_t band = bandOf(1000.0, 24000.0);
    EXPECT_NEAR(frameOf(analyser).second.at(band), 0.0, 0.5);
    const std::vector<double> silence(rateHz * 2, 0.0);
    analyser.add(silence.data(), rateHz, 2);
    SpcFrame frame = frameOf(analyser);
    EXPECT_EQ(frame.main.at(band), -96.0);
    EXPECT_NEAR(frame.second.at(band), -12.0, 0.5);
    for (int second = 0; second < 10; ++second) {
        analyser.add(silence.data(), rateHz, 2);
        frame = frameOf(analyser);
    }
    EXPECT_EQ(frame.second.at(band), -96.0);
    analyser.reset();
    EXPECT_EQ(analyser.line(), "");
}

TEST(SpectrumAnalyser, ConstantOffsetIsNotSound)
{
    SpectrumAnalyser analyser(44100);
    const std::vector<double> pcm(10000, 0.5);
    analyser.add(pcm.data(), 10000, 1);
    for (double db : frameOf(analyser).main)
        EXPECT_EQ(db, -96.0);
}

TEST(SpectrumAnalyser, SilentUntilAWindowIsThereAndTheSameForEveryCutting)
{
    SpectrumAnalyser whole(44100);
    SpectrumAnalyser pieces(44100);
    const std::vector<double> pcm = sine(700.0, 44100, 0.7, 0.2, 6000);
    whole.add(pcm.data(), 4095, 2);
    EXPECT_EQ(whole.line(), "");
    whole.reset();
    whole.add(pcm.data(), 6000, 2);
    for (size_t at = 0; at < 6000; at += 17)
        pieces.add(pcm.data() + 2 * at, std::min<size_t>(17, 6000 - at), 2);
    const std::string line = whole.line();
    EXPECT_EQ(line.size(), std::string("SPC 44100 64 ").size() + 128 + 1 + 128);
    EXPECT_EQ(pieces.line(), line);
}

TEST(SpectrumAnalyser, ZonesAndConfiguration)
{
    EXPECT_EQ(SpectrumAnalyser(44100).configLine(),
              "SPC cfg rate=44100 bands=64 window=4096 low=20 high=22050");
    EXPECT_EQ(SpectrumAnalyser(384000).configLine(),
              "SPC cfg rate=384000 bands=64 window=32768 low=20 high=96000");
    for (int rateHz : {8000, 32000, 44100, 48000, 96000, 192000, 384000}) {
        int low = 0, audible = 0, nyquist = 0;
        ASSERT_EQ(std::sscanf(SpectrumAnalyser(rateHz).zonesLine().c_str(),
                              "SPC zones low=%d audible=%d nyq=%d", &low, &audible, &nyquist),
                  3);
        EXPECT_GE(low, 1);
        EXPECT_LT(low, audible);
        EXPECT_LE(audible, nyquist);
        EXPECT_LE(nyquist, 64);
        const double topHz = std::min(96000.0, rateHz / 2.0);
        const auto middle = [&](int band) { return 20.0 * std::pow(topHz / 20.0, (band + 0.5) / 64); };
        EXPECT_GE(middle(low), 200.0);
        EXPECT_LT(middle(low - 1), 200.0);
        EXPECT_LT(middle(nyquist - 1), 22050.0);
        if (nyquist < 64) {
            EXPECT_GE(middle(nyquist), 22050.0);
        }
    }
}

TEST(SpectrumAnalyser, ManyAreMadeAtOnce)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([] {
            for (int round = 0; round < 20; ++round) {
                SpectrumAnalyser analyser(44100);
                const std::vector<double> pcm(4096, 0.0);
                analyser.add(pcm.data(), 4096, 1);
                EXPECT_NE(analyser.line(), "");
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_TRUE(fftwPlannerMutex().try_lock());
    fftwPlannerMutex().unlock();
}

TEST(SpectrumAnalyser, WhatIsNotANumberReadsAsNothing)
{
    SpectrumAnalyser analyser(44100);
    std::vector<double> pcm(8192, std::nan(""));
    pcm[100] = std::numeric_limits<double>::infinity();
    analyser.add(pcm.data(), 8192, 1);
    for (double db : frameOf(analyser).main)
        EXPECT_EQ(db, -96.0);
    pcm.assign(8192, 0.0);
    analyser.add(pcm.data(), 8192, 1);
    EXPECT_EQ(frameOf(analyser).second, std::vector<double>(64, -96.0));
}
