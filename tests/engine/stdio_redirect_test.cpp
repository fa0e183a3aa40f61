#include "engine/stdio_redirect.h"

#include "engine/runner_support.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

using kelp::DescriptorCalls;
using kelp::StdioRedirect;
using runner_support::openDescriptors;
using runner_support::StandardDescriptors;

namespace {

struct Pipe
{
    int ends[2] = {-1, -1};
    Pipe() { EXPECT_EQ(pipe2(ends, O_CLOEXEC), 0); }
    ~Pipe()
    {
        close(ends[0]);
        close(ends[1]);
    }
};

TEST(StdioRedirect, SendsBothStreamsAwayAndBringsThemBack)
{
    const auto before = StandardDescriptors::now();
    const int descriptors = openDescriptors();
    {
        const Pipe out;
        StdioRedirect redirect;
        ASSERT_TRUE(redirect.begin(out.ends[1], -1));
        EXPECT_TRUE(redirect.active());
        ASSERT_EQ(write(STDOUT_FILENO, "out ", 4), 4);
        ASSERT_EQ(write(STDERR_FILENO, "err", 3), 3);
        redirect.restore();
        std::array<char, 16> got{};
        EXPECT_EQ(read(out.ends[0], got.data(), got.size()), 7);
        EXPECT_STREQ(got.data(), "out err");
        EXPECT_EQ(StandardDescriptors::now(), before);
    }
    EXPECT_EQ(openDescriptors(), descriptors);
}

TEST(StdioRedirect, TakesStandardInputOnlyWhenAsked)
{
    const auto before = StandardDescriptors::now();
    const Pipe out, in;
    StdioRedirect redirect;
    ASSERT_TRUE(redirect.begin(out.ends[1], -1));
    EXPECT_EQ(StandardDescriptors::now().descriptor[0], before.descriptor[0]);
    redirect.restore();
    ASSERT_TRUE(redirect.begin(out.ends[1], in.ends[0]));
    EXPECT_NE(StandardDescriptors::now().descriptor[0], before.descriptor[0]);
    redirect.restore();
    EXPECT_EQ(StandardDescriptors::now(), before);
}

TEST(StdioRedirect, DestructionRestores)
{
    const auto before = StandardDescriptors::now();
    const Pipe out;
    {
        StdioRedirect redirect;
        ASSERT_TRUE(redirect.begin(out.ends[1], -1));
        EXPECT_NE(StandardDescriptors::now(), before);
    }
    EXPECT_EQ(StandardDescriptors::now(), before);
}

TEST(StdioRedirect, UndoesEverythingWhicheverStepFails)
{
    for (int failing = 0; failing < 6; ++failing) {
        const auto before = StandardDescriptors::now();
        const int descriptors = openDescriptors();
        {
            const Pipe out, in;
            int step = 0;
            DescriptorCalls calls = DescriptorCalls::system();
            calls.duplicate = [&step, failing, real = calls.duplicate](int fd) {
                return step++ == failing ? -1 : real(fd);
            };
            calls.duplicateOnto = [&step, failing, real = calls.duplicateOnto](int fd, int target) {
                return step++ == failing ? -1 : real(fd, target);
            };
            StdioRedirect redirect(calls);
            EXPECT_FALSE(redirect.begin(out.ends[1], in.ends[0])) << failing;
            EXPECT_FALSE(redirect.active());
            EXPECT_EQ(StandardDescriptors::now(), before) << failing;
        }
        EXPECT_EQ(openDescriptors(), descriptors) << failing;
    }
}

TEST(StdioRedirect, ChildrenDoNotHoldTheNewDescriptors)
{
    const Pipe out;
    StdioRedirect redirect;
    ASSERT_TRUE(redirect.begin(out.ends[1], -1));
    EXPECT_EQ(fcntl(STDOUT_FILENO, F_GETFD), FD_CLOEXEC);
    EXPECT_EQ(fcntl(STDERR_FILENO, F_GETFD), FD_CLOEXEC);
    EXPECT_EQ(fcntl(redirect.savedErrorFd(), F_GETFD), FD_CLOEXEC);
    EXPECT_GT(redirect.savedErrorFd(), STDERR_FILENO);
}

// In a child process: closing a test's own descriptors would cut off its report.
TEST(StandardDescriptors, ClosedOnesAreOpenedOntoTheNullDevice)
{
    for (int mask = 0; mask < 8; ++mask) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (int fd = 0; fd < 3; ++fd) {
                if (mask & (1 << fd))
                    close(fd);
            }
            bool good = kelp::ensureStandardDescriptors();
            for (int fd = 0; fd < 3; ++fd)
                good = good && fcntl(fd, F_GETFD) >= 0;
            _exit(good ? 0 : 1);
        }
        int status = -1;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0) << mask;
    }
}

} // namespace
