#include "platform/head_start.h"

#include <chrono>
#include <future>
#include <gtest/gtest.h>
#include <sched.h>
#include <string>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

int niceOfThisThread()
{
    return getpriority(PRIO_PROCESS, 0);
}

int coresOfThisThread()
{
    cpu_set_t cores;
    return sched_getaffinity(0, sizeof cores, &cores) == 0 ? CPU_COUNT(&cores) : -1;
}

/// In nanoseconds; 0 where the kernel knows no slices of a thread's own.
std::uint64_t sliceOfThisThread()
{
    struct
    {
        std::uint32_t size, policy;
        std::uint64_t flags;
        std::int32_t nice;
        std::uint32_t priority;
        std::uint64_t slice, deadline, period;
    } scheduling = {};
    return syscall(SYS_sched_getattr, 0, &scheduling, sizeof scheduling, 0) == 0 ? scheduling.slice : 0;
}

} // namespace

TEST(HeadStart, GivesTheResultOfItsOwnThread)
{
    const std::thread::id here = std::this_thread::get_id();
    EXPECT_NE(besideTheStart(WorkRank::InTime, [] { return std::this_thread::get_id(); }).get(), here);
    bool done = false;
    besideTheStart(WorkRank::InTime, [&done] { done = true; }).get();
    EXPECT_TRUE(done);
}

// Only at its beginning it is bound to other cores; and it steps back alone.
TEST(HeadStart, StepsBackAndMayUseAllCores)
{
    const int nice = niceOfThisThread();
    const int most = 19;
    EXPECT_EQ(besideTheStart(WorkRank::InTime, niceOfThisThread).get(), std::min(nice + 10, most));
    EXPECT_EQ(besideTheStart(WorkRank::Last, niceOfThisThread).get(), std::min(nice + 10, most));
    EXPECT_EQ(niceOfThisThread(), nice);
    EXPECT_EQ(besideTheStart(WorkRank::InTime, coresOfThisThread).get(), coresOfThisThread());
}

// Else the display, woken on the same core, waits for the work's slice to end.
TEST(HeadStart, WhoWakesUpHasTheShorterSlice)
{
    const std::uint64_t slice = sliceOfThisThread();
    if (slice == 0)
        GTEST_SKIP() << "this kernel has no slices of a thread's own";
    EXPECT_GT(besideTheStart(WorkRank::InTime, sliceOfThisThread).get(), slice);
    EXPECT_EQ(sliceOfThisThread(), slice);
}

TEST(HeadStart, BoundToOneCoreItWorksThere)
{
    cpu_set_t before;
    ASSERT_EQ(sched_getaffinity(0, sizeof before, &before), 0);
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(sched_getcpu(), &one);
    ASSERT_EQ(sched_setaffinity(0, sizeof one, &one), 0);
    const int cores = besideTheStart(WorkRank::InTime, coresOfThisThread).get();
    ASSERT_EQ(sched_setaffinity(0, sizeof before, &before), 0);
    EXPECT_EQ(cores, 1);
}

// Two would hold each other up, and on a small machine the display as well.
TEST(HeadStart, OneWorkGoesOnAtATime)
{
    std::promise<void> mayEnd;
    std::vector<std::string> order; // written by the works alone, one after the other
    const auto note = [&order](const std::string &name) { return [&order, name] { order.push_back(name); }; };
    auto first = besideTheStart(WorkRank::InTime, [&, end = mayEnd.get_future().share()] {
        end.wait();
        order.emplace_back("first");
    });
    auto last = besideTheStart(WorkRank::Last, note("last"));
    auto second = besideTheStart(WorkRank::InTime, note("second"));
    auto veryLast = besideTheStart(WorkRank::Last, note("very last"));
    EXPECT_EQ(second.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
    mayEnd.set_value();
    veryLast.get();
    EXPECT_EQ(order, (std::vector<std::string>{"first", "second", "last", "very last"}));
    // Nobody is left to wait for.
    besideTheStart(WorkRank::Last, note("later")).get();
    EXPECT_EQ(order.back(), "later");
}

TEST(HeadStart, AWorkThatThrowsIsTheCallers)
{
    auto result = besideTheStart(WorkRank::InTime, []() -> int { throw 7; });
    EXPECT_THROW(result.get(), int);
}

// A process of lowest rank stays what it was asked to be.
TEST(HeadStart, LeavesOtherPoliciesAlone)
{
    std::thread idle([] {
        const sched_param none = {};
        ASSERT_EQ(sched_setscheduler(0, SCHED_IDLE, &none), 0);
        EXPECT_EQ(besideTheStart(WorkRank::InTime, [] { return sched_getscheduler(0); }).get(), SCHED_IDLE);
    });
    idle.join();
}
