// What an engine prints, and how it arrives.
#include "engine/in_proc_runner.h"

#include "engine/runner_support.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <unistd.h>

using kelp::InProcRunner;
using namespace runner_support;

namespace {

TEST(InProcRunnerOutput, AFloodArrivesWholeAndInOrder)
{
    constexpr int count = 100000;
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("flood", std::to_string(count)), pieces.sink()), 0);
    EXPECT_EQ(runner.waitExit(patienceMs), 0);
    const auto lines = pieces.ofTheEngine();
    ASSERT_EQ(lines.size(), std::size_t{count});
    std::array<char, 32> expected;
    for (int i = 0; i < count; ++i) {
        std::snprintf(expected.data(), expected.size(), "line %06d\n", i);
        ASSERT_EQ(lines[static_cast<std::size_t>(i)], expected.data());
    }
}

TEST(InProcRunnerOutput, GarbageArrivesByteForByte)
{
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("garbage"), pieces.sink()), 0);
    EXPECT_EQ(runner.waitExit(patienceMs), 0);
    const auto got = pieces.ofTheEngine();
    ASSERT_GE(got.size(), 8u);
    EXPECT_EQ(got[0], std::string("nul \0 inside\n", 13));
    EXPECT_EQ(got[1], "invalid \xff\xfe\xc3 end\n");
    EXPECT_EQ(got[2], "carriage\rreturn\r\n");
    EXPECT_EQ(got[3], "\n");
    EXPECT_EQ(got[got.size() - 2], "after\n");
    EXPECT_EQ(got.back(), "a tail without an end");
}

TEST(InProcRunnerOutput, ALineOfSeventyThousandBytesArrivesInPieces)
{
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("garbage"), pieces.sink()), 0);
    EXPECT_EQ(runner.waitExit(patienceMs), 0);
    std::size_t bytes = 0, count = 0;
    for (const std::string &piece : pieces.ofTheEngine()) {
        if (piece.starts_with("xxx")) {
            bytes += piece.size();
            ++count;
        }
    }
    EXPECT_GE(count, 2u);
    EXPECT_EQ(bytes, 70001u);
}

TEST(InProcRunnerOutput, BothStreamsComeThroughOnePipe)
{
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("both"), pieces.sink()), 0);
    EXPECT_EQ(runner.waitExit(patienceMs), 0);
    EXPECT_TRUE(pieces.contains("to stdout\n"));
    EXPECT_TRUE(pieces.contains("to stderr\n"));
}

TEST(InProcRunnerOutput, WhatTheEngineDoesNotFlushIsFlushedWhileItRuns)
{
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("unflushed"), pieces.sink()), 0);
    EXPECT_TRUE(waitUntil([&] { return pieces.contains("UNFLUSHED\n"); }));
    EXPECT_TRUE(runner.running());
    EXPECT_EQ(runner.stop(patienceMs), 3);
}

TEST(InProcRunnerOutput, AnEngineThatThrowsEndsWithMinusOneAndItsSentence)
{
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("throw", "std"), pieces.sink()), 0);
    EXPECT_EQ(runner.waitExit(patienceMs), -1);
    EXPECT_TRUE(pieces.contains("[inproc] the engine threw an exception: a thrown sentence\n"));
    EXPECT_TRUE(pieces.contains("[inproc] engine entry returned rc=-1 (args=9)\n"));
    ASSERT_EQ(runner.start(engineArgs("throw", "other"), pieces.sink()), 0);
    EXPECT_EQ(runner.waitExit(patienceMs), -1);
    EXPECT_TRUE(pieces.contains("[inproc] the engine threw a non-std exception\n"));
}

// stderr is caught in a file for the length of the test: the runner must report there and not in the pipe.
class CaughtStderr
{
public:
    explicit CaughtStderr(const std::string &path)
    {
        std::fflush(stderr);
        std::FILE *file = std::fopen(path.c_str(), "we");
        dup2(fileno(file), STDERR_FILENO);
        std::fclose(file);
    }
    ~CaughtStderr()
    {
        dup2(m_old, STDERR_FILENO);
        close(m_old);
    }

private:
    int m_old = dup(STDERR_FILENO);
};

TEST(InProcRunnerOutput, AThrowingSinkIsReportedAndDoesNotEndTheReader)
{
    const ScratchDirectory scratch;
    std::atomic<int> calls{0};
    {
        const CaughtStderr caught(scratch.file("stderr"));
        InProcRunner runner(testEngine());
        ASSERT_EQ(runner.start(engineArgs("garbage"),
                               [&calls](std::string_view piece) {
                                   ++calls;
                                   if (piece.starts_with("[host]"))
                                       throw 7;
                                   throw std::runtime_error("sink is ill");
                               }),
                  0);
        EXPECT_EQ(runner.waitExit(patienceMs), 0);
    }
    const std::string reported = contents(scratch.file("stderr"));
    EXPECT_GE(calls, 9);
    EXPECT_NE(reported.find("[inproc] log sink threw: sink is ill\n"), std::string::npos);
    EXPECT_NE(reported.find("[inproc] log sink threw a non-std exception\n"), std::string::npos);
    EXPECT_NE(reported.find("[inproc] log sink threw (tail)\n"), std::string::npos);
}

TEST(InProcRunnerOutput, TheDiagnosticFileTellsEachStep)
{
    const ScratchDirectory scratch;
    const std::string path = scratch.file("inproc.log");
    setenv("KELP_INPROC_LOG", path.c_str(), 1);
    Pieces pieces;
    InProcRunner runner(testEngine());
    ASSERT_EQ(runner.start(engineArgs("both"), pieces.sink()), 0);
    EXPECT_EQ(runner.waitExit(patienceMs), 0);
    unsetenv("KELP_INPROC_LOG");
    const std::string log = contents(path);
    EXPECT_TRUE(
        log.starts_with("[inproc] dup2 out=1 err=2 in=0 | fileno: in=0 out=1 err=2 | osf: in=0 out=1\n"))
        << log;
    for (const char *line : {"[inproc] calling entry argc=9\n", "[inproc] entry rc=0\n", "to stdout\n",
                             "[host] session pipe ready (fd1/fd2 -> InProcRunner pipe)\n"})
        EXPECT_NE(log.find(line), std::string::npos) << line;
}

} // namespace
