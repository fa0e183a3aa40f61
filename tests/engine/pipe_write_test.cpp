#include "engine/pipe_write.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

TEST(PipeWrite, GivesWhatWasWritten)
{
    int ends[2];
    ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
    EXPECT_EQ(kelp::writeWithoutSignal(ends[1], "stop\n"), 5);
    std::array<char, 8> got{};
    EXPECT_EQ(read(ends[0], got.data(), got.size()), 5);
    EXPECT_STREQ(got.data(), "stop\n");
    close(ends[0]);
    close(ends[1]);
}

TEST(PipeWrite, APipeWithoutAReaderIsAnErrorAndNoSignal)
{
    int ends[2];
    ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
    close(ends[0]);
    EXPECT_EQ(kelp::writeWithoutSignal(ends[1], "stop\n"), -1);
    EXPECT_EQ(errno, EPIPE);
    sigset_t pending;
    sigpending(&pending);
    EXPECT_EQ(sigismember(&pending, SIGPIPE), 0);
    close(ends[1]);
}

} // namespace
