#include "platform/process_facts.h"

#include <gtest/gtest.h>
#include <vector>

TEST(ProcessFacts, TheAgeGrowsAndIsNotNegative)
{
    const auto first = processAgeMs();
    ASSERT_TRUE(first.has_value());
    EXPECT_GE(*first, 0);
    // The kernel's tick is 10 ms: waiting for the next one ends on any machine.
    while (*processAgeMs() <= *first) {
    }
    EXPECT_GT(*processAgeMs(), *first);
}

TEST(ProcessFacts, TouchedMemoryCounts)
{
    const auto before = residentBytes();
    ASSERT_TRUE(before.has_value());
    constexpr std::size_t sizeBytes = 64U << 20U;
    const std::vector<char> touched(sizeBytes, 'x');
    EXPECT_GT(*residentBytes(), *before + static_cast<qint64>(sizeBytes / 2));
    EXPECT_EQ(touched.back(), 'x');
}
