#include "tests/tags/tags_support.h"

#include <gtest/gtest.h>

using namespace tags_test;
using kelp_test::aiffCommon;
using kelp_test::aiffOfChunks;

TEST(AiffHead, TheRateIsAConstant)
{
    const Read read = readFileOf(aiffOfChunks({aiffCommon(2, 1000, 24), {"SSND", Bytes(6008)}}));
    EXPECT_TRUE(read.understood);
    EXPECT_EQ(read.info.format, "AIFF");
    EXPECT_EQ(read.info.sampleRate, 44100U) << "the chunk says 48,000";
    EXPECT_EQ(read.info.channels, 2U);
    EXPECT_EQ(read.info.bitsPerSample, 24U);
    EXPECT_EQ(read.info.totalSamples, 1000U);
    EXPECT_EQ(read.info.dataOffset, 46U) << "8 behind the chunk's place";
    EXPECT_EQ(read.info.dataSize, 6008U);
}

TEST(AiffHead, TheOffsetFieldOfTheSoundCounts)
{
    Bytes sound(40);
    sound[3] = 16;
    EXPECT_EQ(readFileOf(aiffOfChunks({{"SSND", sound}})).info.dataOffset, 12U + 8 + 16);
    EXPECT_FALSE(readFileOf(aiffOfChunks({{"SSND", sound}})).understood) << "no rate without a common chunk";
}

TEST(AiffTexts, TheFirstOfEachKindCounts)
{
    const Read read = readFileOf(aiffOfChunks({{"NAME", bytesOf("Title\0junk")},
                                               {"NAME", bytesOf("Later")},
                                               {"AUTH", bytesOf("Author")},
                                               {"(c) ", bytesOf("Rights")},
                                               {"ANNO", bytesOf("Note")},
                                               aiffCommon(2, 1, 16)}));
    EXPECT_EQ(read.info.title, "Title");
    EXPECT_EQ(read.info.artist, "Author");
    EXPECT_EQ(read.info.comment, "Rights");
}

TEST(AiffTexts, TextIsCutAtItsFirstNul)
{
    EXPECT_EQ(readFileOf(aiffOfChunks({{"NAME", bytesOf(std::string_view("Ti\0tle", 6))}})).info.title, "Ti");
}

TEST(AiffTexts, ChunksBeyondTheHeadAreReached)
{
    const Read read =
        readFileOf(aiffOfChunks({aiffCommon(2, 1, 16), {"SSND", Bytes(200001)}, {"NAME", bytesOf("Far")}}));
    EXPECT_EQ(read.info.title, "Far");
}

TEST(AiffTexts, OnlySmallTextsAreReadFromTheFile)
{
    // In the head the text has no limit but the head.
    const std::vector<Chunk> far{{"SSND", Bytes(70000)}, {"NAME", Bytes(8192, 'x')}};
    EXPECT_EQ(readFileOf(aiffOfChunks(far)).info.title.size(), 8192U);
    EXPECT_EQ(readFileOf(aiffOfChunks({{"SSND", Bytes(70000)}, {"NAME", Bytes(8193, 'x')}})).info.title, "");
    EXPECT_EQ(readFileOf(aiffOfChunks({{"NAME", Bytes(8193, 'x')}})).info.title.size(), 8193U);
}

TEST(AiffTexts, TheWalkEndsAfter8192Chunks)
{
    const auto behind = [](size_t count) {
        std::vector<Chunk> chunks(count, {"junk", Bytes(8)});
        chunks.push_back({"NAME", bytesOf("Far")});
        return readFileOf(aiffOfChunks(chunks)).info.title;
    };
    EXPECT_EQ(behind(8191), "Far");
    EXPECT_EQ(behind(8192), "");
}

TEST(AiffTexts, ATextThatTheFileEndsInIsTakenAsFarAsItGoes)
{
    Bytes bytes = aiffOfChunks({aiffCommon(2, 1, 16), {"NAME", bytesOf("Title")}});
    bytes.resize(bytes.size() - 3);
    EXPECT_EQ(readFileOf(bytes).info.title, "Tit");
}
