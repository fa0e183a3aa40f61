// The key of made-up chords is found in all twelve tones, both modes and any tuning.

#include "player_core/dsp/key_estimator.h"

#include "player_core/dsp/tempo_estimator.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace {

using kelp_core::analysisRateHz;
using kelp_core::KeyEstimator;

constexpr std::array majorNames{"C", "Db", "D", "Eb", "E", "F", "F#", "G", "Ab", "A", "Bb", "B"};
constexpr std::array minorNames{"C", "C#", "D", "Eb", "E", "F", "F#", "G", "G#", "A", "Bb", "B"};

/// Adds a second of a tone with its harmonics. semitones: above the C below the middle one.
void addTone(std::vector<double> &samples, size_t first, double semitones, double a4Hz)
{
    const double hz = a4Hz * std::exp2((semitones - 21) / 12);
    for (int harmonic = 1; harmonic <= 5; ++harmonic) {
        const double step = 2 * std::numbers::pi * hz * harmonic / analysisRateHz;
        for (size_t i = 0; i < analysisRateHz && first + i < samples.size(); ++i)
            samples[first + i] += 0.08 / harmonic * std::sin(step * static_cast<double>(i)) *
                                  std::exp(-static_cast<double>(i) / analysisRateHz);
    }
}

/// Tonic, subdominant, dominant and tonic, each a second, four times.
std::vector<double> cadence(int tonic, bool minor, double a4Hz = 440)
{
    std::vector<double> samples(16 * analysisRateHz, 0.0);
    const int third = minor ? 3 : 4;
    const int chords[4][3] = {{0, third, 7}, {5, 5 + third, 12}, {7, 11, 14}, {0, third, 7}};
    for (size_t second = 0; second < 16; ++second) {
        for (const int tone : chords[second % 4])
            addTone(samples, second * analysisRateHz, tonic + tone, a4Hz);
    }
    return samples;
}

std::optional<std::string> keyOf(const std::vector<double> &samples)
{
    KeyEstimator estimator;
    for (size_t at = 0; at < samples.size(); at += 5000)
        estimator.process(samples.data() + at, std::min<size_t>(5000, samples.size() - at));
    return estimator.key();
}

TEST(KeyEstimator, FindsAllMajorAndMinorKeys)
{
    for (int tonic = 0; tonic < 12; ++tonic) {
        const auto at = static_cast<size_t>(tonic);
        EXPECT_EQ(keyOf(cadence(tonic, false)).value_or("none"), std::string(majorNames[at]) + " major");
        EXPECT_EQ(keyOf(cadence(tonic, true)).value_or("none"), std::string(minorNames[at]) + " minor");
    }
}

TEST(KeyEstimator, TheTuningDoesNotMatter)
{
    for (const double a4Hz : {432.0, 436.0, 444.0, 448.0}) {
        EXPECT_EQ(keyOf(cadence(2, false, a4Hz)).value_or("none"), "D major") << a4Hz;
        EXPECT_EQ(keyOf(cadence(9, true, a4Hz)).value_or("none"), "A minor") << a4Hz;
    }
}

TEST(KeyEstimator, WhatHasNoKeyHasNone)
{
    EXPECT_FALSE(keyOf({}));
    EXPECT_FALSE(keyOf(std::vector<double>(10 * analysisRateHz, 0.0)));
    std::mt19937 random(1);
    std::uniform_real_distribution<double> noise(-0.5, 0.5);
    std::vector<double> samples(30 * analysisRateHz);
    for (double &sample : samples)
        sample = noise(random);
    EXPECT_FALSE(keyOf(samples));
    // All twelve tones alike.
    samples.assign(12 * analysisRateHz, 0.0);
    for (size_t second = 0; second < 12; ++second)
        addTone(samples, second * analysisRateHz, static_cast<double>(second), 440);
    EXPECT_FALSE(keyOf(samples));
}

} // namespace
