#include "engine/line_cutter.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::vector<std::string> cut(LineCutter &cutter, const std::string &bytes, std::size_t chunk)
{
    std::vector<std::string> lines;
    for (std::size_t from = 0; from < bytes.size(); from += chunk) {
        cutter.append(std::string_view(bytes).substr(from, chunk));
        while (auto line = cutter.next())
            lines.push_back(*line);
    }
    return lines;
}

TEST(LineCutter, GivesTheSameLinesForAnySizeOfPieces)
{
    const std::string bytes("one\n\ntwo \0 nul\nthree\r\nrest", 26);
    const std::vector<std::string> expected{"one\n", "\n", std::string("two \0 nul\n", 10), "three\r\n"};
    for (std::size_t chunk = 1; chunk <= bytes.size(); ++chunk) {
        LineCutter cutter;
        EXPECT_EQ(cut(cutter, bytes, chunk), expected) << chunk;
        EXPECT_EQ(cutter.takePartial(), "rest");
        EXPECT_EQ(cutter.takePartial(), "");
    }
}

TEST(LineCutter, HandsOverAPartialLineBeyondTheLimit)
{
    LineCutter cutter;
    cutter.append(std::string(LineCutter::partialLimitBytes, 'x'));
    EXPECT_FALSE(cutter.next());
    cutter.append("x");
    const auto piece = cutter.next();
    ASSERT_TRUE(piece);
    EXPECT_EQ(piece->size(), LineCutter::partialLimitBytes + 1);
    EXPECT_FALSE(cutter.next());
    cutter.append("end\n");
    EXPECT_EQ(cutter.next(), "end\n");
}

TEST(LineCutter, ALimitCountsFromTheLastNewline)
{
    LineCutter cutter;
    cutter.append("a\n" + std::string(LineCutter::partialLimitBytes, 'x'));
    EXPECT_EQ(cutter.next(), "a\n");
    EXPECT_FALSE(cutter.next());
    EXPECT_EQ(cutter.takePartial().size(), LineCutter::partialLimitBytes);
}

} // namespace
