// A session's ordinary life.
#include "engine/in_proc_runner.h"

#include "engine/inproc_ctl_queue.h"
#include "engine/runner_support.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <thread>

using kelp::InProcRunner;
using namespace runner_support;

namespace {

TEST(InProcRunner, EchoesControlLinesAndStops)
{
    const auto before = StandardDescriptors::now();
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("echo"), pieces.sink()), 0);
    EXPECT_TRUE(runner.running());
    EXPECT_TRUE(runner.sendLine("load /music/a b.flac"));
    EXPECT_TRUE(waitUntil([&] { return pieces.contains("[echo] load /music/a b.flac\n"); }));
    EXPECT_EQ(runner.stop(patienceMs), 3);
    EXPECT_FALSE(runner.running());
    EXPECT_TRUE(pieces.contains("[host] session pipe ready (fd1/fd2 -> InProcRunner pipe)\n"));
    EXPECT_TRUE(pieces.contains("READY\n"));
    EXPECT_TRUE(pieces.contains("[echo] stop\n"));
    EXPECT_TRUE(pieces.contains("[inproc] engine entry returned rc=3 (args=9)\n"));
    EXPECT_EQ(StandardDescriptors::now(), before);
}

TEST(InProcRunner, HandsTheArgumentsAndItsHandshakeOver)
{
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start({"KelpPlayer", "two words", "-print-args", "-test", "exit", "0"}, pieces.sink()),
              0);
    EXPECT_EQ(runner.waitExit(patienceMs), 0);
    EXPECT_TRUE(pieces.contains("arg 0 KelpPlayer\n"));
    EXPECT_TRUE(pieces.contains("arg 1 two words\n"));
    EXPECT_TRUE(pieces.contains("arg 6 -inproc-host\n"));
    EXPECT_TRUE(pieces.contains("arg 7 -inproc-ctl\n"));
    EXPECT_TRUE(pieces.contains("arg 9 -inproc-ctl-fn\n"));
    EXPECT_TRUE(pieces.contains(
        "arg 10 " + std::to_string(reinterpret_cast<std::uintptr_t>(&kelp_inproc_ctl_read)) + "\n"));
    EXPECT_TRUE(pieces.contains("terminated 1\n"));
}

TEST(InProcRunner, WithoutAQueueTheEngineReadsItsStandardInput)
{
    const auto before = StandardDescriptors::now();
    Pieces pieces;
    InProcRunner::Options options;
    options.useQueue = false;
    InProcRunner runner(testEngine(), options);
    ASSERT_EQ(runner.start(engineArgs("echo"), pieces.sink()), 0);
    EXPECT_TRUE(runner.sendLine("pause"));
    EXPECT_TRUE(waitUntil([&] { return pieces.contains("[echo] pause\n"); }));
    EXPECT_EQ(runner.stop(patienceMs), 3);
    EXPECT_TRUE(pieces.contains("[inproc] engine entry returned rc=3 (args=5)\n"));
    EXPECT_FALSE(runner.sendLine("load"));
    EXPECT_EQ(runner.lastError(), "no control channel (queue not enabled and pipe not created)");
    EXPECT_EQ(StandardDescriptors::now(), before);
}

TEST(InProcRunner, TellsTheEngineThroughTheEnvironmentThatItIsInProcess)
{
    unsetenv("KELP_INPROC");
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("environment", "KELP_INPROC"), pieces.sink()), 0);
    EXPECT_EQ(runner.waitExit(patienceMs), 0);
    EXPECT_TRUE(pieces.contains("KELP_INPROC=1\n"));
}

TEST(InProcRunner, GivesTheExitCodeEveryTimeItIsAsked)
{
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("exit", "42"), {}), 0);
    EXPECT_EQ(runner.waitExit(patienceMs), 42);
    EXPECT_EQ(runner.waitExit(0), 42);
    EXPECT_EQ(runner.stop(0), 42);
}

TEST(InProcRunner, StartsAgainAfterAnEnd)
{
    Pieces pieces;
    InProcRunner runner(testEngine());
    for (int code = 0; code < 5; ++code) {
        ASSERT_EQ(runner.start(engineArgs("exit", std::to_string(code)), pieces.sink()), 0);
        EXPECT_EQ(runner.waitExit(patienceMs), code);
    }
}

TEST(InProcRunner, StartsAgainEvenWhenNobodyWaitedForTheEnd)
{
    const auto before = StandardDescriptors::now();
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("exit", "1"), {}), 0);
    ASSERT_TRUE(waitUntil([&] { return !runner.running(); }));
    ASSERT_EQ(runner.start(engineArgs("echo"), pieces.sink()), 0);
    EXPECT_EQ(runner.stop(patienceMs), 3);
    EXPECT_EQ(StandardDescriptors::now(), before);
}

TEST(InProcRunner, ALateEngineGetsTheLinesSentBeforeItListened)
{
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("late", "100"), pieces.sink()), 0);
    EXPECT_TRUE(runner.sendLine("load a"));
    EXPECT_TRUE(runner.sendLine("vol 50"));
    EXPECT_EQ(runner.stop(patienceMs), 3);
    EXPECT_TRUE(pieces.contains("[echo] load a\n"));
    EXPECT_TRUE(pieces.contains("[echo] vol 50\n"));
}

TEST(InProcRunner, TakesLinesFromSeveralThreads)
{
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("echo"), pieces.sink()), 0);
    std::vector<std::thread> writers;
    for (int writer = 0; writer < 4; ++writer) {
        writers.emplace_back([&runner, writer] {
            for (int i = 0; i < 100; ++i)
                runner.sendLine("fx " + std::to_string(writer) + " " + std::to_string(i));
        });
    }
    for (std::thread &writer : writers)
        writer.join();
    EXPECT_EQ(runner.stop(patienceMs), 3);
    const auto lines = pieces.ofTheEngine();
    EXPECT_EQ(lines.size(), 402u);
    for (int writer = 0; writer < 4; ++writer) {
        int next = 0;
        for (const std::string &line : lines)
            next += line == "[echo] fx " + std::to_string(writer) + " " + std::to_string(next) + "\n";
        EXPECT_EQ(next, 100) << writer;
    }
}

TEST(InProcRunner, AThousandStartsAndStopsLeaveNothingBehind)
{
    InProcRunner first(testEngine());
    ASSERT_EQ(first.start(engineArgs("echo"), {}), 0);
    ASSERT_EQ(first.stop(patienceMs), 3);
    ASSERT_TRUE(waitUntil([] { return runningThreads() <= idleThreads; }));
    const auto before = StandardDescriptors::now();
    const int descriptors = openDescriptors();
    const std::size_t queues = kelp::InprocCtlQueue::aliveCount();
    for (int i = 0; i < 500; ++i) {
        // Half of them on the same runner, half on one of their own.
        InProcRunner own(testEngine());
        ASSERT_EQ(own.start(engineArgs("echo"), {}), 0) << i;
        ASSERT_EQ(own.stop(patienceMs), 3) << i;
        ASSERT_EQ(first.start(engineArgs("exit", "7"), {}), 0) << i;
        ASSERT_EQ(first.waitExit(patienceMs), 7) << i;
    }
    EXPECT_EQ(StandardDescriptors::now(), before);
    EXPECT_LE(fallsTo(descriptors, openDescriptors), descriptors);
    EXPECT_TRUE(waitUntil([] { return runningThreads() <= idleThreads; })) << runningThreads();
    EXPECT_EQ(kelp::InprocCtlQueue::aliveCount(), queues);
}

} // namespace
