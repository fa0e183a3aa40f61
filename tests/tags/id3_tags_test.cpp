#include "tags/id3_tags.h"
#include "tags/wav_id3_chunk.h"
#include "tests/tags/tags_support.h"

#include <gtest/gtest.h>

using namespace tags_test;
using kelp_test::wavFormat;
using kelp_test::wavOfChunks;

namespace {

const Bytes titleTag = id3Tag(4, {{"TIT2", id3Text(3, "T")}});

class Id3Tags : public testing::Test
{
protected:
    bool read(const std::string &name, const Bytes &bytes)
    {
        kelp_test::writeFile(m_folder.file(name), bytes);
        m_tags.artist = "old";
        return readId3Tags(m_folder.file(name), m_tags, &m_error);
    }

    kelp_test::TempDir m_folder;
    TagSet m_tags;
    std::string m_error;
};

} // namespace

TEST(ParseId3Tag, EveryFrameHasItsField)
{
    const TagSet expected{"T", "A", "B", "AA", "3/12", "1999", "P", "W", "M", "2"};
    const Bytes tag = id3Tag(4, {{"TIT2", id3Text(3, "T")},
                                 {"TPE1", id3Text(3, "A")},
                                 {"TALB", id3Text(3, "B")},
                                 {"TPE2", id3Text(3, "AA")},
                                 {"TRCK", id3Text(3, "3/12")},
                                 {"TDRC", id3Text(3, "1999")},
                                 {"TCOM", id3Text(3, "P")},
                                 {"TIT1", id3Text(3, "W")},
                                 {"MVNM", id3Text(3, "M")},
                                 {"MVIN", id3Text(3, "2")},
                                 {"TYER", id3Text(3, "no")}});
    EXPECT_EQ(parseId3Tag(tag), expected);
}

TEST(ParseId3Tag, TheEncodingIsDroppedUnseenAndNulBytesGo)
{
    EXPECT_EQ(parseId3Tag(id3Tag(4, {{"TIT2", id3Text(1, std::string("a\0b\0", 4))}})).title, "ab");
}

TEST(ParseId3Tag, SizesGoByTheVersion)
{
    const std::string text(200, 'x');
    EXPECT_EQ(parseId3Tag(id3Tag(3, {{"TIT2", id3Text(3, text)}})).title, text);
    EXPECT_EQ(parseId3Tag(id3Tag(4, {{"TIT2", id3Text(3, text)}})).title, text);
}

TEST(ParseId3Tag, PaddingAndFramesPastTheEndStopTheReading)
{
    Bytes padded = id3Tag(
        4,
        {{"TIT2", id3Text(3, "T")}, {std::string(4, '\0'), std::string(4, 'x')}, {"TPE1", id3Text(3, "A")}});
    EXPECT_EQ(parseId3Tag(padded).artist, "");
    EXPECT_EQ(parseId3Tag(padded).title, "T");
    Bytes cut = id3Tag(4, {{"TIT2", id3Text(3, "T")}, {"TPE1", id3Text(3, "Artist")}});
    cut.pop_back();
    EXPECT_EQ(parseId3Tag(cut).artist, "");
    EXPECT_EQ(parseId3Tag(cut).title, "T");
}

TEST(ParseId3Tag, AnEmptyFrameIsSkipped)
{
    EXPECT_EQ(parseId3Tag(id3Tag(4, {{"TPE1", ""}, {"TIT2", id3Text(3, "T")}})).title, "T");
}

TEST(ParseId3Tag, WhatIsNoTagIsEmpty)
{
    EXPECT_EQ(parseId3Tag({}), TagSet());
    EXPECT_EQ(parseId3Tag(bytesOf("ID3456789")), TagSet());
    EXPECT_EQ(parseId3Tag(joined({Bytes(1), titleTag})), TagSet()) << "it has to begin the bytes";
    for (size_t length = 0; length < titleTag.size(); ++length)
        EXPECT_EQ(parseId3Tag({titleTag.data(), length}), TagSet()) << length;
}

TEST_F(Id3Tags, OfAWavFile)
{
    EXPECT_TRUE(read("a.WAV",
                     wavOfChunks({wavFormat(1, 44100, 2, 16), {"data", Bytes(200001)}, {"ID3 ", titleTag}})));
    EXPECT_EQ(m_tags.title, "T");
    EXPECT_EQ(m_tags.artist, "") << "begins empty";
    EXPECT_TRUE(read("a.wav", wavOfChunks({wavFormat(1, 44100, 2, 16), {"data", Bytes(2)}})));
    EXPECT_EQ(m_tags, TagSet());
}

TEST_F(Id3Tags, AWavFileThatIsNoneFails)
{
    EXPECT_FALSE(read("a.wav", Bytes(40)));
    EXPECT_EQ(m_error, "不是 RIFF/WAV");
    EXPECT_FALSE(read("a.wav", wavOfChunks({wavFormat(1, 44100, 2, 16)})));
    EXPECT_EQ(m_error, "WAV 里没有 data chunk(文件不完整?)");
    EXPECT_FALSE(readId3Tags(m_folder.file("none.wav"), m_tags, &m_error));
    EXPECT_EQ(m_error, "打不开文件");
    Bytes cut = wavOfChunks({{"data", Bytes(2)}, {"ID3 ", titleTag}});
    cut.resize(cut.size() - 4);
    EXPECT_FALSE(read("a.wav", cut));
    EXPECT_EQ(m_error, "读不满(文件被改过?)");
}

TEST_F(Id3Tags, AWavFileThatEndsWithinItsChunkFailsThoughTheTagIsWhole)
{
    Bytes cut = wavOfChunks({{"data", Bytes(2)}, {"ID3 ", joined({titleTag, Bytes(100)})}});
    cut.resize(cut.size() - 50);
    EXPECT_FALSE(read("a.wav", cut));
    EXPECT_EQ(m_error, "读不满(文件被改过?)");
    EXPECT_EQ(m_tags, TagSet());
}

TEST_F(Id3Tags, AWavFileWithoutItsLastPadByteIsRead)
{
    Bytes unpadded =
        wavOfChunks({{"data", Bytes(2)}, {"ID3 ", joined({titleTag, Bytes(titleTag.size() % 2 + 1)})}});
    ASSERT_EQ(unpadded.back(), 0);
    unpadded.pop_back();
    EXPECT_TRUE(read("a.wav", unpadded)) << m_error;
    EXPECT_EQ(m_tags.title, "T");
}

TEST_F(Id3Tags, ThePlaceOfAWavFilesChunk)
{
    uint64_t offset = 1;
    uint64_t size = 1;
    const Bytes odd = joined({titleTag, Bytes(titleTag.size() % 2 == 0 ? 1 : 0)});
    kelp_test::writeFile(m_folder.file("a.wav"),
                         wavOfChunks({{"data", Bytes(3)}, {"ID3 ", odd}, {"LIST", Bytes(4)}}));
    ASSERT_TRUE(findWavId3Chunk(m_folder.file("a.wav"), offset, size, nullptr));
    EXPECT_EQ(offset, 12U + 8 + 4);
    EXPECT_EQ(size, 8 + odd.size() + 1);
    kelp_test::writeFile(m_folder.file("a.wav"), wavOfChunks({{"data", Bytes(3)}}));
    ASSERT_TRUE(findWavId3Chunk(m_folder.file("a.wav"), offset, size, nullptr));
    EXPECT_EQ(offset, 0U);
}

TEST_F(Id3Tags, OfADsfFile)
{
    EXPECT_TRUE(read("a.dsf", kelp_test::dsfWithTag(titleTag, Bytes(500))));
    EXPECT_EQ(m_tags.title, "T");
    EXPECT_TRUE(read("a.dsf", kelp_test::dsfWithTag({}, Bytes(500))));
    EXPECT_EQ(m_tags, TagSet()) << "a pointer of 0";
    Bytes beyond = kelp_test::dsfWithTag(titleTag, Bytes(500));
    beyond[23] = 1;
    EXPECT_TRUE(read("a.dsf", beyond));
    EXPECT_EQ(m_tags, TagSet()) << "a pointer not below the size";
}

TEST_F(Id3Tags, ADsfFileThatIsNoneFails)
{
    EXPECT_FALSE(read("a.dsf", Bytes(40)));
    EXPECT_EQ(m_error, "不是 DSF");
    EXPECT_FALSE(read("a.dsf", bytesOf("DSD ")));
    EXPECT_EQ(m_error, "读不满(文件被改过?)");
    Bytes cut = kelp_test::dsfWithTag(titleTag, Bytes(500));
    cut.resize(cut.size() - 2);
    EXPECT_FALSE(read("a.dsf", cut));
    EXPECT_EQ(m_error, "读不满(文件被改过?)");
}

TEST_F(Id3Tags, OfADffFile)
{
    EXPECT_TRUE(read("a.dff", joined({bytesOf("FRM8"), Bytes(100000), bytesOf("ID3 "), Bytes(8)})));
    EXPECT_EQ(m_tags, TagSet()) << "the first ID3 counts, a tag or not";
    EXPECT_TRUE(read("a.dff", joined({bytesOf("FRM8"), Bytes(100000), titleTag, Bytes(9)})));
    EXPECT_EQ(m_tags.title, "T");
    EXPECT_TRUE(read("a.dff", joined({titleTag, Bytes(65536)})));
    EXPECT_EQ(m_tags, TagSet()) << "before the last 64 KiB";
    EXPECT_TRUE(read("a.dff", {}));
    EXPECT_FALSE(readId3Tags(m_folder.file("none.dff"), m_tags, &m_error));
    EXPECT_EQ(m_error, "打不开文件");
}

TEST_F(Id3Tags, OtherSuffixesAreNoId3)
{
    for (const char *name : {"a.flac", "a.mp3", "noSuffix", "wav", "a.wav.x"}) {
        EXPECT_FALSE(read(name, titleTag)) << name;
        EXPECT_EQ(m_error, "这个格式不是 ID3 标签(flac 走 Vorbis)");
    }
    EXPECT_FALSE(readId3Tags("x", m_tags)) << "the text may be left out";
}
