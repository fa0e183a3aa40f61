// A file is read in steps and no further than its outcome needs. It must come out as if head and tail had
// been read whole and searched byte by byte.
#include "tests/tags/naive_scan.h"
#include "tests/tags/tags_support.h"

#include <gtest/gtest.h>

#include <random>

using namespace tags_test;

namespace {

constexpr size_t side = 65536;
constexpr size_t fileBytes = 200000;
constexpr size_t tailStart = fileBytes - side;

bool untitled(const AudioFileInfo &info)
{
    return info.title.empty() && info.artist.empty();
}

/// What a file of no known form holds.
AudioFileInfo plainlyRead(const Bytes &bytes)
{
    const ByteView head = ByteView(bytes).slice(0, side);
    const ByteView tail = ByteView(bytes).slice(bytes.size() - side);
    AudioFileInfo info;
    info.format = "Unknown";
    info.dataSize = static_cast<uint32_t>(bytes.size());
    const auto readId3At = [&info](ByteView bytesOfSide) {
        const uint64_t place = naiveFind(bytesOfSide.text(), "ID3").value_or(bytesOfSide.size());
        LazyBytes tag(bytesOfSide.slice(place));
        readId3(tag, info);
    };
    readId3At(head);
    LazyBytes lazyHead(head);
    if (untitled(info))
        readApeTag(lazyHead, info);
    if (untitled(info))
        naiveBareText(head.text(), info);
    if (untitled(info))
        readId3At(tail);
    return info;
}

Bytes id3Of(const std::string &title)
{
    return id3Tag(3, {{"TIT2", id3Text(3, title)}, {"TPE1", id3Text(3, "A")}});
}

void plant(Bytes &bytes, size_t place, const Bytes &what)
{
    std::copy_n(what.begin(), std::min(what.size(), bytes.size() - place),
                bytes.begin() + static_cast<std::ptrdiff_t>(place));
}

Bytes filler(uint32_t seed)
{
    std::mt19937 random(seed);
    Bytes bytes(fileBytes);
    for (uint8_t &byte : bytes)
        byte = static_cast<uint8_t>(random());
    bytes[0] = 0;
    return bytes;
}

} // namespace

TEST(ReadSteps, ATagAcrossTheEndOfAStepIsReadWhole)
{
    const Bytes none = filler(1);
    const Bytes tag = id3Of("Title");
    for (const size_t border : {size_t(4096), side, tailStart, tailStart + side / 2, fileBytes})
        for (size_t before = 0; before <= tag.size() + 4; before += before < 14 ? 1 : 5) {
            Bytes bytes = none;
            plant(bytes, border - before, tag);
            const AudioFileInfo info = readFileOf(bytes).info;
            ASSERT_EQ(info, plainlyRead(bytes)) << before << " before " << border;
            const bool endsASide = border == side || border == fileBytes;
            const bool whole = endsASide ? before >= tag.size() : border != tailStart || before == 0;
            if (whole) {
                ASSERT_EQ(info.title, "Title") << before << " before " << border;
            }
        }
}

TEST(ReadSteps, AnEarlierTagWithoutTextsHidesALaterOneOfItsSideOnly)
{
    const Bytes empty = id3Tag(3, {{"TXXX", id3Text(3, "x")}});
    for (const size_t place : {size_t(100), size_t(5000), tailStart, tailStart + 40000}) {
        Bytes bytes = filler(2);
        plant(bytes, place, empty);
        const size_t behind = place + 1000;
        plant(bytes, behind, id3Of("hidden"));
        EXPECT_EQ(readFileOf(bytes).info, plainlyRead(bytes)) << place;
        EXPECT_EQ(readFileOf(bytes).info.title, "") << place;
        plant(bytes, tailStart + 10, id3Of("first of the tail"));
        const bool hiddenByTail = place == tailStart;
        EXPECT_EQ(readFileOf(bytes).info.title, hiddenByTail ? "" : "first of the tail") << place;
    }
}

TEST(ReadSteps, TagsOfAllKindsInAnyMixture)
{
    std::mt19937 random(3);
    const Bytes none = filler(3);
    for (int round = 0; round < 300; ++round) {
        Bytes bytes = none;
        for (unsigned planted = random() % 5; planted > 0; --planted) {
            const size_t place = (random() % 2 ? 1 : tailStart) + random() % (side - 1);
            switch (random() % 6) {
            case 0:
                plant(bytes, place, bytesOf("title=bare\nArtist=B\r"));
                break;
            case 1:
                plant(bytes, side - random() % 4400, kelp_test::apeTag({{"Title", "ape"}, {"Artist", "P"}}));
                break;
            case 2:
                plant(bytes, place, bytesOf("ID3"));
                break;
            case 3:
                plant(bytes, place, bytesOf("GENRE=g\nDATE=1\nCOMMENT=\n"));
                break;
            default:
                plant(bytes, place, id3Of("id3"));
            }
        }
        ASSERT_EQ(readFileOf(bytes).info, plainlyRead(bytes)) << round;
    }
}

TEST(ReadSteps, AnAiffTextAcrossTheEndOfWhatIsReadIsWhole)
{
    for (size_t filling = 4040; filling <= 4110; filling += 2) {
        const Bytes bytes = kelp_test::aiffOfChunks({{"FILL", Bytes(filling)},
                                                     {"NAME", bytesOf("A title of twenty-six signs")},
                                                     {"SSND", Bytes(70000)},
                                                     {"AUTH", bytesOf("behind the head")}});
        const Read read = readFileOf(bytes);
        ASSERT_EQ(read.info.title, "A title of twenty-six signs") << filling;
        ASSERT_EQ(read.info.artist, "behind the head") << filling;
    }
}
