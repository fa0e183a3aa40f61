#include "tests/tags/tags_support.h"

#include <gtest/gtest.h>

using namespace tags_test;
using kelp_test::flacBytes;
using kelp_test::vorbisPayload;

namespace {

const kelp_test::FlacPart streamInfo{0, kelp_test::flacStreamInfo(44100, 2, 16, 1000)};

AudioFileInfo infoOf(const std::vector<std::string> &comments)
{
    return readFileOf(flacBytes({streamInfo, {4, vorbisPayload("maker", comments)}})).info;
}

} // namespace

TEST(FlacHead, AnAlbumArtistBeforeTheArtistIsTheArtist)
{
    EXPECT_EQ(infoOf({"ALBUMARTIST=Band", "ARTIST=Singer"}).artist, "Band");
    EXPECT_EQ(infoOf({"ARTIST=Singer", "ALBUMARTIST=Band"}).artist, "Singer");
}

TEST(FlacHead, EveryKeyHasItsField)
{
    const AudioFileInfo info = infoOf({"title=T", "Artist=A", "album=B", "GENRE=G", "DATE=1999",
                                       "COMMENT=C=D", "composer=P", "WORK=W", "MovementName=M",
                                       "MOVEMENTNUMBER=2", "TRACKNUMBER=3/12", "UNKNOWN=x", "no equals"});
    EXPECT_EQ(info.title, "T");
    EXPECT_EQ(info.artist, "A");
    EXPECT_EQ(info.album, "B");
    EXPECT_EQ(info.genre, "G");
    EXPECT_EQ(info.date, "1999");
    EXPECT_EQ(info.comment, "C=D");
    EXPECT_EQ(info.composer, "P");
    EXPECT_EQ(info.work, "W");
    EXPECT_EQ(info.movementName, "M");
    EXPECT_EQ(info.movementNumber, "2");
    EXPECT_EQ(info.track, 3);
    EXPECT_EQ(info.trackTotal, 12);
}

TEST(FlacHead, TheFirstValueOfAFieldCounts)
{
    EXPECT_EQ(infoOf({"TITLE=1", "TITLE=2"}).title, "1");
    EXPECT_EQ(infoOf({"MOVEMENT=1", "MOVEMENTNAME=2"}).movementName, "1");
    EXPECT_EQ(infoOf({"TRACK=4", "TRACKNUMBER=5"}).track, 4);
}

TEST(FlacHead, ATotalOfNoughtLeavesTheTotalUnset)
{
    const AudioFileInfo info = infoOf({"TRACKNUMBER=3/0"});
    EXPECT_EQ(info.track, 3);
    EXPECT_EQ(info.trackTotal, 0);
    EXPECT_EQ(infoOf({"TRACKNUMBER=A3"}).track, 0);
}

TEST(FlacHead, ACommentBehindALargePictureIsNotFound)
{
    const Bytes far = flacBytes({streamInfo, {6, Bytes(200000)}, {4, vorbisPayload("maker", {"TITLE=T"})}});
    const Read read = readFileOf(far);
    EXPECT_TRUE(read.understood);
    EXPECT_EQ(read.info.title, "");
}

TEST(FlacHead, ACommentBehindAPictureInTheHeadIs)
{
    const Bytes near = flacBytes({streamInfo, {6, Bytes(60000)}, {4, vorbisPayload("maker", {"TITLE=T"})}});
    EXPECT_EQ(readFileOf(near).info.title, "T");
}

TEST(FlacHead, ABlockThatPassesTheHeadEndsTheSearch)
{
    // The next step of precedence takes over: bare text.
    const Bytes far =
        flacBytes({streamInfo, {4, vorbisPayload("maker", {"TITLE=T", "X=" + std::string(70000, 'x')})}});
    EXPECT_EQ(readFileOf(far).info.title, "Tr\x11\x01") << "up to a NUL of the next entry's length";
}

TEST(FlacHead, ALastBlockOfAnotherKindEndsTheSearch)
{
    const Bytes behind = flacBytes({streamInfo}, flacBytes({{4, vorbisPayload("maker", {"GENRE=G"})}}));
    EXPECT_EQ(readFileOf(behind).info.genre, "G") << "by bare text only";
    const Bytes hidden = flacBytes({streamInfo}, flacBytes({{4, vorbisPayload("maker", {"COMPOSER=P"})}}));
    EXPECT_EQ(readFileOf(hidden).info.composer, "");
}

TEST(FlacHead, AMalformedLengthKeepsWhatWasFound)
{
    Bytes payload = vorbisPayload("maker", {"COMPOSER=P", "WORK=W"});
    payload[payload.size() - 7] = 0x7F;
    payload.resize(payload.size());
    const AudioFileInfo info = readFileOf(flacBytes({streamInfo, {4, payload}})).info;
    EXPECT_EQ(info.composer, "P");
    EXPECT_EQ(info.work, "");
}
