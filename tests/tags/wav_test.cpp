#include "tests/tags/tags_support.h"

#include <gtest/gtest.h>

using namespace tags_test;
using kelp_test::wavFormat;
using kelp_test::wavOfChunks;

TEST(WavHead, FormatAndData)
{
    const Read read = readFileOf(wavOfChunks({wavFormat(1, 96000, 2, 24), {"data", Bytes(600)}}));
    EXPECT_TRUE(read.understood);
    EXPECT_EQ(read.info.format, "WAV");
    EXPECT_EQ(read.info.sampleRate, 96000U);
    EXPECT_EQ(read.info.channels, 2U);
    EXPECT_EQ(read.info.bitsPerSample, 24U);
    EXPECT_EQ(read.info.totalSamples, 100U);
    EXPECT_EQ(read.info.dataOffset, 44U);
    EXPECT_EQ(read.info.dataSize, 600U);
    EXPECT_FALSE(read.info.isFloat);
}

TEST(WavHead, FormatTag3IsFloat)
{
    EXPECT_TRUE(readFileOf(wavOfChunks({wavFormat(3, 44100, 2, 32), {"data", Bytes(8)}})).info.isFloat);
}

TEST(WavHead, ChunksOfOddSizeArePadded)
{
    const Read read =
        readFileOf(wavOfChunks({{"junk", Bytes(5)}, wavFormat(1, 44100, 1, 8), {"data", Bytes(3)}}));
    EXPECT_TRUE(read.understood);
    EXPECT_EQ(read.info.totalSamples, 3U);
}

TEST(WavHead, WithoutAFormatInFrontTheDataHasNoSamples)
{
    const Read read = readFileOf(wavOfChunks({{"data", Bytes(8)}, wavFormat(1, 44100, 2, 16)}));
    EXPECT_TRUE(read.understood);
    EXPECT_EQ(read.info.totalSamples, 0U);
    EXPECT_EQ(read.info.dataSize, 8U);
}

TEST(WavHead, AFormatBelow16BytesIsNone)
{
    EXPECT_FALSE(readFileOf(wavOfChunks({{"fmt ", Bytes(14, 1)}, {"data", Bytes(8)}})).understood);
}

TEST(WavHead, SizesThatCannotBeEndTheWalk)
{
    Bytes bytes = wavOfChunks({wavFormat(1, 44100, 2, 16), {"data", Bytes(8)}});
    std::fill_n(bytes.begin() + 40, 4, uint8_t(0xFF));
    const Read read = readFileOf(bytes);
    EXPECT_TRUE(read.understood);
    EXPECT_EQ(read.info.dataSize, 0xFFFFFFFFU);
}

TEST(WavHead, NoBitsOrChannelsDivideByNothing)
{
    EXPECT_EQ(readFileOf(wavOfChunks({wavFormat(1, 44100, 0, 16), {"data", Bytes(8)}})).info.totalSamples,
              0U);
    EXPECT_EQ(readFileOf(wavOfChunks({wavFormat(1, 44100, 2, 4), {"data", Bytes(8)}})).info.totalSamples, 0U);
}

TEST(WavHead, AnId3ChunkWithinTheHeadIsRead)
{
    const Bytes tag = id3Tag(4, {{"TIT2", id3Text(3, "T")}, {"TPE1", id3Text(3, "A")}});
    const Read read =
        readFileOf(wavOfChunks({wavFormat(1, 44100, 2, 16), {"data", Bytes(8)}, {"ID3 ", tag}}));
    EXPECT_EQ(read.info.title, "T");
    EXPECT_EQ(read.info.artist, "A");
}

TEST(WavHead, AnId3ChunkThatPassesTheEndIsNot)
{
    Bytes bytes = wavOfChunks({wavFormat(1, 44100, 2, 16), {"ID3 ", id3Tag(4, {{"TIT2", id3Text(3, "T")}})}});
    bytes.pop_back();
    bytes.pop_back();
    EXPECT_EQ(readFileOf(bytes).info.title, "");
}
