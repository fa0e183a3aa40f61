#include "tags/file_range.h"
#include "tests/tags/tags_support.h"

#include <gtest/gtest.h>

using namespace tags_test;

TEST(FileRange, ExactlyOrNotAtAll)
{
    const kelp_test::TempDir folder;
    const std::string path = folder.file("a");
    kelp_test::writeFile(path, "0123456789");
    Bytes bytes{1};
    std::string error;
    EXPECT_TRUE(readFileRange(path, 2, 3, bytes, &error));
    EXPECT_EQ(bytes, bytesOf("234"));
    EXPECT_TRUE(readFileRange(path, 10, 0, bytes, &error));
    EXPECT_TRUE(bytes.empty());
    EXPECT_FALSE(readFileRange(path, 8, 3, bytes, &error));
    EXPECT_EQ(error, "读不满(文件被改过?)");
    EXPECT_FALSE(readFileRange(path, 0, UINT64_MAX, bytes, &error)) << "without asking for the memory";
    EXPECT_FALSE(readFileRange(path, UINT64_MAX, 2, bytes, nullptr));
    EXPECT_FALSE(readFileRange(folder.file("none"), 0, 1, bytes, &error));
    EXPECT_EQ(error, "打不开文件");
}
