#include "platform/memory_layout.h"

#include <algorithm>
#include <gtest/gtest.h>
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
    layOutMemory(reinterpret_cast<std::uintptr_t>(memory) + 1, bytes - 2);
#ifdef MADV_POPULATE_WRITE
    const std::size_t laidOut = residentPages(memory, bytes);
    // A kernel before 5.14 does not know how.
    EXPECT_TRUE(laidOut == 98 || laidOut == 1) << laidOut;
#endif
    EXPECT_EQ(text[70 * page], 'k');
    munmap(memory, bytes);
    layOutMemory(reinterpret_cast<std::uintptr_t>(memory), bytes); // is left alone
    layOutMemory(0, 0);
}
