#include "player_core/session/spsc_ring.h"

#include <gtest/gtest.h>

#include <numeric>
#include <thread>

namespace kelp_core::test {

TEST(SpscRingTest, TakesNoMoreThanItHolds)
{
    SpscRing<int> ring(6); // rounded up to 8
    std::vector<int> in(10);
    std::iota(in.begin(), in.end(), 0);
    EXPECT_EQ(ring.write(in.data(), in.size()), 8u);
    EXPECT_EQ(ring.space(), 0u);
    int out[10];
    EXPECT_EQ(ring.read(out, 3), 3u);
    EXPECT_EQ(ring.write(in.data() + 8, 2), 2u) << "over the edge of the buffer";
    ASSERT_NE(ring.peek(), nullptr);
    EXPECT_EQ(*ring.peek(), 3);
    EXPECT_EQ(ring.read(out, 10), 7u);
    EXPECT_EQ(out[6], 9);
    EXPECT_EQ(ring.peek(), nullptr);
}

TEST(SpscRingTest, OfNoCapacityTakesNothing)
{
    SpscRing<double> ring(0);
    EXPECT_FALSE(ring.push(1.0));
    EXPECT_EQ(ring.space(), 0u);
}

TEST(SpscRingTest, KeepsTheOrderBetweenTwoThreads)
{
    constexpr uint32_t total = 500'000;
    SpscRing<uint32_t> ring(1000);
    std::thread writer([&] {
        uint32_t block[77];
        uint32_t next = 0;
        while (next < total) {
            const uint32_t n = std::min<uint32_t>(1 + next % 77, total - next);
            for (uint32_t i = 0; i < n; ++i)
                block[i] = next + i;
            for (uint32_t done = 0; done < n; std::this_thread::yield())
                done += static_cast<uint32_t>(ring.write(block + done, n - done));
            next += n;
        }
    });
    uint32_t wanted = 0;
    uint32_t out[131];
    bool inOrder = true;
    while (wanted < total) {
        const size_t n = ring.read(out, 1 + wanted % 131);
        for (size_t i = 0; i < n; ++i)
            inOrder = inOrder && out[i] == wanted++;
        if (n == 0)
            std::this_thread::yield();
    }
    writer.join();
    EXPECT_TRUE(inOrder);
}

} // namespace kelp_core::test
