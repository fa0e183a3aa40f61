#include "player_core/session/fake_world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

#include <unistd.h>

namespace kelp_core::test {

namespace {

using ::testing::EndsWith;
using ::testing::StartsWith;

const std::string ownPid = std::to_string(::getpid());

} // namespace

TEST(SessionTest, ADecoderThatIsHeldUpInItsFirstMomentsLeavesNoHole)
{
    bool first = false;
    bool afterSilence = false;
    // A busy machine may hold it up for longer than any reserve; it does not do so each time.
    for (int tries = 0; tries < 5 && !(first && afterSilence); ++tries) {
        FakeWorld world;
        world.device.clocked = true;
        world.device.bufferSec = 0.03;
        world.tracks["/a.wav"] = pcmTrack(30'000, 7);
        world.tracks["/a.wav"].stallAt = 44'100 / 20;
        world.tracks["/a.wav"].stall = std::chrono::milliseconds(400);
        world.tracks["/b.wav"] = world.tracks["/a.wav"];
        world.start({"-stream", "-parent-pid", ownPid});
        world.send("load /a.wav");
        EXPECT_EQ(world.waitLine("DONE "), "DONE /a.wav");
        world.send("load /b.wav");
        EXPECT_EQ(world.waitLine("DONE "), "DONE /b.wav");
        world.send("stop");
        world.wait();
        const std::vector<int16_t> heard = trimmed(world.written16());
        const std::vector<int16_t> track = samplesOf(world.tracks["/a.wav"]);
        ASSERT_GE(heard.size(), 2 * track.size());
        first = std::equal(track.begin(), track.end(), heard.begin());
        afterSilence = std::equal(track.rbegin(), track.rend(), heard.rbegin());
    }
    EXPECT_TRUE(first);
    EXPECT_TRUE(afterSilence);
}

TEST(SessionTest, PlaysTheOnlySourceBitForBitAndEndsWithZero)
{
    FakeWorld world;
    world.tracks["/a.wav"] = pcmTrack(100'001, 7);
    world.start({"-i", "/a.wav"});
    EXPECT_EQ(world.wait(), exit_code::done);
    EXPECT_EQ(world.written16(), samplesOf(world.tracks["/a.wav"]));
    EXPECT_EQ(world.lines("SRC "), std::vector<std::string>{"SRC 44100 16 2 wav 0 2.268"});
    EXPECT_EQ(world.lines("DONE "), std::vector<std::string>{"DONE /a.wav"});
    ASSERT_FALSE(world.lines("PG ").empty());
    EXPECT_EQ(world.lines("PG ").back(), "PG 100.00 2.268 2.268");
}

TEST(SessionTest, EndsWithDoneOnlyWhenTheDeviceHasPlayedItOut)
{
    FakeWorld world;
    world.device.clocked = true;
    world.device.bufferSec = 0.3;
    world.tracks["/a.wav"] = pcmTrack(22050, 7);
    const auto begin = std::chrono::steady_clock::now();
    world.start({"-i", "/a.wav"});
    EXPECT_EQ(world.wait(), exit_code::done);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(490));
    EXPECT_EQ(world.written16(), samplesOf(world.tracks["/a.wav"]));
}

TEST(SessionTest, StartsWhereItIsTold)
{
    FakeWorld world;
    world.tracks["/a.wav"] = pcmTrack(88200, 3);
    world.start({"-i", "/a.wav", "-start", "0.5"});
    EXPECT_EQ(world.wait(), exit_code::done);
    EXPECT_EQ(world.written16(), samplesOf(world.tracks["/a.wav"], 22050));
    EXPECT_EQ(world.lines("PG ").front(), "PG 25.00 0.500 2.000");
}

TEST(SessionTest, StreamSessionTakesTracksByLinesAndStaysUp)
{
    FakeWorld world;
    world.tracks["/a b.wav"] = pcmTrack(10'000, 1);
    world.tracks["/c.wav"] = pcmTrack(20'000, 2, 96000);
    world.start({"-stream", "-parent-pid", ownPid});
    world.send("load /a b.wav");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /a b.wav");
    world.send("loadat 0.100 /c.wav");
    EXPECT_EQ(world.waitLine("SRC "), "SRC 96000 16 2 wav 0 0.208");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /c.wav");
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
    EXPECT_EQ(world.device.opened, 2);
    EXPECT_EQ(world.device.closed, 2);
}

TEST(SessionTest, JoinsAPreloadedTrackToTheFrame)
{
    FakeWorld world;
    world.device.clocked = true;
    world.tracks["/a.wav"] = pcmTrack(44'101, 1);
    world.tracks["/b.wav"] = pcmTrack(30'011, 2);
    world.start({"-stream", "-parent-pid", ownPid});
    world.send("load /a.wav");
    ASSERT_FALSE(world.waitLine("PG ").empty());
    world.send("load /b.wav"); // one second is left: a preload
    EXPECT_EQ(world.waitLine("SRC "), "SRC 44100 16 2 wav 0 0.681");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /b.wav");
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
    std::vector<int16_t> wanted = samplesOf(world.tracks["/a.wav"]);
    const std::vector<int16_t> second = samplesOf(world.tracks["/b.wav"]);
    wanted.insert(wanted.end(), second.begin(), second.end());
    EXPECT_EQ(trimmed(world.written16()), wanted);
    EXPECT_EQ(world.lines("DONE ").size(), 1u) << "a join is no end of a track";
    EXPECT_EQ(world.device.opened, 1);
}

TEST(SessionTest, DropsAPreloadOfAnotherRateAndPlaysItWhenNobodyAsksForAnything)
{
    FakeWorld world;
    world.device.clocked = true;
    world.tracks["/a.wav"] = pcmTrack(30'000, 1);
    world.tracks["/b.wav"] = pcmTrack(9'600, 2, 48000);
    world.start({"-stream", "-parent-pid", ownPid});
    world.send("load /a.wav");
    ASSERT_FALSE(world.waitLine("PG ").empty());
    world.send("load /b.wav");
    EXPECT_EQ(world.waitLine("preload dropped: "),
              "preload dropped: the rate differs (48000 Hz after 44100 Hz);"
              " the track finishes normally");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /a.wav");
    EXPECT_EQ(world.waitLine("SRC "), "SRC 48000 16 2 wav 0 0.200");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /b.wav");
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
    EXPECT_EQ(world.device.requests.at(1).stream.rateHz, 48000);
}

TEST(SessionTest, AnEarlyLoadLeavesTheTrackAtOnce)
{
    FakeWorld world;
    world.device.clocked = true;
    world.tracks["/long.wav"] = pcmTrack(44100 * 60, 1);
    world.tracks["/b.wav"] = pcmTrack(8'000, 2);
    world.start({"-stream", "-parent-pid", ownPid});
    world.send("load /long.wav");
    ASSERT_FALSE(world.waitLine("PG ").empty());
    world.send("load /b.wav");
    EXPECT_EQ(world.waitLine("SRC "), "SRC 44100 16 2 wav 0 0.181");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /b.wav");
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
    EXPECT_EQ(world.device.opened, 1) << "the device stays open when the format stays";
    const std::vector<int16_t> all = trimmed(world.written16());
    const std::vector<int16_t> second = samplesOf(world.tracks["/b.wav"]);
    ASSERT_GT(all.size(), second.size());
    EXPECT_TRUE(std::equal(second.rbegin(), second.rend(), all.rbegin()));
}

TEST(SessionTest, ADeviceThatRanDryIsToldAtOnceAndThenNowAndAgain)
{
    FakeWorld world;
    world.device.clocked = true;
    world.device.bufferSec = 1.0;
    world.tracks["/a.wav"] = pcmTrack(44'100 * 60, 1);
    world.start({"-stream", "-parent-pid", ownPid});
    world.send("load /a.wav");
    ASSERT_FALSE(world.waitLine("PG ").empty());
    const auto before = world.lines("WARN The device ran dry ").size(); // by this machine's own doing
    world.device.underruns = 1000;
    EXPECT_THAT(
        world.waitLine("WARN The device ran dry "),
        EndsWith(" times, so gaps of silence stood in the music: a busy machine or a slow disk did not "
                 "deliver it in time."));
    EXPECT_THAT(world.waitLine("underruns: "), StartsWith("underruns: 10"));
    const auto begin = std::chrono::steady_clock::now();
    for (unsigned more = 1001; more <= 1010; ++more) {
        world.device.underruns = more;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    const bool quickly = std::chrono::steady_clock::now() - begin < std::chrono::seconds(5);
    EXPECT_TRUE(!quickly || world.lines("WARN The device ran dry ").size() <= before + 2)
        << "not once a time";
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
}

TEST(SessionTest, CrossfadeTakesItsTimeOffTheSum)
{
    FakeWorld world;
    world.device.clocked = true;
    world.tracks["/a.wav"] = pcmTrack(44'100, 1);
    world.tracks["/b.wav"] = pcmTrack(44'100, 2);
    world.start({"-stream", "-parent-pid", ownPid, "-crossfade", "0.5"});
    world.send("load /a.wav");
    while (true) {
        const std::string line = world.waitLine("PG ");
        ASSERT_FALSE(line.empty());
        if (std::stod(line.substr(line.find(' ', 3))) >= 0.4)
            break;
    }
    world.send("load /b.wav");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /b.wav");
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
    const auto frames = static_cast<int64_t>(trimmed(world.written16()).size() / 2);
    // The fade begins when the second track is there, so it may be shorter than asked for, never longer.
    EXPECT_GE(frames, 88'200 - 22'050);
    EXPECT_LT(frames, 88'200 - 4'410);
}

TEST(SessionTest, ATrackShorterThanItsFadeEndsTheChain)
{
    FakeWorld world;
    world.device.clocked = true;
    world.tracks["/a.wav"] = pcmTrack(44'100, 1);
    world.tracks["/b.wav"] = pcmTrack(4'000, 2);
    world.tracks["/c.wav"] = pcmTrack(4'000, 3);
    world.start({"-stream", "-parent-pid", ownPid, "-crossfade", "2.0"});
    world.send("load /a.wav");
    ASSERT_FALSE(world.waitLine("PG ").empty());
    world.send("load /b.wav");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /b.wav");
    world.send("load /c.wav");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /c.wav");
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
    const std::vector<int16_t> all = trimmed(world.written16());
    const std::vector<int16_t> last = samplesOf(world.tracks["/c.wav"]);
    ASSERT_GT(all.size(), last.size());
    EXPECT_TRUE(std::equal(last.rbegin(), last.rend(), all.rbegin())) << "nothing of the fade is left over";
}

TEST(SessionTest, StopEndsWithinAMoment)
{
    FakeWorld world;
    world.device.clocked = true;
    world.tracks["/long.wav"] = pcmTrack(44100 * 60, 1);
    world.start({"-stream", "-parent-pid", ownPid});
    world.send("load /long.wav");
    ASSERT_FALSE(world.waitLine("PG ").empty());
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
    EXPECT_EQ(world.device.closed, 1);
}

TEST(SessionTest, PauseHoldsThePositionAndResumeGoesOn)
{
    FakeWorld world;
    world.device.clocked = true;
    world.tracks["/a.wav"] = pcmTrack(44'100, 1);
    world.start({"-stream", "-parent-pid", ownPid});
    world.send("load /a.wav");
    ASSERT_FALSE(world.waitLine("PG ").empty());
    world.send("pause");
    std::string before;
    std::string now;
    for (int same = 0; same < 4;) {
        now = world.waitLine("PG ");
        ASSERT_FALSE(now.empty());
        same = now == before ? same + 1 : 0;
        before = now;
    }
    EXPECT_TRUE(world.lines("DONE ").empty());
    world.send("resume");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /a.wav");
    world.closeQueue();
    EXPECT_EQ(world.wait(), exit_code::stopped);
}

TEST(SessionTest, AFailingOnlySourceEndsWithOneAndOneLine)
{
    FakeWorld world;
    world.start({"-i", "/missing.wav"});
    EXPECT_EQ(world.wait(), exit_code::unplayable);
    EXPECT_EQ(world.lines("FAILED "),
              std::vector<std::string>{"FAILED cannot open: no such file: /missing.wav"});
    EXPECT_TRUE(world.lines("DONE ").empty());
}

TEST(SessionTest, ATruncatedSourcePlaysWhatIsThere)
{
    FakeWorld world;
    world.tracks["/cut.wav"] = pcmTrack(44'100, 1);
    world.tracks["/cut.wav"].failAt = 20'000;
    world.start({"-i", "/cut.wav"});
    EXPECT_EQ(world.wait(), exit_code::unplayable);
    EXPECT_EQ(world.lines("FAILED "), std::vector<std::string>{"FAILED the file ends too early: /cut.wav"});
    EXPECT_TRUE(world.lines("DONE ").empty());
    EXPECT_EQ(world.written16().size(), 40'000u);
}

TEST(SessionTest, AStreamSessionSurvivesAFailure)
{
    FakeWorld world;
    world.tracks["/a.wav"] = pcmTrack(5'000, 1);
    world.start({"-stream", "-parent-pid", ownPid});
    world.send("load /missing.wav");
    EXPECT_EQ(world.waitLine("FAILED "), "FAILED cannot open: no such file: /missing.wav");
    world.send("load-iso 3 /disc.iso");
    EXPECT_EQ(world.waitLine("FAILED "), "FAILED cannot open: no such file: /disc.iso");
    world.send("load /a.wav");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /a.wav");
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
}

TEST(SessionTest, ARefusingDeviceEndsWithFour)
{
    FakeWorld world;
    world.tracks["/a.wav"] = pcmTrack(5'000, 1);
    world.device.refuse = "cannot get exclusive access to hw:9: it is in use";
    world.start({"-i", "/a.wav"});
    EXPECT_EQ(world.wait(), exit_code::noDevice);
    EXPECT_EQ(world.lines("cannot get exclusive access").size(), 1u);
}

TEST(SessionTest, AVanishingDeviceEndsWithFour)
{
    FakeWorld world;
    world.device.clocked = true;
    world.device.goneAfter = 10'000;
    world.tracks["/a.wav"] = pcmTrack(441'000, 1);
    world.start({"-stream", "-parent-pid", ownPid});
    world.send("load /a.wav");
    EXPECT_EQ(world.wait(), exit_code::noDevice);
    EXPECT_EQ(world.lines("The output device is gone: it was pulled out").size(), 1u);
}

TEST(SessionTest, TheHostsClosingIsAStop)
{
    FakeWorld world;
    world.start({"-stream", "-parent-pid", ownPid});
    world.closeQueue();
    EXPECT_EQ(world.wait(), exit_code::stopped);
}

TEST(SessionTest, AWholeSheetTellsItsSegments)
{
    FakeWorld world;
    world.device.clocked = true;
    world.tracks["/s.cue"] = pcmTrack(44'100, 1);
    world.tracks["/s.cue"].segments = {{1, 0, {}, {}}, {2, 22'050, {}, {}}};
    world.start({"-cue", "/s.cue"});
    EXPECT_EQ(world.wait(), exit_code::done);
    EXPECT_EQ(world.lines("SEG "), (std::vector<std::string>{"SEG 0.000 0.500 1", "SEG 0.500 1.000 2"}));
}

TEST(SessionTest, VolumeBelowFullIsSaidAndScales)
{
    FakeWorld world;
    world.tracks["/a.wav"] = pcmTrack(5'000, 1);
    world.start({"-i", "/a.wav", "-vol", "0"});
    EXPECT_EQ(world.wait(), exit_code::done);
    const std::vector<int16_t> all = world.written16();
    ASSERT_EQ(all.size(), 10'000u);
    for (const int16_t s : all)
        EXPECT_LE(std::abs(s), 2) << "silence but for dither";
    const auto bitPerfect = world.lines("bit-perfect: ");
    ASSERT_EQ(bitPerfect.size(), 1u);
    EXPECT_NE(bitPerfect.front().find("NO: the volume stage"), std::string::npos);
}

TEST(SessionTest, DoPKeepsItsMarkersInStepOverTracksPausesAndSilence)
{
    FakeWorld world;
    world.device.dsdCarrier = Carrier::dop;
    world.device.clocked = true;
    world.tracks["/a.dsf"] = dsdTrack(176'401, 1);
    world.tracks["/b.dsf"] = dsdTrack(100'003, 2);
    world.start({"-stream", "-parent-pid", ownPid});
    world.send("load /a.dsf");
    ASSERT_FALSE(world.waitLine("PG ").empty());
    world.send("pause");
    ASSERT_FALSE(world.waitLine("PG ").empty());
    world.send("resume");
    world.send("vol 30");
    world.send("load /b.dsf");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /b.dsf");
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
    const std::vector<uint8_t> &bytes = world.device.bytes;
    ASSERT_GT(bytes.size(), 100'000u);
    for (size_t frame = 0; frame * 6 + 5 < bytes.size(); ++frame) {
        const uint8_t marker = frame % 2 ? 0xFA : 0x05;
        ASSERT_EQ(bytes[frame * 6 + 2], marker) << "frame " << frame;
        ASSERT_EQ(bytes[frame * 6 + 5], marker) << "frame " << frame;
    }
    EXPECT_EQ(world.lines("SPC none").empty(), false);
    EXPECT_FALSE(world.lines("volume: ").empty());
}

TEST(SessionTest, TheSpectrumSendsBothChannelsAndItsZonesOutlastTheFrames)
{
    FakeWorld world;
    world.device.clocked = true;
    world.tracks["/a.wav"] = pcmTrack(44100, 7);
    world.start({"-i", "/a.wav", "-spectrum", "on"});
    EXPECT_EQ(world.wait(), exit_code::done);
    // A bare line would be overtaken in a host that keeps the newest.
    EXPECT_EQ(world.lines("[player] SPC zones low=").size(), 1u);
    const std::vector<std::string> frames = world.lines("SPC 44100 64 ");
    ASSERT_FALSE(frames.empty());
    // Two channels of noise differ both ways; a held peak is never below what it holds.
    bool below = false;
    const std::string &frame = frames.back();
    const size_t main = std::string("SPC 44100 64 ").size();
    for (size_t band = 0; band < 64; ++band)
        below = below || frame.substr(main + 129 + 2 * band, 2) < frame.substr(main + 2 * band, 2);
    EXPECT_TRUE(below);
}

TEST(SessionTest, DsdBitsReachTheDeviceAsTheyAre)
{
    FakeWorld world;
    world.device.dsdCarrier = Carrier::nativeDsd;
    world.tracks["/a.dsf"] = dsdTrack(50'001, 5);
    world.start({"-i", "/a.dsf"});
    EXPECT_EQ(world.wait(), exit_code::done);
    std::vector<uint8_t> wanted;
    for (const int16_t s : samplesOf(world.tracks["/a.dsf"]))
        wanted.push_back(static_cast<uint8_t>(s));
    EXPECT_EQ(world.device.bytes, wanted);
}

TEST(SessionTest, DecodedDsdHasItsLengthAndItsFilterLine)
{
    FakeWorld world;
    world.tracks["/a.dsf"] = dsdTrack(35'280, 5); // a tenth of a second
    world.start({"-i", "/a.dsf", "-pcm-filter", "fast"});
    EXPECT_EQ(world.wait(), exit_code::done);
    EXPECT_EQ(world.written16().size() / 2, 17'640u);
    EXPECT_EQ(world.lines("PDM2PCM filter "), std::vector<std::string>{"PDM2PCM filter DSD64 fast manual"});
}

TEST(SessionTest, AnHourOfDoPHasNoMarkerOutOfStep)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    constexpr int64_t seconds = 30;
#else
    constexpr int64_t seconds = 3600;
#endif
    FakeWorld world;
    world.device.dsdCarrier = Carrier::dop;
    world.device.keepBytes = false;
    world.device.countMarkers = true;
    world.tracks["/hour.dsf"] = dsdTrack(352'800 * seconds + 1, 1);
    world.tracks["/hour.dsf"].plain = true;
    world.start({"-i", "/hour.dsf"});
    EXPECT_EQ(world.wait(), exit_code::done);
    EXPECT_EQ(world.device.frames.load(), static_cast<uint64_t>(176'400 * seconds + 1));
    EXPECT_EQ(world.device.wrongMarkers.load(), 0u);
}

TEST(SessionTest, AStormOfLoadsEndsWithTheLastOne)
{
    FakeWorld world;
    world.device.clocked = true;
    world.device.dsdCarrier = Carrier::dop;
    world.device.keepBytes = false;
    world.tracks["/a.wav"] = pcmTrack(44'100 * 60, 1);
    world.tracks["/b.wav"] = pcmTrack(96'000 * 60, 2, 96'000);
    world.tracks["/c.dsf"] = dsdTrack(352'800 * 60, 3);
    world.tracks["/last.wav"] = pcmTrack(4'000, 4);
    world.start({"-stream", "-parent-pid", ownPid, "-spectrum", "on", "-scope", "on", "-crossfade", "1.0"});
    const char *const lines[] = {"load /a.wav",  "loadat 10.000 /a.wav",
                                 "pause",        "load /b.wav",
                                 "vol 40",       "load /c.dsf",
                                 "scope off",    "pause",
                                 "load /none",   "resume",
                                 "spectrum off", "load /a.wav",
                                 "load /a.wav",  "scope on",
                                 "vol 100",      "report",
                                 "spectrum on"};
    for (size_t i = 0; i < 300; ++i)
        world.send(lines[i * 7 % std::size(lines)]);
    world.send("loadat 0.000 /last.wav");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /last.wav");
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
    EXPECT_EQ(world.device.opened, world.device.closed);
}

TEST(SessionTest, ATrackTooLateForItsDeckStillFollows)
{
    // Shorter than what a deck reads ahead: its end is sealed almost at once.
    FakeWorld world;
    world.device.clocked = true;
    world.device.bufferSec = 0.5;
    world.tracks["/a.wav"] = pcmTrack(8'000, 1);
    world.tracks["/b.wav"] = pcmTrack(8'000, 2);
    world.start({"-stream", "-parent-pid", ownPid});
    world.send("load /a.wav");
    ASSERT_FALSE(world.waitLine("SRC ").empty());
    world.send("load /b.wav");
    ASSERT_FALSE(world.waitLine("SRC ").empty());
    EXPECT_EQ(world.waitLine("DONE /b"), "DONE /b.wav");
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
}

TEST(SessionTest, UnknownAndMalformedLinesAreHarmless)
{
    FakeWorld world;
    world.tracks["/a.wav"] = pcmTrack(20'000, 1);
    world.start({"-stream", "-parent-pid", ownPid});
    world.send("dance");
    world.send("vol loud");
    world.send("fx eq on");
    world.send("fx eq on");
    world.send("fx balance 50");
    world.send(std::string(70'000, 'x'));
    world.send("load /a.wav");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /a.wav");
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
    EXPECT_EQ(world.lines("WARN ").size(), 1u);
    EXPECT_EQ(world.lines("The line \"vol\"").size(), 1u);
    EXPECT_EQ(world.lines("A control line longer").size(), 1u);
}

} // namespace kelp_core::test
