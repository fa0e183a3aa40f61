#include "platform/head_start.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/resource.h>
#include <thread>

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
    EXPECT_EQ(besideTheStart(WorkRank::InTime, niceOfThisThread).get(), std::min(nice + 5, most));
    EXPECT_EQ(besideTheStart(WorkRank::Last, niceOfThisThread).get(), std::min(nice + 10, most));
    EXPECT_EQ(besideTheStart(WorkRank::Awaited, niceOfThisThread).get(), nice);
    EXPECT_EQ(niceOfThisThread(), nice);
    EXPECT_EQ(besideTheStart(WorkRank::Awaited, coresOfThisThread).get(), coresOfThisThread());
}

TEST(HeadStart, BoundToOneCoreItWorksThere)
{
    cpu_set_t before;
    ASSERT_EQ(sched_getaffinity(0, sizeof before, &before), 0);
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(sched_getcpu(), &one);
    ASSERT_EQ(sched_setaffinity(0, sizeof one, &one), 0);
    const int cores = besideTheStart(WorkRank::Awaited, coresOfThisThread).get();
    ASSERT_EQ(sched_setaffinity(0, sizeof before, &before), 0);
    EXPECT_EQ(cores, 1);
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
