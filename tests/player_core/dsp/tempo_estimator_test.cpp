// The tempo of made-up rhythms is found, and none is where there is none.

#include "player_core/dsp/tempo_estimator.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace {

using kelp_core::analysisRateHz;
using kelp_core::TempoEstimator;

std::vector<double> silence(double seconds)
{
    return std::vector<double>(static_cast<size_t>(seconds * analysisRateHz), 0.0);
}

/// Adds a short decaying burst of noise, as a drum gives it.
void strike(std::vector<double> &samples, double atSec, double level, std::mt19937 &random)
{
    std::uniform_real_distribution<double> noise(-1, 1);
    const auto first = static_cast<size_t>(std::lround(atSec * analysisRateHz));
    constexpr size_t length = 600;
    for (size_t i = 0; i < length && first + i < samples.size(); ++i)
        samples[first + i] += level * noise(random) * std::exp(-static_cast<double>(i) / 120);
}

std::vector<double> beats(double bpm, double seconds, double level = 0.5)
{
    std::mt19937 random(1);
    std::vector<double> samples = silence(seconds);
    for (double at = 0.1; at < seconds; at += 60 / bpm)
        strike(samples, at, level, random);
    return samples;
}

std::optional<double> tempoOf(const std::vector<double> &samples)
{
    TempoEstimator estimator;
    // In uneven pieces, as decoders give them.
    for (size_t at = 0; at < samples.size(); at += 777)
        estimator.process(samples.data() + at, std::min<size_t>(777, samples.size() - at));
    return estimator.beatsPerMinute();
}

TEST(TempoEstimator, FindsTheTempoOfBeats)
{
    for (const double bpm : {55.0, 60.0, 72.5, 90.0, 100.0, 119.3, 120.0, 128.0, 140.0, 174.0, 200.0}) {
        const auto found = tempoOf(beats(bpm, 30));
        ASSERT_TRUE(found) << bpm;
        EXPECT_NEAR(*found, bpm, 0.005 * bpm) << bpm;
    }
}

TEST(TempoEstimator, TheBeatIsTheStrongOneOfARhythm)
{
    std::mt19937 random(2);
    std::vector<double> samples = silence(40);
    // Bass and snare in turn, and weaker strokes between them.
    for (double at = 0; at < 40; at += 60.0 / 104) {
        strike(samples, at, 0.8, random);
        strike(samples, at + 30.0 / 104, 0.03, random);
    }
    const auto found = tempoOf(samples);
    ASSERT_TRUE(found);
    EXPECT_NEAR(*found, 104, 0.5);
}

TEST(TempoEstimator, NoiseAndAToneLieBelowTheBeat)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<double> noise(-0.02, 0.02);
    std::vector<double> samples = beats(96, 40, 0.6);
    for (size_t i = 0; i < samples.size(); ++i)
        samples[i] += noise(random) +
                      0.1 * std::sin(2 * std::numbers::pi * 220 * static_cast<double>(i) / analysisRateHz);
    const auto found = tempoOf(samples);
    ASSERT_TRUE(found);
    EXPECT_NEAR(*found, 96, 0.5);
}

TEST(TempoEstimator, WhatHasNoBeatHasNoTempo)
{
    EXPECT_FALSE(tempoOf({}));
    EXPECT_FALSE(tempoOf(silence(30)));
    std::vector<double> tone = silence(30);
    for (size_t i = 0; i < tone.size(); ++i)
        tone[i] = 0.5 * std::sin(2 * std::numbers::pi * 440 * static_cast<double>(i) / analysisRateHz);
    EXPECT_FALSE(tempoOf(tone));
    for (unsigned seed = 1; seed <= 5; ++seed) {
        std::mt19937 random(seed);
        std::uniform_real_distribution<double> noise(-0.5, 0.5);
        std::vector<double> samples = silence(30);
        for (double &sample : samples)
            sample = noise(random);
        EXPECT_FALSE(tempoOf(samples)) << "noise " << seed;
        samples = silence(30);
        std::uniform_real_distribution<double> anywhere(0, 30);
        for (int i = 0; i < 60; ++i)
            strike(samples, anywhere(random), 0.5, random);
        EXPECT_FALSE(tempoOf(samples)) << "strokes at random, " << seed;
    }
}

TEST(TempoEstimator, AFewSecondsAreTooShort)
{
    EXPECT_FALSE(tempoOf(beats(120, 5)));
    EXPECT_TRUE(tempoOf(beats(120, 15)));
}

} // namespace
