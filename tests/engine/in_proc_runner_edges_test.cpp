// Refusals, engines that do not end, and lines that are not taken.
#include "engine/in_proc_runner.h"

#include "engine/inproc_ctl_queue.h"
#include "engine/runner_support.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <thread>

using kelp::InProcRunner;
using namespace runner_support;

namespace {

TEST(InProcRunnerEdges, WithoutAnEntryOrArgumentsItRefuses)
{
    InProcRunner nothing(nullptr);
    EXPECT_EQ(nothing.start({"KelpPlayer"}, {}), -1);
    InProcRunner runner(testEngine());
    EXPECT_EQ(runner.start({}, {}), -1);
    EXPECT_FALSE(runner.running());
    EXPECT_EQ(runner.waitExit(0), -1);
}

TEST(InProcRunnerEdges, AnEmptyListLeavesARunningSessionAlone)
{
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("echo"), pieces.sink()), 0);
    EXPECT_EQ(runner.start({}, {}), -1);
    EXPECT_TRUE(runner.running());
    EXPECT_TRUE(runner.sendLine("still here"));
    EXPECT_EQ(runner.stop(patienceMs), 3);
    EXPECT_TRUE(pieces.contains("[echo] still here\n"));
    EXPECT_EQ(runner.start({}, {}), -1);
    EXPECT_EQ(runner.waitExit(0), 3);
}

TEST(InProcRunnerEdges, OfTwoQuickStartsTheSecondIsRefused)
{
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("echo"), pieces.sink()), 0);
    EXPECT_EQ(runner.start(engineArgs("echo"), {}), -2);
    EXPECT_TRUE(runner.running());
    EXPECT_EQ(runner.stop(patienceMs), 3);
}

TEST(InProcRunnerEdges, AnEngineThatIgnoresStopTimesOutAndNothingIsTornDown)
{
    const ScratchDirectory scratch;
    const auto before = StandardDescriptors::now();
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("hang", scratch.file("release")), pieces.sink()), 0);
    ASSERT_TRUE(waitUntil([&] { return pieces.contains("HANGING\n"); }));
    EXPECT_EQ(runner.stop(50), -1000);
    EXPECT_TRUE(runner.running());
    EXPECT_NE(StandardDescriptors::now(), before);
    scratch.touch("release");
    EXPECT_EQ(runner.waitExit(patienceMs), 3);
    EXPECT_EQ(StandardDescriptors::now(), before);
}

TEST(InProcRunnerEdges, DestructionLeavesAHangingEngineToItselfAndRestoresTheDescriptors)
{
    const ScratchDirectory scratch;
    const auto before = StandardDescriptors::now();
    const int descriptors = openDescriptors();
    const std::size_t queues = kelp::InprocCtlQueue::aliveCount();
    std::atomic<bool> destroyed{false}, calledLate{false};
    {
        Pieces pieces;
        auto collect = pieces.sink();
        InProcRunner runner(testEngine(), quickOptions());
        ASSERT_EQ(runner.start(engineArgs("hang", scratch.file("release")),
                               [&](std::string_view piece) {
                                   calledLate = calledLate || destroyed;
                                   collect(piece);
                               }),
                  0);
        ASSERT_TRUE(waitUntil([&] { return pieces.contains("HANGING\n"); }));
    }
    destroyed = true;
    EXPECT_EQ(StandardDescriptors::now(), before);
    EXPECT_EQ(kelp::InprocCtlQueue::aliveCount(), queues + 1) << "the engine's thread still knows its queue";
    scratch.touch("release");
    EXPECT_TRUE(waitUntil([] { return runningThreads() <= idleThreads; }));
    EXPECT_FALSE(calledLate);
    EXPECT_LE(fallsTo(descriptors, openDescriptors), descriptors);
    EXPECT_EQ(kelp::InprocCtlQueue::aliveCount(), queues);
}

TEST(InProcRunnerEdges, ANewSessionRunsBesideAnEngineThatWasLeftToItself)
{
    const ScratchDirectory scratch;
    const auto before = StandardDescriptors::now();
    {
        Pieces hanging;
        InProcRunner runner(testEngine(), quickOptions());
        ASSERT_EQ(runner.start(engineArgs("hang", scratch.file("release")), hanging.sink()), 0);
        ASSERT_TRUE(waitUntil([&] { return hanging.contains("HANGING\n"); }));
    }
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("echo"), pieces.sink()), 0);
    EXPECT_TRUE(runner.sendLine("load a"));
    EXPECT_EQ(runner.stop(patienceMs), 3);
    EXPECT_TRUE(pieces.contains("[echo] load a\n"));
    EXPECT_EQ(StandardDescriptors::now(), before);
    scratch.touch("release");
    EXPECT_TRUE(waitUntil([] { return runningThreads() <= idleThreads; }));
}

TEST(InProcRunnerEdges, DestructionStopsAnEngineThatListens)
{
    const auto before = StandardDescriptors::now();
    Pieces pieces;
    {
        InProcRunner runner(testEngine());
        ASSERT_EQ(runner.start(engineArgs("echo"), pieces.sink()), 0);
    }
    EXPECT_TRUE(pieces.contains("[inproc] engine entry returned rc=3 (args=9)\n"));
    EXPECT_EQ(StandardDescriptors::now(), before);
}

TEST(InProcRunnerEdges, AThreadOfTheEngineMayReadTheQueueBeyondTheRunnersLife)
{
    const ScratchDirectory scratch;
    const std::size_t queues = kelp::InprocCtlQueue::aliveCount();
    {
        InProcRunner runner(testEngine());
        ASSERT_EQ(runner.start(engineArgs("lingerer", scratch.file("report")), {}), 0);
        EXPECT_TRUE(runner.sendLine("first line"));
        ASSERT_TRUE(waitUntil([&] { return !runner.running(); }));
        EXPECT_TRUE(runner.sendLine("late line"));
    }
    EXPECT_TRUE(waitUntil([&] { return contents(scratch.file("report")) == "first line;late line;end\n"; }));
    EXPECT_TRUE(waitUntil([&] { return kelp::InprocCtlQueue::aliveCount() == queues; }));
}

TEST(InProcRunnerEdges, AfterTheEndOnlyStopIsTaken)
{
    InProcRunner runner(testEngine());
    EXPECT_FALSE(runner.sendLine("load a"));
    EXPECT_EQ(runner.lastError(), "no control channel (queue not enabled and pipe not created)");
    ASSERT_EQ(runner.start(engineArgs("exit", "0"), {}), 0);
    EXPECT_EQ(runner.lastError(), "");
    EXPECT_EQ(runner.waitExit(patienceMs), 0);
    EXPECT_FALSE(runner.sendLine("load a"));
    EXPECT_EQ(runner.lastError(), "control queue closed (session already torn down)");
    EXPECT_TRUE(runner.sendLine("stop"));
    EXPECT_EQ(runner.lastError(), "control queue closed -> stop forced through");
}

TEST(InProcRunnerEdges, TheLineBeyondTheCapacityIsRefusedUnlessItIsStop)
{
    const ScratchDirectory scratch;
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("deaf", scratch.file("wake")), pieces.sink()), 0);
    for (int i = 0; i < 4096; ++i)
        ASSERT_TRUE(runner.sendLine("vol 1"));
    EXPECT_FALSE(runner.sendLine("vol 2"));
    EXPECT_TRUE(runner.sendLine("stop"));
    scratch.touch("wake");
    EXPECT_EQ(runner.waitExit(patienceMs), 3);
    EXPECT_TRUE(pieces.contains("COUNT 4097\n"));
}

TEST(InProcRunnerEdges, AFullControlPipeRefusesInsteadOfBlocking)
{
    const ScratchDirectory scratch;
    InProcRunner::Options options;
    options.useQueue = false;
    InProcRunner runner(testEngine(), options);
    ASSERT_EQ(runner.start(engineArgs("deaf", scratch.file("wake")), {}), 0);
    const std::string line(1000, 'x');
    int sent = 0;
    while (sent < 1000 && runner.sendLine(line))
        ++sent;
    EXPECT_LT(sent, 1000);
    EXPECT_TRUE(runner.lastError().starts_with("control pipe write failed: ")) << runner.lastError();
    EXPECT_TRUE(runner.lastError().ends_with(", GetLastError=0")) << runner.lastError();
    scratch.touch("wake");
    // The engine needs the room before it can be told; nothing else may go wrong on the way.
    EXPECT_TRUE(waitUntil([&] { return runner.sendLine("\nstop"); }));
    EXPECT_EQ(runner.waitExit(patienceMs), 3);
}

TEST(InProcRunnerEdges, ALineTooLongForTheEngineIsLostAndTheNextOneArrives)
{
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("tiny"), pieces.sink()), 0);
    EXPECT_TRUE(runner.sendLine("12345678"));
    EXPECT_TRUE(runner.sendLine("1234567"));
    EXPECT_EQ(runner.stop(patienceMs), 3);
    EXPECT_EQ(pieces.ofTheEngine(),
              (std::vector<std::string>{"READY\n", "[echo] <lost>\n", "[echo] 1234567\n", "[echo] stop\n"}));
}

TEST(InProcRunnerEdges, AReaderThatCannotKeepUpIsLeftBehindWithItsRest)
{
    std::mutex gate;
    std::atomic<int> calls{0};
    InProcRunner runner(testEngine());
    std::unique_lock blocked(gate);
    ASSERT_EQ(runner.start(engineArgs("both"),
                           [&](std::string_view piece) {
                               ++calls;
                               if (piece.starts_with("[host]"))
                                   const std::lock_guard wait(gate);
                           }),
              0);
    ASSERT_TRUE(waitUntil([&] { return !runner.running(); }));
    EXPECT_EQ(runner.waitExit(20), 0);
    const int afterWait = calls;
    blocked.unlock();
    EXPECT_TRUE(waitUntil([] { return runningThreads() <= idleThreads; }));
    EXPECT_EQ(calls, afterWait) << "a closed sink must not be called";
}

} // namespace
