#include "platform/memory_layout.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

namespace {

std::size_t residentPages(void *begin, std::size_t bytes)
{
    std::vector<unsigned char> pages(bytes / static_cast<std::size_t>(sysconf(_SC_PAGESIZE)));
    EXPECT_EQ(mincore(begin, bytes, pages.data()), 0);
    return static_cast<std::size_t>(
        std::count_if(pages.begin(), pages.end(), [](unsigned char page) { return (page & 1) != 0; }));
}

} // namespace

TEST(MemoryLayout, LaysOutWholePagesAndKeepsWhatStandsThere)
{
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    const std::size_t bytes = 100 * page;
    void *const memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(memory, MAP_FAILED);
    auto *text = static_cast<char *>(memory);
    text[70 * page] = 'k';
    ASSERT_EQ(residentPages(memory, bytes), 1U);
    // From within the first page to within the last: those two are not whole.
    layOutMemory({reinterpret_cast<std::uintptr_t>(memory) + 1, bytes - 2});
#ifdef MADV_POPULATE_WRITE
    const std::size_t laidOut = residentPages(memory, bytes);
    // A kernel before 5.14 does not know how.
    EXPECT_TRUE(laidOut == 98 || laidOut == 1) << laidOut;
#endif
    EXPECT_EQ(text[70 * page], 'k');
    munmap(memory, bytes);
    layOutMemory({reinterpret_cast<std::uintptr_t>(memory), bytes}); // is left alone
    layOutMemory({});
}

TEST(MemoryLayout, TheSpareHeapIsWhereTheNextBlocksStand)
{
    keepMemoryTogether();
    constexpr std::size_t block = 100 * 1024; // a larger one would not be taken from the heap
    std::vector<std::unique_ptr<char[]>> blocks;
    // Until the gaps of earlier tests are filled.
    for (int i = 0; i < 100; ++i)
        blocks.push_back(std::make_unique<char[]>(block));
    const MemoryPart spare = spareHeap();
    if (spare.bytes == 0)
        GTEST_SKIP() << "the heap of this build is not the system's own";
    ASSERT_GT(spare.bytes, block);
    layOutMemory(spare);
    const auto next = std::make_unique<char[]>(block);
    const auto stands = reinterpret_cast<std::uintptr_t>(next.get());
    EXPECT_GE(stands, spare.begin);
    EXPECT_LE(stands + block, spare.begin + spare.bytes);
}

TEST(MemoryLayout, AStartThatIsOverKeepsLittleSpare)
{
    keepMemoryTogether();
    constexpr std::size_t mib = 1024 * 1024;
    std::vector<std::unique_ptr<char[]>> blocks;
    for (int i = 0; i < 100; ++i)
        blocks.push_back(std::make_unique<char[]>(mib / 10));
    blocks.clear();
    if (spareHeap().bytes == 0)
        GTEST_SKIP() << "the heap of this build is not the system's own";
    EXPECT_GT(spareHeap().bytes, 2 * mib);
    settleHeap();
    EXPECT_LT(spareHeap().bytes, 2 * mib);
    EXPECT_GT(spareHeap().bytes, mib / 2);
}
