// -analyze reads any source, PCM or DSD, and says in its lines what it heard.

#include "player_core/probe/analyze_answer.h"

#include "tests/player_core/dsp/modulator.h"
#include "tests/support/byte_writer.h"
#include "tests/support/dsd_file_maker.h"
#include "tests/support/temp_dir.h"
#include "tests/support/wav_maker.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

using namespace kelp_test;
using kelp_core::analyzeTrack;

/// Chords of A minor, struck 110 times a minute.
double music(double seconds)
{
    constexpr double chords[4][3] = {
        {220, 261.63, 329.63}, {146.83, 174.61, 220}, {164.81, 207.65, 246.94}, {220, 261.63, 329.63}};
    const double beat = std::fmod(seconds * 110 / 60, 1);
    const auto chord = static_cast<size_t>(seconds * 110 / 60 / 4) % 4;
    double sum = 0;
    for (const double hz : chords[chord])
        sum += std::sin(2 * std::numbers::pi * hz * seconds);
    return 0.12 * sum * std::exp(-5 * beat);
}

PcmSignal pcmMusic(double seconds, int rateHz)
{
    PcmSignal signal;
    signal.rateHz = rateHz;
    for (size_t i = 0; i < static_cast<size_t>(seconds * rateHz); ++i) {
        const double value = std::round(music(static_cast<double>(i) / rateHz) * 32768) / 32768;
        signal.samples.insert(signal.samples.end(), {value, value});
    }
    return signal;
}

TEST(AnalyzeAnswer, TellsTempoAndKeyOfAFile)
{
    TempDir dir;
    for (const int rateHz : {44100, 96000}) {
        writeFile(dir.file("a.wav"), wavBytes(pcmMusic(30, rateHz)));
        const auto answer = analyzeTrack({"-analyze", dir.file("a.wav")});
        EXPECT_EQ(answer.code, 0);
        EXPECT_EQ(answer.text, "ANALYZE bpm=110.0\nANALYZE key=A minor\n") << rateHz;
    }
}

TEST(AnalyzeAnswer, DecodesDsd)
{
    constexpr double rateHz = 2822400;
    DsdSignal signal;
    signal.channels = 1;
    Modulator modulator;
    for (size_t byte = 0; byte < static_cast<size_t>(20 * rateHz / 8); ++byte) {
        const double value = music(static_cast<double>(byte) * 8 / rateHz);
        unsigned bits = 0;
        for (int bit = 0; bit < 8; ++bit)
            bits = bits << 1 | static_cast<unsigned>(modulator.bit(value));
        signal.bytes.push_back(static_cast<uint8_t>(bits));
    }
    TempDir dir;
    writeFile(dir.file("a.dff"), dffBytes(signal));
    EXPECT_EQ(analyzeTrack({"-analyze", dir.file("a.dff")}).text, "ANALYZE bpm=110.0\nANALYZE key=A minor\n");
}

TEST(AnalyzeAnswer, SaysNoneRatherThanAGuess)
{
    TempDir dir;
    writeFile(dir.file("a.wav"), wavBytes(makeSignal({.shape = SignalShape::noise, .frames = 20 * 44100})));
    EXPECT_EQ(analyzeTrack({"-analyze", dir.file("a.wav")}).text, "ANALYZE bpm=none\nANALYZE key=none\n");
    writeFile(dir.file("b.wav"), wavBytes(makeSignal({.shape = SignalShape::silence, .frames = 500})));
    EXPECT_EQ(analyzeTrack({"-analyze", dir.file("b.wav")}).text, "ANALYZE bpm=none\nANALYZE key=none\n");
}

TEST(AnalyzeAnswer, WhatIsThereOfADamagedFileIsHeard)
{
    TempDir dir;
    std::vector<uint8_t> bytes = wavBytes(pcmMusic(40, 44100));
    bytes.resize(bytes.size() * 3 / 4);
    writeFile(dir.file("a.wav"), bytes);
    const auto answer = analyzeTrack({"-analyze", dir.file("a.wav")});
    EXPECT_EQ(answer.code, 0);
    EXPECT_NE(answer.text.find("ANALYZE bpm=110.0\nANALYZE key=A minor\n"), std::string::npos) << answer.text;
    EXPECT_EQ(answer.text.rfind("WARN ", 0), 0U) << answer.text;
}

TEST(AnalyzeAnswer, WhatCannotBeOpenedIsOneLine)
{
    EXPECT_EQ(analyzeTrack({"-analyze", "/nonexistent/a.wav"}).text, "cannot open: no such file\n");
    EXPECT_EQ(analyzeTrack({"-analyze", "/nonexistent/a.wav"}).code, 1);
    EXPECT_EQ(analyzeTrack({"-analyze"}).code, 2);
}

} // namespace
