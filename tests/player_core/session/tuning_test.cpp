// Sessions at another speed, with a loop, under the peak guard, with ReplayGain.
#include "player_core/session/fake_world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

#include <unistd.h>

namespace kelp_core::test {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

const std::string ownPid = std::to_string(::getpid());

template<typename T>
void append(std::vector<T> &to, const std::vector<T> &more)
{
    to.insert(to.end(), more.begin(), more.end());
}

double secondsIn(const std::string &progress)
{
    return std::stod(progress.substr(progress.find(' ', 3)));
}

/// Waits until a position is told that has reached so many seconds.
bool waitPosition(FakeWorld &world, double seconds)
{
    while (true) {
        const std::string line = world.waitLine("PG ");
        if (line.empty())
            return false;
        if (secondsIn(line) >= seconds)
            return true;
    }
}

/// Waits until the position has gone back so many times.
bool waitTurns(FakeWorld &world, int turns)
{
    double before = -1;
    while (turns > 0) {
        const std::string line = world.waitLine("PG ");
        if (line.empty())
            return false;
        turns -= secondsIn(line) < before;
        before = secondsIn(line);
    }
    return true;
}

/// From its start to B, some times from A to B, and from A to its end.
std::vector<int16_t> looped(const FakeTrack &track, int64_t a, int64_t b, size_t length)
{
    std::vector<int16_t> wanted = samplesOf(track, 0, b);
    const std::vector<int16_t> again = samplesOf(track, a, b);
    const std::vector<int16_t> last = samplesOf(track, a);
    while (wanted.size() + last.size() < length)
        append(wanted, again);
    append(wanted, last);
    return wanted;
}

/// The data bytes of DoP in 24 bits on two channels, checked for its markers.
std::vector<uint8_t> dopData(const std::vector<uint8_t> &bytes)
{
    std::vector<uint8_t> data;
    for (size_t f = 0; f * 6 + 5 < bytes.size(); ++f) {
        const uint8_t *frame = bytes.data() + f * 6;
        EXPECT_EQ(frame[2], f % 2 ? 0xFA : 0x05) << "marker of frame " << f;
        EXPECT_EQ(frame[5], frame[2]);
        for (const int i : {1, 4, 0, 3})
            data.push_back(frame[i]);
        if (testing::Test::HasFailure())
            break;
    }
    return data;
}

std::vector<uint8_t> dsdBytes(const FakeTrack &track, int64_t from, int64_t to)
{
    std::vector<uint8_t> bytes;
    for (const int16_t s : samplesOf(track, from, to))
        bytes.push_back(static_cast<uint8_t>(s));
    return bytes;
}

class TuningTest : public testing::Test
{
protected:
    void begin(std::vector<std::string> more = {})
    {
        world.device.clocked = true;
        std::vector<std::string> args{"-stream", "-parent-pid", ownPid};
        append(args, more);
        world.start(args);
        world.send("load /a");
    }

    void stop()
    {
        world.send("stop");
        EXPECT_EQ(world.wait(), exit_code::stopped);
        EXPECT_EQ(world.device.opened, world.device.closed);
    }

    FakeWorld world;
};

} // namespace

TEST_F(TuningTest, ALoopRepeatsItsPartToTheFrameAndGoesOnWhenItEnds)
{
    world.tracks["/a"] = pcmTrack(66'151, 1);
    begin();
    world.send("ab 0.700 0.901");
    EXPECT_EQ(world.waitLine("A/B loop: "),
              "A/B loop: from 0.700 s to 0.901 s of this track (frames 30870 to 39734).");
    ASSERT_TRUE(waitTurns(world, 3));
    world.send("ab off");
    EXPECT_EQ(world.waitLine("A/B loop: "), "A/B loop: off; the track plays on to its end.");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /a");
    stop();
    const std::vector<int16_t> all = trimmed(world.written16());
    EXPECT_EQ(all, looped(world.tracks["/a"], 30'870, 39'734, all.size()));
    EXPECT_EQ(world.device.opened, 1);
    EXPECT_THAT(world.lines("SRC "), SizeIs(1)) << "a loop is no new track";
}

TEST_F(TuningTest, ALoopOfTheWholeTrackGoesOverItsEnd)
{
    world.tracks["/a"] = pcmTrack(20'000, 1);
    begin();
    world.send("ab 0.000 9.000");
    EXPECT_EQ(world.waitLine("A/B loop: "),
              "A/B loop: from 0.000 s to 9.000 s of this track (frames 0 to 20000).");
    ASSERT_TRUE(waitTurns(world, 2));
    EXPECT_THAT(world.lines("DONE "), IsEmpty());
    stop();
    const std::vector<int16_t> all = trimmed(world.written16());
    const std::vector<int16_t> track = samplesOf(world.tracks["/a"]);
    ASSERT_GT(all.size(), 2 * track.size());
    for (size_t i = 0; i < all.size(); i += track.size())
        EXPECT_TRUE(
            std::equal(all.begin() + static_cast<std::ptrdiff_t>(i),
                       all.begin() + static_cast<std::ptrdiff_t>(std::min(all.size(), i + track.size())),
                       track.begin()));
}

TEST_F(TuningTest, APositionBehindPointBJumpsToPointAAtOnce)
{
    world.tracks["/a"] = pcmTrack(44'100 * 20, 1);
    begin();
    ASSERT_TRUE(waitPosition(world, 0.8));
    world.send("ab 0.200 0.400");
    EXPECT_THAT(world.waitLine("A/B loop: "), HasSubstr("behind point B, so it goes on at point A."));
    ASSERT_TRUE(waitTurns(world, 3));
    stop();
    const std::vector<int16_t> all = world.written16();
    const std::vector<int16_t> part = samplesOf(world.tracks["/a"], 8'820, 17'640);
    // The first time over the part is the track itself; the jump comes later than that.
    const auto jump = std::search(all.begin() + 2 * 17'640, all.end(), part.begin(), part.end());
    ASSERT_NE(jump, all.end());
    EXPECT_LT(jump - all.begin(), 2 * 44'100 * 3 / 2) << "at once";
    const auto turns = (all.end() - jump) / static_cast<std::ptrdiff_t>(part.size());
    EXPECT_GE(turns, 2);
    for (std::ptrdiff_t turn = 0; turn < turns; ++turn)
        EXPECT_TRUE(
            std::equal(part.begin(), part.end(), jump + turn * static_cast<std::ptrdiff_t>(part.size())))
            << turn;
}

TEST_F(TuningTest, AJumpDoesNotEndAPause)
{
    world.tracks["/a"] = pcmTrack(44'100 * 20, 1);
    begin();
    ASSERT_TRUE(waitPosition(world, 0.6));
    world.send("pause");
    world.send("ab 0.100 0.370");
    EXPECT_THAT(world.waitLine("A/B loop: "), HasSubstr("goes on at point A."));
    std::vector<std::string> last;
    for (int i = 0; i < 5; ++i)
        last.push_back(world.waitLine("PG "));
    EXPECT_THAT(last[3], StartsWith("PG "));
    EXPECT_EQ(last[3], last[4]);
    world.send("resume");
    ASSERT_TRUE(waitTurns(world, 1));
    stop();
}

TEST_F(TuningTest, BadLoopsAreRefusedWithALineAndChangeNothing)
{
    world.tracks["/a"] = pcmTrack(30'000, 1);
    begin();
    ASSERT_FALSE(world.waitLine("PG ").empty());
    world.send("ab 0.500 0.400");
    EXPECT_EQ(world.waitLine("The A/B loop is refused"),
              "The A/B loop is refused: point B (0.400 s) must come after point A (0.500 s).");
    world.send("ab 2.000 3.000");
    EXPECT_EQ(world.waitLine("The A/B loop is refused"),
              "The A/B loop is refused: point A (2.000 s) lies behind the end of this track (0.680 s).");
    world.send("ab 0.400 0.401");
    EXPECT_EQ(world.waitLine("The A/B loop is refused"),
              "The A/B loop is refused: its two points are too close together (0.400 s and 0.401 s).");
    world.send("ab off");
    EXPECT_EQ(world.waitLine("A/B loop: "), "A/B loop: none was set, so nothing changes.");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /a");
    stop();
    EXPECT_EQ(trimmed(world.written16()), samplesOf(world.tracks["/a"]));
}

TEST_F(TuningTest, ALoopOfDoPKeepsWholeFramesAndMarkersInStep)
{
    world.device.dsdCarrier = Carrier::dop;
    world.tracks["/a"] = dsdTrack(352'803, 3);
    begin();
    world.send("ab 0.600003 0.800009"); // not on whole frames
    EXPECT_EQ(world.waitLine("A/B loop: "),
              "A/B loop: from 0.600 s to 0.800 s of this track (frames 211680 to 282240).");
    ASSERT_TRUE(waitTurns(world, 3));
    world.send("report");
    const bool starved = world.waitLine("underruns: ") != "underruns: 0";
    world.send("ab off");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /a");
    stop();
    const std::vector<uint8_t> data = dopData(world.device.bytes);
    if (starved)
        GTEST_SKIP() << "this machine is too slow at the moment: silence stands in between";
    const FakeTrack &track = world.tracks["/a"];
    std::vector<uint8_t> wanted = dsdBytes(track, 0, 282'240);
    const std::vector<uint8_t> part = dsdBytes(track, 211'680, 282'240);
    size_t turns = 0;
    while (wanted.size() + part.size() <= data.size() &&
           std::equal(part.begin(), part.end(), data.begin() + static_cast<std::ptrdiff_t>(wanted.size()))) {
        append(wanted, part);
        ++turns;
    }
    EXPECT_GE(turns, 2u);
    append(wanted, dsdBytes(track, 282'240, track.frames));
    ASSERT_GE(data.size(), wanted.size());
    EXPECT_TRUE(std::equal(wanted.begin(), wanted.end(), data.begin()));
}

TEST_F(TuningTest, ALoopThatComesBeforeItsTrackWaitsForIt)
{
    world.tracks["/a"] = pcmTrack(44'100, 1);
    world.device.clocked = true;
    world.start({"-stream", "-parent-pid", ownPid});
    world.send("ab 0.100 0.300");
    EXPECT_THAT(world.waitLine("A/B loop: "), HasSubstr("kept for the next track"));
    world.send("load /a");
    ASSERT_TRUE(waitTurns(world, 2));
    stop();
    const std::vector<int16_t> all = trimmed(world.written16());
    const std::vector<int16_t> wanted = looped(world.tracks["/a"], 4'410, 13'230, all.size() + 200'000);
    EXPECT_TRUE(std::equal(all.begin(), all.end(), wanted.begin()));
}

TEST_F(TuningTest, ALoopEndsWithItsTrackAndIsNoPreloadWindow)
{
    world.tracks["/a"] = pcmTrack(44'100, 1);
    world.tracks["/b"] = pcmTrack(20'000, 2);
    begin({"-gapless", "on", "-crossfade", "1.0"});
    world.send("ab 0.600 0.900"); // within the window of a preload
    ASSERT_TRUE(waitTurns(world, 2));
    world.send("load /b"); // so this is the listener's choice, not the next track
    EXPECT_EQ(world.waitLine("SRC "), "SRC 44100 16 2 wav 0 0.454");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /b");
    stop();
    EXPECT_THAT(world.lines("preload dropped"), IsEmpty());
    const std::vector<int16_t> all = trimmed(world.written16());
    const std::vector<int16_t> second = samplesOf(world.tracks["/b"]);
    ASSERT_GT(all.size(), second.size());
    EXPECT_TRUE(std::equal(second.rbegin(), second.rend(), all.rbegin()));
}

TEST_F(TuningTest, ALoopDropsAPreloadThatHasAlreadyCome)
{
    world.tracks["/a"] = pcmTrack(60'000, 1);
    world.tracks["/b"] = pcmTrack(10'000, 2);
    begin();
    ASSERT_FALSE(world.waitLine("PG ").empty());
    world.send("load /b");
    ASSERT_FALSE(world.waitLine("PG ").empty());
    world.send("ab 0.500 0.900");
    EXPECT_EQ(
        world.waitLine("preload dropped: "),
        "preload dropped: the A/B loop repeats a part of the present track; the track finishes normally");
    ASSERT_TRUE(waitTurns(world, 1));
    world.send("ab off");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /a");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /b") << "and then it is begun";
    stop();
}

TEST_F(TuningTest, AnotherSpeedHasItsLengthItsPositionsAndItsWords)
{
    for (const auto &[speed, lock] :
         {std::pair{"1.50", "on"}, std::pair{"0.50", "on"}, std::pair{"2.00", "off"}}) {
        FakeWorld one;
        one.tracks["/a"] = pcmTrack(132'300, 1);
        one.start({"-i", "/a", "-speed", speed, "-pitch-lock", lock});
        EXPECT_EQ(one.wait(), exit_code::done);
        EXPECT_EQ(one.written16().size() / 2, static_cast<size_t>(std::llround(132'300 / std::atof(speed))))
            << speed;
        EXPECT_EQ(one.lines("PG ").back(), "PG 100.00 3.000 3.000");
        const auto speeds = one.lines("speed: ");
        ASSERT_THAT(speeds, SizeIs(1));
        EXPECT_EQ(speeds[0],
                  std::string("speed: ") + speed + "x, pitch " +
                      (lock == std::string("on") ? "kept (time stretching)" : "goes along (resampling)"));
        EXPECT_THAT(one.lines("bit-perfect: ").front(), HasSubstr("NO: the speed is changed"));
        EXPECT_THAT(one.lines("dsp: ").front(), HasSubstr("ACTIVE: speed"));
        EXPECT_THAT(one.lines("chain: ").front(), HasSubstr("converted (the speed is changed"));
    }
}

TEST_F(TuningTest, ATrackAtTheOriginalSpeedHasNoStageInItsPath)
{
    FakeWorld one;
    one.tracks["/a"] = pcmTrack(50'000, 1);
    one.device.readBackKnown = true;
    one.start({"-i", "/a", "-speed", "1.00", "-pitch-lock", "on"});
    EXPECT_EQ(one.wait(), exit_code::done);
    EXPECT_EQ(one.written16(), samplesOf(one.tracks["/a"]));
    EXPECT_EQ(one.lines("speed: ").front(), "speed: 1.00x (no stage in the path)");
    EXPECT_THAT(one.lines("bit-perfect: ").front(), StartsWith("bit-perfect: YES"));
}

TEST_F(TuningTest, BackAtTheOriginalSpeedTheBitsAreTheTracksOwnAtOnce)
{
    world.device.readBackKnown = true;
    world.tracks["/a"] = pcmTrack(44'100 * 4, 1);
    world.tracks["/b"] = pcmTrack(30'000, 2);
    begin();
    ASSERT_TRUE(waitPosition(world, 0.3));
    world.send("speed 1.50");
    EXPECT_EQ(world.waitLine("speed: 1.5"), "speed: 1.50x, pitch kept (time stretching)");
    ASSERT_TRUE(waitPosition(world, 1.5));
    world.send("speed 1.00");
    EXPECT_EQ(world.waitLine("speed: 1.0"), "speed: 1.00x (no stage in the path)");
    EXPECT_THAT(world.waitLine("bit-perfect: "),
                ::testing::AnyOf(StartsWith("bit-perfect: YES"), HasSubstr("the device ran dry")));
    EXPECT_EQ(world.waitLine("DONE "), "DONE /a");
    world.send("load /b");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /b");
    stop();
    if (!world.lines("WARN The device ran dry").empty())
        GTEST_SKIP() << "this machine is too slow at the moment: silence stands in between";
    EXPECT_EQ(world.device.opened, 1) << "the device stays as it is";
    std::vector<int16_t> all = trimmed(world.written16());
    const std::vector<int16_t> second = samplesOf(world.tracks["/b"]);
    ASSERT_GT(all.size(), second.size());
    EXPECT_TRUE(std::equal(second.rbegin(), second.rend(), all.rbegin())) << "the next track bit for bit";
    all.resize(all.size() - second.size());
    all = trimmed(all);
    const std::vector<int16_t> track = samplesOf(world.tracks["/a"]);
    const auto head = std::mismatch(all.begin(), all.end(), track.begin()).first - all.begin();
    EXPECT_GT(head, 2 * 44'100 * 3 / 10) << "bit for bit until the change";
    const auto tail = std::mismatch(all.rbegin(), all.rend(), track.rbegin()).first - all.rbegin();
    EXPECT_GT(tail, 2 * 44'100 * 2) << "bit for bit from the change on";
    // What lies between took two thirds of its time.
    const double fast = static_cast<double>(all.size()) - static_cast<double>(head + tail);
    const double music = static_cast<double>(track.size()) - static_cast<double>(head + tail);
    EXPECT_NEAR(music / fast, 1.5, 0.05);
}

TEST_F(TuningTest, ASpeedThatIsNotOneIsRefused)
{
    world.tracks["/a"] = pcmTrack(20'000, 1);
    begin();
    world.send("speed 4.00");
    EXPECT_EQ(world.waitLine("The line \"speed\""),
              "The line \"speed\" takes a ratio from 0.5 to 3.0, not \"4.00\"; the speed stays as it is.");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /a");
    stop();
    EXPECT_EQ(trimmed(world.written16()), samplesOf(world.tracks["/a"]));
}

TEST_F(TuningTest, DirectDsdKeepsItsSpeedItsLevelAndItsBits)
{
    world.device.dsdCarrier = Carrier::nativeDsd;
    world.tracks["/a"] = dsdTrack(250'000, 5);
    world.tracks["/a"].gains.trackGainDb = -6.0;
    begin({"-speed", "1.25", "-pitch-lock", "on", "-replaygain", "track", "-peak-guard", "on"});
    ASSERT_FALSE(world.waitLine("PG ").empty());
    world.send("speed 2.00");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /a");
    world.send("report");
    const bool starved = world.waitLine("underruns: ") != "underruns: 0";
    stop();
    const std::vector<uint8_t> wanted = dsdBytes(world.tracks["/a"], 0, 250'000);
    // A source that is late at the start is waited for with the silence of DSD.
    const auto &written = world.device.bytes;
    const bool whole =
        std::search(written.begin(), written.end(), wanted.begin(), wanted.end()) != written.end();
    EXPECT_TRUE(whole || starved);
    EXPECT_THAT(world.lines("DSD goes out directly and cannot be stretched"), SizeIs(2));
    EXPECT_EQ(world.lines("ReplayGain: "),
              std::vector<std::string>{"ReplayGain: not applied, since DSD goes out directly."});
    EXPECT_THAT(world.lines("speed: ").front(), StartsWith("speed: 1.00x (DSD goes out directly"));
    EXPECT_THAT(world.lines("dsp: ").front(), HasSubstr("the peak guard does not act on DSD"));
    EXPECT_THAT(world.lines("dsp: ").front(), Not(HasSubstr("ACTIVE")));
    if (!whole)
        GTEST_SKIP() << "this machine is too slow at the moment: silence stands in between";
}

TEST_F(TuningTest, SpeedsInAHurryEndWithTheLastOne)
{
    world.tracks["/a"] = pcmTrack(44'100 * 3, 1);
    begin({"-crossfade", "1.0"});
    for (int i = 0; i < 60; ++i) {
        world.send("speed " + std::to_string(0.5 + (i % 25) * 0.1).substr(0, 4));
        if (i % 7 == 0)
            world.send("ab 0.200 0.700");
        if (i % 11 == 0)
            world.send("pause");
        if (i % 11 == 1)
            world.send("resume");
        if (i % 5 == 0) {
            ASSERT_FALSE(world.waitLine("PG ").empty());
        }
    }
    world.send("resume");
    world.send("ab off");
    world.send("speed 3.00");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /a");
    EXPECT_EQ(world.lines("speed: ").back(), "speed: 3.00x, pitch kept (time stretching)");
    stop();
}

TEST_F(TuningTest, TheGuardLeavesAloneWhatNeedsNoGuarding)
{
    world.tracks["/a"] = pcmTrack(60'001, 1);
    world.tracks["/b"] = pcmTrack(20'000, 2);
    begin({"-peak-guard", "on"});
    ASSERT_FALSE(world.waitLine("PG ").empty());
    world.send("load /b");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /b");
    stop();
    std::vector<int16_t> wanted = samplesOf(world.tracks["/a"]);
    append(wanted, samplesOf(world.tracks["/b"]));
    EXPECT_EQ(trimmed(world.written16()), wanted);
    EXPECT_THAT(world.lines("dsp: ").front(), HasSubstr("the peak guard is on and has not been needed"));
    EXPECT_THAT(world.lines("bit-perfect: ").front(), Not(HasSubstr("NO")));
}

TEST_F(TuningTest, TheGuardIsSaidWhenItActsAndNothingPassesFullScale)
{
    world.tracks["/a"] = pcmTrack(44'100 * 3, 1);
    world.tracks["/a"].format.isFloat = true;
    world.tracks["/a"].format.depthBits = 32;
    world.tracks["/a"].scale = 1.5;
    world.device.validBits = 32;
    world.device.readBackKnown = true;
    begin();
    ASSERT_TRUE(waitPosition(world, 0.3));
    world.send("report");
    EXPECT_THAT(world.waitLine("SIGNAL CHAIN END"), Not(IsEmpty()));
    EXPECT_THAT(world.lines("bit-perfect: ").back(), HasSubstr("NO: "));
    EXPECT_THAT(world.lines("bit-perfect: ").back(), HasSubstr("samples of this track passed full scale"));
    world.send("guard on");
    EXPECT_EQ(world.waitLine("Peak guard: "),
              "Peak guard: on; it acts only where a sample would pass full scale.");
    EXPECT_THAT(world.waitLine("Peak guard: "), StartsWith("Peak guard: this track would pass full scale"));
    EXPECT_THAT(world.waitLine("dsp: "), HasSubstr("ACTIVE: the peak guard has brought"));
    EXPECT_THAT(world.waitLine("bit-perfect: "), HasSubstr("NO: the peak guard has brought"));
    const size_t bytesBefore = world.device.frames.load() * 8;
    ASSERT_TRUE(waitPosition(world, 2.0));
    stop();
    ASSERT_GT(world.device.bytes.size(), bytesBefore + 80'000);
    size_t full = 0;
    for (size_t at = bytesBefore; at + 4 <= world.device.bytes.size(); at += 4) {
        int32_t value = 0;
        std::memcpy(&value, world.device.bytes.data() + at, 4);
        full += value == INT32_MAX || value == INT32_MIN;
    }
    // A third of all samples would pass full scale; the highest ones may just touch it.
    EXPECT_LT(full, (world.device.bytes.size() - bytesBefore) / 4 / 20) << "brought down, not cut";
}

TEST_F(TuningTest, ReplayGainScalesEachTrackByItsOwnToTheBit)
{
    world.device.validBits = 32;
    world.tracks["/a"] = pcmTrack(44'101, 1);
    world.tracks["/a"].gains.trackGainDb = -7.3;
    world.tracks["/a"].gains.trackPeak = 0.98;
    world.tracks["/b"] = pcmTrack(20'000, 2);
    world.tracks["/b"].scale = 0.25;
    world.tracks["/b"].gains.trackGainDb = 4.2;
    world.tracks["/b"].gains.trackPeak = 0.25;
    begin({"-replaygain", "track"});
    ASSERT_FALSE(world.waitLine("PG ").empty());
    world.send("load /b");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /b");
    stop();
    EXPECT_EQ(world.lines("ReplayGain: "), (std::vector<std::string>{"ReplayGain: track gain -7.30 dB.",
                                                                     "ReplayGain: track gain +4.20 dB."}));
    EXPECT_THAT(world.lines("bit-perfect: ").front(),
                HasSubstr("NO: ReplayGain scales the samples by -7.30 dB"));
    EXPECT_THAT(world.lines("dsp: ").front(), HasSubstr("ACTIVE: ReplayGain, track gain -7.30 dB"));
    EXPECT_THAT(world.lines("volume: ").back(), HasSubstr("headroom"));
    std::vector<double> wanted;
    for (const int16_t s : samplesOf(world.tracks["/a"]))
        wanted.push_back(s / 32768.0 * std::pow(10.0, -7.3 / 20));
    for (const int16_t s : samplesOf(world.tracks["/b"]))
        wanted.push_back(0.25 * s / 32768.0 * std::pow(10.0, 4.2 / 20));
    ASSERT_GE(world.device.bytes.size(), wanted.size() * 4);
    for (size_t i = 0; i < wanted.size(); ++i) {
        int32_t value = 0;
        std::memcpy(&value, world.device.bytes.data() + i * 4, 4);
        ASSERT_NEAR(value, wanted[i] * 0x1p31, 2.0) << "sample " << i; // the rounding and its dither
    }
}

TEST_F(TuningTest, ATrackWithoutATagStaysBitExactAndItIsSaid)
{
    FakeWorld one;
    one.tracks["/a"] = pcmTrack(20'000, 1);
    one.start({"-i", "/a", "-replaygain", "album"});
    EXPECT_EQ(one.wait(), exit_code::done);
    EXPECT_EQ(one.written16(), samplesOf(one.tracks["/a"]));
    EXPECT_EQ(one.lines("ReplayGain: "),
              std::vector<std::string>{"ReplayGain: this track has no tag for it, so its level stays."});
    EXPECT_THAT(one.lines("dsp: ").front(), HasSubstr("ReplayGain: this track has no tag"));
    EXPECT_THAT(one.lines("dsp: ").front(), Not(HasSubstr("ACTIVE")));
    EXPECT_THAT(one.lines("volume: ").front(), HasSubstr("unity"));
}

} // namespace kelp_core::test
