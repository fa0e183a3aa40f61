#include "player_core/output/frame_clock.h"

#include <gtest/gtest.h>

using kelp_core::FrameClock;
using namespace std::chrono_literals;

namespace {

const FrameClock::Time start{1h};

TEST(FrameClock, PlaysAtItsRateFromTheFirstPush)
{
    FrameClock clock(48000, 9600);
    EXPECT_EQ(clock.room(start), 9600);
    EXPECT_EQ(clock.pending(start + 5s), 0) << "nothing was pushed, so nothing runs";
    clock.push(9600, start + 5s);
    EXPECT_EQ(clock.room(start + 5s), 0);
    EXPECT_EQ(clock.pending(start + 5s + 100ms), 4800);
    EXPECT_EQ(clock.room(start + 5s + 100ms), 4800);
    EXPECT_EQ(clock.underruns(), 0u);
}

TEST(FrameClock, CountsEachTimeItRunsDryOnce)
{
    FrameClock clock(48000, 9600);
    clock.push(4800, start);
    EXPECT_EQ(clock.pending(start + 100ms), 0);
    EXPECT_EQ(clock.underruns(), 0u) << "just in time is in time";
    EXPECT_EQ(clock.pending(start + 150ms), 0);
    EXPECT_EQ(clock.pending(start + 1s), 0);
    EXPECT_EQ(clock.underruns(), 1u);
    clock.push(4800, start + 1s);
    EXPECT_EQ(clock.pending(start + 1050ms), 2400);
    EXPECT_EQ(clock.underruns(), 1u);
}

TEST(FrameClock, DropStopsItWithoutAnUnderrun)
{
    FrameClock clock(44100, 8820);
    clock.push(8820, start);
    clock.drop();
    EXPECT_EQ(clock.pending(start + 10s), 0);
    EXPECT_EQ(clock.underruns(), 0u);
    EXPECT_EQ(clock.room(start + 10s), 8820);
}

TEST(FrameClock, SaysHowLongUntilThereIsRoom)
{
    FrameClock clock(1000, 200);
    EXPECT_EQ(clock.untilRoom(200, start), 0ns);
    clock.push(200, start);
    EXPECT_GE(clock.untilRoom(50, start), 50ms);
    EXPECT_LT(clock.untilRoom(50, start), 51ms);
    EXPECT_EQ(clock.untilRoom(50, start + 50ms), 0ns);
    EXPECT_LT(clock.untilRoom(1'000'000, start), 201ms) << "never more than the whole buffer";
}

TEST(FrameClock, DoesNotDriftOverADay)
{
    FrameClock clock(352800, 70560);
    FrameClock::Time now = start;
    clock.push(70560, now);
    for (int minute = 0; minute < 24 * 60; ++minute) {
        now += 100ms;
        clock.push(35280, now);
    }
    EXPECT_EQ(clock.pending(now), 70560);
    EXPECT_EQ(clock.underruns(), 0u);
}

} // namespace
