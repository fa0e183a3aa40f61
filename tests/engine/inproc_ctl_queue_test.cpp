#include "engine/inproc_ctl_queue.h"

#include "engine/runner_support.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstring>
#include <map>
#include <thread>

using kelp::InprocCtlQueue;
using runner_support::waitUntil;

namespace {

std::shared_ptr<InprocCtlQueue> openQueue()
{
    auto queue = InprocCtlQueue::create();
    queue->open();
    return queue;
}

TEST(InprocCtlQueue, ReadsInOrderWithoutLineEnds)
{
    const auto queue = openQueue();
    queue->push("load /a b.flac");
    queue->push("pause\r\n\n");
    std::array<char, 64> buffer;
    EXPECT_EQ(kelp_inproc_ctl_read(queue.get(), buffer.data(), 64), 14);
    EXPECT_STREQ(buffer.data(), "load /a b.flac");
    EXPECT_EQ(kelp_inproc_ctl_read(queue.get(), buffer.data(), 64), 5);
    EXPECT_STREQ(buffer.data(), "pause");
}

TEST(InprocCtlQueue, RefusesAMissingBufferAndASizeBelowTwo)
{
    const auto queue = openQueue();
    queue->push("x");
    std::array<char, 4> buffer;
    EXPECT_EQ(kelp_inproc_ctl_read(queue.get(), nullptr, 64), -1);
    EXPECT_EQ(kelp_inproc_ctl_read(queue.get(), buffer.data(), 1), -1);
    EXPECT_EQ(kelp_inproc_ctl_read(queue.get(), buffer.data(), -5), -1);
    EXPECT_EQ(kelp_inproc_ctl_read(queue.get(), buffer.data(), 2), 1);
}

TEST(InprocCtlQueue, ALineLongerThanTheBufferIsLostAndTellsSo)
{
    const auto queue = openQueue();
    queue->push("12345678");
    queue->push("1234567");
    std::array<char, 8> buffer;
    EXPECT_EQ(kelp_inproc_ctl_read(queue.get(), buffer.data(), 8), -1);
    EXPECT_EQ(kelp_inproc_ctl_read(queue.get(), buffer.data(), 8), 7);
    EXPECT_STREQ(buffer.data(), "1234567");
}

TEST(InprocCtlQueue, AnEmptyLineIsNotTakenForTheEnd)
{
    const auto queue = openQueue();
    queue->push("\n");
    queue->push("stop");
    std::array<char, 8> buffer;
    EXPECT_EQ(kelp_inproc_ctl_read(queue.get(), buffer.data(), 8), 4);
}

TEST(InprocCtlQueue, ClosedAndEmptyIsZeroButWhatIsInItComesFirst)
{
    const auto queue = openQueue();
    queue->push("a");
    queue->close();
    std::array<char, 8> buffer;
    EXPECT_EQ(kelp_inproc_ctl_read(queue.get(), buffer.data(), 8), 1);
    EXPECT_EQ(kelp_inproc_ctl_read(queue.get(), buffer.data(), 8), 0);
}

TEST(InprocCtlQueue, HoldsExactlyItsCapacity)
{
    const auto queue = openQueue();
    for (std::size_t i = 0; i < InprocCtlQueue::capacityLines; ++i)
        ASSERT_TRUE(queue->push("x"));
    EXPECT_FALSE(queue->push("one too many"));
    EXPECT_TRUE(queue->push("stop", InprocCtlQueue::Accept::Always));
    queue->take();
    EXPECT_FALSE(queue->push("still full of the forced one"));
    queue->take();
    EXPECT_TRUE(queue->push("room again"));
}

TEST(InprocCtlQueue, AForcedStopStaysInAClosedQueue)
{
    const auto queue = openQueue();
    queue->close();
    EXPECT_FALSE(queue->push("load x"));
    EXPECT_TRUE(queue->push("stop", InprocCtlQueue::Accept::Always));
    EXPECT_EQ(queue->take(), "stop");
    EXPECT_FALSE(queue->take());
}

TEST(InprocCtlQueue, OpenForgetsOldLines)
{
    const auto queue = openQueue();
    queue->push("old");
    queue->open();
    queue->push("new");
    EXPECT_EQ(queue->take(), "new");
}

TEST(InprocCtlQueue, AReaderWaitsForALineAndForTheClose)
{
    const auto queue = openQueue();
    std::atomic<int> last{-100};
    std::thread reader([&] {
        std::array<char, 16> buffer;
        do
            last = kelp_inproc_ctl_read(queue.get(), buffer.data(), 16);
        while (last > 0);
    });
    queue->push("four");
    EXPECT_TRUE(waitUntil([&] { return last == 4; }));
    queue->close();
    reader.join();
    EXPECT_EQ(last, 0);
}

TEST(InprocCtlQueue, LosesAndMixesNothingWithSeveralWriters)
{
    constexpr int writers = 8;
    constexpr int linesEach = 2000;
    const auto queue = openQueue();
    std::vector<std::thread> threads;
    for (int writer = 0; writer < writers; ++writer) {
        threads.emplace_back([&queue, writer] {
            for (int i = 0; i < linesEach;) {
                if (queue->push(std::to_string(writer) + " " + std::to_string(i)))
                    ++i;
                else
                    std::this_thread::yield();
            }
        });
    }
    std::map<int, int> next;
    std::array<char, 32> buffer;
    for (int i = 0; i < writers * linesEach; ++i) {
        ASSERT_GT(kelp_inproc_ctl_read(queue.get(), buffer.data(), 32), 0);
        int writer = 0, number = 0;
        ASSERT_EQ(std::sscanf(buffer.data(), "%d %d", &writer, &number), 2);
        ASSERT_EQ(number, next[writer]++) << "writer " << writer;
    }
    for (std::thread &thread : threads)
        thread.join();
}

TEST(InprocCtlQueue, AnUnknownAddressIsTheEnd)
{
    int something = 0;
    std::array<char, 8> buffer;
    EXPECT_EQ(kelp_inproc_ctl_read(&something, buffer.data(), 8), 0);
    EXPECT_EQ(kelp_inproc_ctl_read(nullptr, buffer.data(), 8), 0);
}

TEST(InprocCtlQueue, ARetiredQueueLivesUntilItsReadersHaveBeenToldTheEnd)
{
    const std::size_t before = InprocCtlQueue::aliveCount();
    auto queue = openQueue();
    void *const address = queue.get();
    std::atomic<bool> gotLine{false}, goOn{false};
    std::atomic<int> end{-100};
    std::thread reader([&] {
        std::array<char, 16> buffer;
        gotLine = kelp_inproc_ctl_read(address, buffer.data(), 16) == 4;
        // Between two reads nobody waits in the queue, yet this thread will come back to it.
        waitUntil([&] { return goOn.load(); });
        end = kelp_inproc_ctl_read(address, buffer.data(), 16);
    });
    queue->push("line");
    ASSERT_TRUE(waitUntil([&] { return gotLine.load(); }));
    queue->close();
    queue.reset();
    EXPECT_EQ(InprocCtlQueue::aliveCount(), before + 1);
    goOn = true;
    reader.join();
    EXPECT_EQ(end, 0);
    EXPECT_EQ(InprocCtlQueue::aliveCount(), before);
}

TEST(InprocCtlQueue, AReaderThatEndsWithoutHearingTheEndLetsGo)
{
    const std::size_t before = InprocCtlQueue::aliveCount();
    auto queue = openQueue();
    queue->push("stop");
    std::thread([address = queue.get()] {
        std::array<char, 16> buffer;
        kelp_inproc_ctl_read(address, buffer.data(), 16);
    }).join();
    queue->close();
    queue.reset();
    EXPECT_EQ(InprocCtlQueue::aliveCount(), before);
}

} // namespace
