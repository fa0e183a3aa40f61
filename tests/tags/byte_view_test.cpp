#include "tags/byte_view.h"

#include "platform/file_reader.h"
#include "tags/lazy_bytes.h"
#include "tags/number_scan.h"
#include "tests/tags/tags_support.h"

#include <gtest/gtest.h>

using namespace tags_test;

TEST(ByteView, ReadsIntegersOfBothOrders)
{
    const Bytes bytes{0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x88};
    const ByteView view(bytes);
    EXPECT_EQ(view.little16(0), 0x0201);
    EXPECT_EQ(view.little32(0), 0x04030201U);
    EXPECT_EQ(view.little64(0), 0x8807060504030201ULL);
    EXPECT_EQ(view.big16(6), 0x0788);
    EXPECT_EQ(view.big24(1), 0x020304U);
    EXPECT_EQ(view.big32(4), 0x05060788U);
    EXPECT_EQ(view.big64(0), 0x0102030405060788ULL);
    EXPECT_EQ(view.syncSafe28(4), (5U << 21 | 6U << 14 | 7U << 7 | 8U)) << "the top bit is ignored";
}

TEST(ByteView, NothingRunsOverTheEnd)
{
    const Bytes bytes{1, 2, 3};
    const ByteView view(bytes);
    EXPECT_EQ(view.little32(0), 0U);
    EXPECT_EQ(view.big16(2), 0U);
    EXPECT_EQ(view.at(3), 0U);
    EXPECT_TRUE(view.has(3, 0));
    EXPECT_FALSE(view.has(UINT64_MAX, 2));
    EXPECT_FALSE(view.has(2, UINT64_MAX));
    EXPECT_EQ(view.slice(2, UINT64_MAX).size(), 1U);
    EXPECT_EQ(view.slice(UINT64_MAX, 5).size(), 0U);
    EXPECT_FALSE(view.holds("\x02\x03\x04", 1));
    EXPECT_TRUE(view.holds("\x02\x03", 1));
    EXPECT_EQ(ByteView().little16(0), 0U);
}

TEST(LazyBytes, ReadsNoFurtherThanAsked)
{
    const kelp_test::TempDir folder;
    Bytes bytes(50000, 'x');
    std::copy_n("ID3", 3, bytes.begin() + 4095);
    kelp_test::writeFile(folder.file("a"), bytes);
    const FileReader file(folder.file("a"));
    Bytes buffer(bytes.size());
    LazyBytes lazy(file, 0, buffer);
    EXPECT_EQ(lazy.first(10).size(), 10U);
    EXPECT_EQ(buffer[4095], 'I');
    EXPECT_EQ(buffer[4096], 0) << "the second page has not been asked for";
    EXPECT_EQ(lazy.find("ID3"), 4095U) << "across the border of two readings";
    EXPECT_EQ(lazy.slice(49990, 100).size(), 10U);
    EXPECT_EQ(lazy.slice(60000, 1).size(), 0U);
}

TEST(LazyBytes, ASearchReadsItsFirstBytesBeforeTheRest)
{
    const kelp_test::TempDir folder;
    for (const size_t place : {0U, 20000U, 31997U, 31998U, 31999U, 32000U, 49997U}) {
        Bytes bytes(50000, 'x');
        std::copy_n("ID3", 3, bytes.begin() + static_cast<std::ptrdiff_t>(place));
        kelp_test::writeFile(folder.file("a"), bytes);
        const FileReader file(folder.file("a"));
        Bytes buffer(bytes.size());
        LazyBytes lazy(file, 0, buffer, 32000);
        EXPECT_EQ(lazy.find("ID3"), place);
        EXPECT_EQ(lazy.loaded().size() == bytes.size(), place > 31997) << place;
    }
}

TEST(LazyBytes, EndsWhereTheFileEnds)
{
    const kelp_test::TempDir folder;
    kelp_test::writeFile(folder.file("a"), Bytes(5000, 'x'));
    const FileReader file(folder.file("a"));
    Bytes buffer(9000); // as if the file had been longer when its size was asked
    LazyBytes lazy(file, 0, buffer);
    EXPECT_EQ(lazy.all().size(), 5000U);
    EXPECT_EQ(lazy.size(), 5000U);
    EXPECT_EQ(lazy.find("ID3"), std::nullopt);
}

TEST(FileReader, AFolderAndANamelessFileAreNotOpen)
{
    const kelp_test::TempDir folder;
    EXPECT_FALSE(FileReader(folder.path()).isOpen());
    EXPECT_FALSE(FileReader(folder.file("none")).isOpen());
    uint8_t byte = 0;
    EXPECT_EQ(FileReader(folder.file("none")).readAt(0, {&byte, 1}), 0U);
}

TEST(NumberScan, TakesOneOrTwoNumbers)
{
    struct Case
    {
        const char *text;
        std::optional<std::pair<int, int>> numbers;
    };
    const Case cases[] = {
        {"3/12", {{3, 12}}},
        {"3", {{3, 0}}},
        {" 07/ 9x", {{7, 9}}},
        {"3 / 12", {{3, 0}}},
        {"-3/-4", {{-3, -4}}},
        {"3/x", {{3, 0}}},
        {"99999999999999999999/1", {{2147483647, 1}}},
        {"", {}},
        {"A1", {}},
        {"-", {}},
        {"/5", {}},
    };
    for (const Case &c : cases) {
        const auto found = scanNumberPair(c.text);
        ASSERT_EQ(found.has_value(), c.numbers.has_value()) << c.text;
        if (found) {
            EXPECT_EQ(std::pair(int(found->first), int(found->second)), *c.numbers) << c.text;
        }
    }
}
