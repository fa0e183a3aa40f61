// The audio thread allocates nothing, waits for no lock and reads and writes no file, whatever is asked of
// it.

#include "player_core/session/fake_world.h"
#include "player_core/session/wait_counter.h"

#include <gtest/gtest.h>

#include <mutex>
#include <thread>

#include <pthread.h>
#include <unistd.h>

namespace kelp_core::test {

namespace {

const std::string ownPid = std::to_string(::getpid());

/// Of the difference.
void expectNone(const WaitCounts &before, const char *what)
{
    const WaitCounts after = waitCounts();
    EXPECT_EQ(after.allocations - before.allocations, 0) << what;
    EXPECT_EQ(after.locks - before.locks, 0) << what;
    EXPECT_EQ(after.files - before.files, 0) << what;
}

/// A world whose device does none of it either.
void quiet(FakeWorld &world)
{
    world.device.keepBytes = false;
    world.device.clocked = true;
    world.device.bufferSec = 0.05;
}

} // namespace

TEST(AudioThread, TheCountersCount)
{
    if (!countsWaits())
        GTEST_SKIP() << "A sanitizer has its own malloc and locks.";
    const WaitCounts before = waitCounts();
    std::mutex mutex;
    int pipe[2];
    ASSERT_EQ(::pipe(pipe), 0);
    std::thread([&] {
        pthread_setname_np(pthread_self(), "kelp-audio");
        const std::lock_guard lock(mutex);
        std::vector<int> some(1000);
        some[0] = 1;
        [[maybe_unused]] const ssize_t written = ::write(pipe[1], some.data(), 1);
    }).join();
    ::close(pipe[0]);
    ::close(pipe[1]);
    const WaitCounts after = waitCounts();
    EXPECT_GT(after.allocations, before.allocations);
    EXPECT_GT(after.locks, before.locks);
    EXPECT_GT(after.files, before.files);
}

TEST(AudioThread, OfPcmNeitherAllocatesNorWaits)
{
    if (!countsWaits())
        GTEST_SKIP() << "A sanitizer has its own malloc and locks.";
    const WaitCounts before = waitCounts();
    FakeWorld world;
    quiet(world);
    world.tracks["/a.wav"] = pcmTrack(44'100 * 20, 1);
    world.tracks["/b.wav"] = pcmTrack(44'100 / 2, 2);
    world.tracks["/c.wav"] = pcmTrack(44'100 * 20, 3);
    world.start({"-stream", "-parent-pid", ownPid, "-crossfade", "0.3"});
    world.send("load /a.wav");
    ASSERT_FALSE(world.waitLine("PG ").empty());
    for (const char *line :
         {"spectrum on", "vol 30", "guard on", "scope on", "speed 1.50", "ab 1.000 2.000", "vol 100", "pause",
          "vol 80", "resume", "ab off", "speed 1.00", "guard off", "loadat 19.500 /a.wav"}) {
        world.send(line);
        std::this_thread::sleep_for(std::chrono::milliseconds(60));
    }
    world.send("load /b.wav"); // fades in
    EXPECT_EQ(world.waitLine("DONE "), "DONE /b.wav");
    world.send("load /c.wav"); // after silence
    ASSERT_FALSE(world.waitLine("SRC ").empty());
    world.send("load /a.wav"); // while it sounds
    ASSERT_FALSE(world.waitLine("SRC ").empty());
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
    expectNone(before, "PCM");
}

TEST(AudioThread, OfDsdNeitherAllocatesNorWaits)
{
    if (!countsWaits())
        GTEST_SKIP() << "A sanitizer has its own malloc and locks.";
    for (const Carrier carrier : {Carrier::dop, Carrier::nativeDsd}) {
        const WaitCounts before = waitCounts();
        FakeWorld world;
        quiet(world);
        world.device.dsdCarrier = carrier;
        world.tracks["/a.dsf"] = dsdTrack(352'800 * 10, 1);
        world.tracks["/b.dsf"] = dsdTrack(100'001, 2);
        world.start({"-stream", "-parent-pid", ownPid});
        world.send("load /a.dsf");
        ASSERT_FALSE(world.waitLine("PG ").empty());
        for (const char *line : {"pause", "resume", "ab 1.000 2.000", "ab off", "speed 1.25", "vol 10",
                                 "guard on", "loadat 9.500 /a.dsf", "load /b.dsf"}) {
            world.send(line);
            std::this_thread::sleep_for(std::chrono::milliseconds(60));
        }
        EXPECT_EQ(world.waitLine("DONE "), "DONE /b.dsf");
        world.send("stop");
        EXPECT_EQ(world.wait(), exit_code::stopped);
        expectNone(before, carrier == Carrier::dop ? "DoP" : "native DSD");
    }
}

} // namespace kelp_core::test
