// Every step of a start that can fail, made to fail: the start says -3 and leaves no trace.
#include "engine/in_proc_runner.h"

#include "engine/runner_support.h"

#include <gtest/gtest.h>

#include <cstring>
#include <system_error>

using kelp::DescriptorCalls;
using kelp::InProcRunner;
using namespace runner_support;

namespace {

struct Failure
{
    const char *name;
    bool useQueue;
    // The number of the call that fails, counted over pipes, duplicates and replacements; -1 for none.
    int call;
    const char *thread;
};

void PrintTo(const Failure &failure, std::ostream *out)
{
    *out << failure.name;
}

class InProcRunnerFailure : public testing::TestWithParam<Failure>
{
};

InProcRunner::Options failingOptions(const Failure &failure, std::shared_ptr<bool> armed)
{
    InProcRunner::Options options;
    options.useQueue = failure.useQueue;
    const auto count = std::make_shared<int>(0);
    const auto fails = [armed, count, call = failure.call] { return *armed && (*count)++ == call; };
    const DescriptorCalls real = DescriptorCalls::system();
    options.calls.makePipe = [=](int fds[2]) { return fails() ? -1 : real.makePipe(fds); };
    options.calls.duplicate = [=](int fd) { return fails() ? -1 : real.duplicate(fd); };
    options.calls.duplicateOnto = [=](int fd, int target) {
        return fails() ? -1 : real.duplicateOnto(fd, target);
    };
    options.beforeThread = [armed, thread = failure.thread](const char *name) {
        if (*armed && thread != nullptr && std::strcmp(thread, name) == 0)
            throw std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again));
    };
    return options;
}

TEST_P(InProcRunnerFailure, IsUndoneAndTheNextStartWorks)
{
    const auto armed = std::make_shared<bool>(true);
    const auto before = StandardDescriptors::now();
    const int descriptors = openDescriptors();
    Pieces pieces;
    InProcRunner runner(testEngine(), failingOptions(GetParam(), armed));
    EXPECT_EQ(runner.start(engineArgs("echo"), pieces.sink()), -3);
    EXPECT_FALSE(runner.running());
    EXPECT_EQ(StandardDescriptors::now(), before);
    EXPECT_TRUE(waitUntil([] { return runningThreads() <= idleThreads; }));
    EXPECT_LE(fallsTo(descriptors, openDescriptors), descriptors);
    EXPECT_FALSE(runner.sendLine("load"));

    *armed = false;
    ASSERT_EQ(runner.start(engineArgs("echo"), pieces.sink()), 0);
    EXPECT_EQ(runner.stop(patienceMs), 3);
    EXPECT_EQ(StandardDescriptors::now(), before);
}

const Failure failures[] = {
    {"OutputPipe", true, 0, nullptr},       {"SaveOut", true, 1, nullptr},
    {"SaveErr", true, 2, nullptr},          {"SaveIn", true, 3, nullptr},
    {"ReplaceOut", true, 4, nullptr},       {"ReplaceErr", true, 5, nullptr},
    {"ControlPipe", false, 1, nullptr},     {"ReplaceIn", false, 7, nullptr},
    {"FlusherThread", true, -1, "flusher"}, {"ReaderThread", true, -1, "reader"},
    {"EngineThread", true, -1, "engine"},   {"EngineThreadWithPipe", false, -1, "engine"},
};

INSTANTIATE_TEST_SUITE_P(Steps, InProcRunnerFailure, testing::ValuesIn(failures),
                         [](const auto &failure) { return failure.param.name; });

} // namespace
