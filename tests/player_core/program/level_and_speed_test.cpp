// The whole engine on a real ALSA PCM that writes all it gets to a file: speed, loop, gain and guard.
#include "player_core/program/engine_host.h"

#include "tests/support/byte_writer.h"
#include "tests/support/packed_maker.h"
#include "tests/support/pcm_signal.h"
#include "tests/support/temp_dir.h"
#include "tests/support/wav_maker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <fstream>
#include <iterator>
#include <numbers>

#include <unistd.h>

namespace kelp_core::test {

namespace {

using kelp_test::FileTags;
using kelp_test::makeSignal;
using kelp_test::PcmSignal;
using kelp_test::SignalShape;
using kelp_test::TempDir;
using kelp_test::writeFile;

class LevelAndSpeed : public testing::Test
{
protected:
    void SetUp() override
    {
        writeFile(dir_.file("asound.conf"), "pcm.cap { type file slave.pcm \"null\" file \"" +
                                                dir_.file("cap.raw") + "\" format \"raw\" }\n");
        ::setenv("ALSA_CONFIG_PATH", ("/usr/share/alsa/alsa.conf:" + dir_.file("asound.conf")).c_str(), 1);
        ::unsetenv("KELP_ENGINE_LOG");
    }

    void TearDown() override
    {
        ::unsetenv("ALSA_CONFIG_PATH");
        ::unsetenv("KELP_ENGINE_PACE");
    }

    std::vector<int16_t> captured() const
    {
        std::ifstream file(dir_.file("cap.raw"), std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
        std::vector<int16_t> samples(bytes.size() / 2);
        std::memcpy(samples.data(), bytes.data(), samples.size() * 2);
        while (!samples.empty() && samples.back() == 0)
            samples.pop_back();
        return samples;
    }

    /// Stereo, both channels alike.
    static PcmSignal tone(double hz, size_t frames, double peak = 0.5)
    {
        PcmSignal signal;
        for (size_t i = 0; i < frames; ++i) {
            const double s = peak * std::sin(2 * std::numbers::pi * hz * static_cast<double>(i) / 44100);
            signal.samples.insert(signal.samples.end(), 2, std::round(s * 32767) / 32768);
        }
        return signal;
    }

    TempDir dir_;
    const std::string pid_ = std::to_string(::getpid());
};

/// Rising zero crossings a second in the middle half, which for a tone is its frequency.
double pitchHz(const std::vector<int16_t> &stereo)
{
    const size_t frames = stereo.size() / 2;
    size_t first = 0;
    size_t last = 0;
    int crossings = -1;
    for (size_t f = frames / 4; f < frames * 3 / 4; ++f) {
        if (stereo[2 * f] < 0 && stereo[2 * f + 2] >= 0) {
            first = crossings < 0 ? f : first;
            last = f;
            ++crossings;
        }
    }
    return crossings > 0 ? crossings * 44100.0 / static_cast<double>(last - first) : 0;
}

std::vector<int16_t> integers(const PcmSignal &signal)
{
    std::vector<int16_t> result;
    for (const double sample : signal.samples)
        result.push_back(static_cast<int16_t>(kelp_test::toInteger(sample, 16)));
    return result;
}

} // namespace

TEST_F(LevelAndSpeed, TheDeviceGetsTheLengthOfTheSpeedAndThePitchOfTheMusic)
{
    constexpr size_t frames = 44100 * 4;
    writeFile(dir_.file("a.wav"), wavBytes(tone(1000, frames)));
    struct Case
    {
        const char *speed;
        const char *lock;
        double pitch;
    };
    for (const Case &c : {Case{"0.50", "on", 1000}, Case{"1.50", "on", 1000}, Case{"3.00", "on", 1000},
                          Case{"1.50", "off", 1500}}) {
        EngineHost host;
        host.start({"-i", dir_.file("a.wav"), "-dev", "cap", "-speed", c.speed, "-pitch-lock", c.lock});
        EXPECT_EQ(host.wait(), 0);
        const std::vector<int16_t> all = captured();
        const double ratio = static_cast<double>(frames) / (static_cast<double>(all.size()) / 2);
        EXPECT_NEAR(ratio / std::stod(c.speed), 1.0, 0.005) << c.speed;
        EXPECT_NEAR(pitchHz(all), c.pitch, c.pitch * 0.005) << c.speed << ' ' << c.lock;
    }
}

TEST_F(LevelAndSpeed, ALoopOnADeviceIsExactToTheFrame)
{
    ::setenv("KELP_ENGINE_PACE", "realtime", 1);
    const PcmSignal signal = makeSignal({.shape = SignalShape::ramp, .frames = 66'150});
    writeFile(dir_.file("a.wav"), wavBytes(signal));
    // A busy machine may leave a gap, which the engine tells; then it is played again.
    bool inPeace = false;
    for (int tries = 0; tries < 8 && !inPeace; ++tries) {
        EngineHost host;
        host.start({"-stream", "-parent-pid", pid_, "-dev", "cap"});
        host.send("load " + dir_.file("a.wav"));
        host.send("ab 0.500 0.900");
        EXPECT_NE(host.waitLine("A/B loop: from 0.500 s"), "");
        double before = -1;
        for (int turns = 0; turns < 2;) {
            const std::string line = host.waitLine("PG ");
            ASSERT_NE(line, "");
            const double now = std::stod(line.substr(line.find(' ', 3)));
            turns += now < before;
            before = now;
        }
        host.send("ab off");
        EXPECT_NE(host.waitLine("DONE "), "");
        host.send("stop");
        EXPECT_EQ(host.wait(), 3);
        inPeace = host.lines("WARN The device ran dry").empty();
    }
    if (!inPeace)
        GTEST_SKIP() << "this machine is too busy to play without a gap";
    const std::vector<int16_t> all = captured();
    const std::vector<int16_t> track = integers(signal);
    const auto at = [&](size_t frame) { return track.begin() + static_cast<std::ptrdiff_t>(2 * frame); };
    std::vector<int16_t> wanted(track.begin(), at(39'690));
    while (wanted.size() + 2 * (66'150 - 22'050) < all.size())
        wanted.insert(wanted.end(), at(22'050), at(39'690));
    wanted.insert(wanted.end(), at(22'050), track.end());
    EXPECT_GE(all.size(), track.size() + 2 * 2 * 17'640);
    EXPECT_EQ(all, wanted);
}

TEST_F(LevelAndSpeed, TagsOfAFileScaleWhatTheDeviceGets)
{
    const PcmSignal signal = tone(997, 60'000);
    FileTags tags;
    tags.words = {{"REPLAYGAIN_TRACK_GAIN", "-6.00 dB"}, {"REPLAYGAIN_TRACK_PEAK", "0.5"}};
    ASSERT_EQ(writePacked("flac", dir_.file("a.flac"), signal, tags), "");
    EngineHost host;
    host.start({"-i", dir_.file("a.flac"), "-dev", "cap", "-replaygain", "track"});
    EXPECT_EQ(host.wait(), 0);
    EXPECT_EQ(host.lines("ReplayGain: "), std::vector<std::string>{"ReplayGain: track gain -6.00 dB."});
    const std::vector<int16_t> all = captured();
    ASSERT_GT(all.size(), signal.samples.size() - 100);
    const double gain = std::pow(10.0, -6.0 / 20);
    for (size_t i = 0; i < all.size(); ++i)
        ASSERT_NEAR(all[i], signal.samples[i] * gain * 32768, 2.0) << i; // rounding and dither
}

TEST_F(LevelAndSpeed, AnIdleGuardAndAnUntaggedFileChangeNoBit)
{
    const PcmSignal signal = makeSignal({.shape = SignalShape::noise, .frames = 30'000});
    writeFile(dir_.file("a.wav"), wavBytes(signal));
    EngineHost host;
    host.start({"-i", dir_.file("a.wav"), "-dev", "cap", "-peak-guard", "on", "-replaygain", "album",
                "-speed", "1.00", "-pitch-lock", "on"});
    EXPECT_EQ(host.wait(), 0);
    std::vector<int16_t> wanted = integers(signal);
    while (!wanted.empty() && wanted.back() == 0)
        wanted.pop_back();
    EXPECT_EQ(captured(), wanted);
}

TEST_F(LevelAndSpeed, AFloatFileBeyondFullScaleIsGuarded)
{
    PcmSignal signal = tone(440, 60'000, 1.4);
    signal.isFloat = true;
    signal.depthBits = 32;
    for (double &sample : signal.samples)
        sample = static_cast<float>(sample);
    writeFile(dir_.file("a.wav"), wavBytes(signal));
    EngineHost host;
    host.start({"-i", dir_.file("a.wav"), "-dev", "cap", "-peak-guard", "on"});
    EXPECT_EQ(host.wait(), 0);
    ASSERT_EQ(host.lines("Peak guard: ").size(), 1u);
    EXPECT_NE(host.lines("bit-perfect: ").back().find("NO: "), std::string::npos);
}

} // namespace kelp_core::test
