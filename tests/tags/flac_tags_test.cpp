#include "tags/flac_tags.h"
#include "tags/vorbis_comment.h"
#include "tests/tags/tags_support.h"

#include <gtest/gtest.h>

using namespace tags_test;
using kelp_test::flacBytes;
using kelp_test::vorbisPayload;

namespace {

const kelp_test::FlacPart streamInfo{0, kelp_test::flacStreamInfo(44100, 2, 16, 1000)};

class FlacTags : public testing::Test
{
protected:
    std::string write(const Bytes &bytes)
    {
        kelp_test::writeFile(m_folder.file("a.flac"), bytes);
        return m_folder.file("a.flac");
    }
    TagSet tagsOf(const Bytes &bytes)
    {
        TagSet tags;
        EXPECT_TRUE(readFlacTags(write(bytes), tags));
        return tags;
    }

    kelp_test::TempDir m_folder;
    std::string m_error;
};

} // namespace

TEST_F(FlacTags, ACommentBehindALargePictureIsFound)
{
    const Bytes far = flacBytes({streamInfo, {6, Bytes(200000)}, {4, vorbisPayload("maker", {"TITLE=T"})}});
    EXPECT_EQ(tagsOf(far).title, "T");
}

TEST_F(FlacTags, EveryKeyHasItsField)
{
    const TagSet expected{"T", "A", "B", "AA", "3/12", "1999", "P", "W", "M", "2"};
    EXPECT_EQ(
        tagsOf(flacBytes({streamInfo,
                          {4, vorbisPayload("maker", {"title=T", "ARTIST=A", "Album=B", "albumartist=AA",
                                                      "TRACKNUMBER=3/12", "DATE=1999", "COMPOSER=P", "WORK=W",
                                                      "MOVEMENT=M", "MOVEMENTNUMBER=2", "TRACK=9"})}})),
        expected);
}

TEST_F(FlacTags, ALaterValueOverwritesAnEarlierOne)
{
    const Bytes two = flacBytes(
        {streamInfo, {4, vorbisPayload("m", {"TITLE=1", "ARTIST=1"})}, {4, vorbisPayload("m", {"TITLE=2"})}});
    EXPECT_EQ(tagsOf(two).title, "2");
    EXPECT_EQ(tagsOf(two).artist, "1");
}

TEST_F(FlacTags, AMalformedBlockGivesFewerFields)
{
    Bytes payload = vorbisPayload("m", {"TITLE=1", "ARTIST=1"});
    payload.pop_back();
    EXPECT_EQ(tagsOf(flacBytes({streamInfo, {4, payload}})),
              (TagSet{"1", {}, {}, {}, {}, {}, {}, {}, {}, {}}));
}

TEST_F(FlacTags, BlocksKeepTheirOrderAndTheAudioItsPlace)
{
    const Bytes bytes = flacBytes({{1, Bytes(7)}, streamInfo, {0, Bytes(3)}, {6, Bytes(5, 'p')}}, Bytes(100));
    FlacBlocks blocks;
    ASSERT_TRUE(readFlacBlocks(write(bytes), blocks, nullptr));
    EXPECT_TRUE(blocks.hasStreamInfo);
    EXPECT_EQ(blocks.streamInfo, streamInfo.payload);
    ASSERT_EQ(blocks.others.size(), 3U);
    EXPECT_EQ(blocks.others[0].type, 1);
    EXPECT_EQ(blocks.others[1].type, 0) << "only the first is kept apart";
    EXPECT_EQ(blocks.others[2].bytes, Bytes(5, 'p'));
    EXPECT_EQ(blocks.audioStart, bytes.size() - 100);
}

TEST_F(FlacTags, FailuresSayWhatIsWrong)
{
    FlacBlocks blocks;
    EXPECT_FALSE(readFlacBlocks(m_folder.file("none"), blocks, &m_error));
    EXPECT_EQ(m_error, "打不开文件");
    EXPECT_FALSE(readFlacBlocks(write(bytesOf("fLaX")), blocks, &m_error));
    EXPECT_EQ(m_error, "不是 FLAC(缺 fLaC 头)");
    EXPECT_FALSE(readFlacBlocks(write(bytesOf("fL")), blocks, &m_error));
    EXPECT_EQ(m_error, "不是 FLAC(缺 fLaC 头)");
    EXPECT_FALSE(readFlacBlocks(write(joined({bytesOf("fLaC"), Bytes{0, 0}})), blocks, &m_error));
    EXPECT_EQ(m_error, "元数据块头读取失败");
    EXPECT_FALSE(readFlacBlocks(write(joined({bytesOf("fLaC"), Bytes{0, 0, 0, 0}})), blocks, &m_error));
    EXPECT_EQ(m_error, "元数据块头读取失败") << "the last block is missing";
    EXPECT_FALSE(
        readFlacBlocks(write(joined({bytesOf("fLaC"), Bytes{0x80, 0xFF, 0xFF, 0xFF, 1}})), blocks, &m_error));
    EXPECT_EQ(m_error, "元数据块内容读取失败");
    TagSet tags;
    EXPECT_FALSE(readFlacTags(m_folder.file("none"), tags)) << "the text may be left out";
}

TEST(VorbisComment, KeysKeepTheirSpelling)
{
    std::string vendor;
    std::vector<VorbisComment> comments;
    EXPECT_TRUE(
        parseVorbisComment(vorbisPayload("maker", {"Title=a=b", "none", "=x", "K="}), vendor, comments));
    EXPECT_EQ(vendor, "maker");
    EXPECT_EQ(comments, (std::vector<VorbisComment>{{"Title", "a=b"}, {"", "x"}, {"K", ""}}));
}

TEST(VorbisComment, WhatDoesNotFitIsMalformed)
{
    std::string vendor;
    std::vector<VorbisComment> comments;
    const Bytes whole = vorbisPayload("maker", {"A=1", "B=2"});
    for (size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(parseVorbisComment({whole.data(), length}, vendor, comments)) << length;
    EXPECT_EQ(comments.size(), 1U) << "what stood before the fault";
    EXPECT_FALSE(parseVorbisComment(Bytes{0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0}, vendor, comments));
    EXPECT_FALSE(parseVorbisComment(Bytes{0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF}, vendor, comments));
    EXPECT_TRUE(parseVorbisComment(Bytes(8), vendor, comments));
}
