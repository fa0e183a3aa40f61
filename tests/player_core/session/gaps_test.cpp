// What stands between two pieces of music: sources that hang, fades that are disturbed, devices that run dry.

#include "player_core/session/fake_world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <thread>

#include <unistd.h>

namespace kelp_core::test {

namespace {

using namespace std::chrono_literals;

const std::string ownPid = std::to_string(::getpid());

int gapsTold(FakeWorld &world)
{
    world.send("report");
    world.send("ab off"); // its answer comes behind the report
    EXPECT_FALSE(world.waitLine("A/B loop: none").empty());
    const std::vector<std::string> told = world.lines("underruns: ");
    return told.empty() ? -1 : std::atoi(told.back().substr(11).c_str());
}

} // namespace

TEST(GapsTest, ASourceThatHangsDoesNotKeepTheNextOneFromItsTurn)
{
    for (const bool clocked : {false, true}) {
        const auto hung = std::make_shared<std::atomic<bool>>(true);
        FakeWorld world;
        world.device.clocked = clocked;
        world.tracks["/a.wav"] = pcmTrack(44'100 * 60, 1);
        world.tracks["/a.wav"].stallAt = 30'000;
        world.tracks["/a.wav"].hung = hung;
        world.tracks["/b.wav"] = pcmTrack(20'000, 2);
        world.start({"-stream", "-parent-pid", ownPid});
        world.send("load /a.wav");
        ASSERT_TRUE(world.waitFrames(30'000));
        world.send("load /b.wav");
        EXPECT_EQ(world.waitLine("DONE "), "DONE /b.wav");
        world.send("vol 100");
        EXPECT_FALSE(world.waitLine("volume:").empty()) << "nor is any other line kept waiting";
        *hung = false;
        world.send("stop");
        EXPECT_EQ(world.wait(), exit_code::stopped);
        std::vector<int16_t> heard = world.written16();
        std::erase(heard, 0); // the silence while nothing came
        std::vector<int16_t> wanted = samplesOf(world.tracks["/a.wav"], 0, 30'000);
        const std::vector<int16_t> second = samplesOf(world.tracks["/b.wav"]);
        wanted.insert(wanted.end(), second.begin(), second.end());
        EXPECT_TRUE(heard == wanted) << (clocked ? "clocked" : "at once")
                                     << ": nothing of the first one behind the place at which it hung";
    }
}

TEST(GapsTest, ATrackThatIsLeftFadesOutWhateverIsPressedMeanwhile)
{
    FakeWorld world;
    world.device.clocked = true;
    world.device.bufferSec = 0.02; // the lines come while a write waits, and are taken together
    world.tracks["/a.wav"] = pcmTrack(44'100 * 60, 1);
    world.tracks["/b.wav"] = pcmTrack(10'000, 2);
    world.start({"-stream", "-parent-pid", ownPid});
    world.send("load /a.wav");
    ASSERT_FALSE(world.waitLine("PG ").empty());
    for (int round = 0; round < 10; ++round) {
        world.send("load /b.wav");
        world.send("pause");
        world.send("resume");
        EXPECT_EQ(world.waitLine("DONE "), "DONE /b.wav");
        world.send("load /a.wav");
        ASSERT_FALSE(world.waitLine("SRC ").empty());
        ASSERT_FALSE(world.waitLine("PG ").empty());
    }
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
    const std::vector<int16_t> heard = world.written16();
    const std::vector<int16_t> second = samplesOf(world.tracks["/b.wav"], 0, 1'000);
    auto at = heard.begin();
    int found = 0;
    while ((at = std::search(at, heard.end(), second.begin(), second.end())) != heard.end()) {
        ASSERT_GT(at - heard.begin(), 8);
        for (auto before = at - 8; before != at; ++before)
            EXPECT_LT(std::abs(*before), 3'000) << "the last frames of what was left";
        at += static_cast<std::ptrdiff_t>(second.size());
        ++found;
    }
    EXPECT_GT(found, 0);
}

TEST(GapsTest, AShortTrackDoesNotCutOffTheOneThatFadesIntoIt)
{
    FakeWorld world;
    world.device.clocked = true;
    world.tracks["/a.wav"] = pcmTrack(44'100, 1);
    world.tracks["/b.wav"] = pcmTrack(2'000, 2);
    world.start({"-stream", "-parent-pid", ownPid, "-crossfade", "2.0"});
    world.send("load /a.wav");
    ASSERT_FALSE(world.waitLine("PG ").empty());
    world.send("load /b.wav");
    EXPECT_EQ(world.waitLine("DONE "), "DONE /b.wav");
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
    EXPECT_GT(trimmed(world.written16()).size(), 2u * 40'000u) << "it fades to its own end";
    EXPECT_EQ(world.lines("DONE ").size(), 1u);
}

TEST(GapsTest, ADeviceThatRunsDryInAPauseLeavesNoGap)
{
    FakeWorld world;
    world.device.clocked = true;
    world.tracks["/a.wav"] = pcmTrack(44'100 * 60, 1);
    world.start({"-stream", "-parent-pid", ownPid});
    world.send("load /a.wav");
    ASSERT_FALSE(world.waitLine("PG ").empty());
    const int before = gapsTold(world); // by this machine's own doing
    world.send("pause");
    const uint64_t paused = world.device.frames;
    ASSERT_TRUE(world.waitFrames(paused + 22'050));
    world.device.underruns = 7;
    ASSERT_TRUE(world.waitFrames(world.device.frames + 22'050));
    world.send("resume");
    EXPECT_LT(gapsTold(world) - before, 7) << "silence was missing, no music";
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
}

TEST(GapsTest, AGapIsToldThoughTheDeviceIsClosedBehindIt)
{
    FakeWorld world;
    world.device.clocked = true;
    world.tracks["/a.wav"] = pcmTrack(44'100 * 60, 1);
    world.tracks["/b.wav"] = pcmTrack(96'000 * 60, 2, 96000);
    world.start({"-stream", "-parent-pid", ownPid});
    world.send("load /a.wav");
    ASSERT_FALSE(world.waitLine("PG ").empty());
    world.device.underruns = 1000;
    ASSERT_FALSE(world.waitLine("underruns: 1").empty());
    world.device.underruns = 2000; // within the time in which it is not told again
    ASSERT_TRUE(world.waitFrames(world.device.frames + 22'050));
    world.send("load /b.wav"); // of another rate
    EXPECT_FALSE(world.waitLine("underruns: 2").empty());
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
}

} // namespace kelp_core::test
