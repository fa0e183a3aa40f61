// What holds for all forms of files: the few bytes needed, head and tail, and which tag comes before which.
#include "tags/audio_file_info.h"

#include "tests/tags/tags_support.h"

#include <gtest/gtest.h>

using namespace tags_test;

namespace {

Bytes id3Of(const std::string &title)
{
    return id3Tag(4, {{"TIT2", id3Text(3, title)}});
}

} // namespace

TEST(FileInfo, AFileOfFifteenBytesLeavesTheInfoAsItWas)
{
    const kelp_test::TempDir folder;
    AudioFileInfo info;
    info.title = "kept";
    info.dataSize = 7;
    const AudioFileInfo before = info;
    kelp_test::writeFile(folder.file("a"), "fLaC12345678901");
    EXPECT_FALSE(readAudioFileInfo(info, folder.file("a")));
    EXPECT_EQ(info, before);
    EXPECT_FALSE(readAudioFileInfo(info, folder.file("none")));
    EXPECT_EQ(info, before);
}

TEST(FileInfo, SixteenBytesSetTheInfoAnew)
{
    const kelp_test::TempDir folder;
    AudioFileInfo info;
    info.title = "old";
    kelp_test::writeFile(folder.file("a"), "0123456789012345");
    EXPECT_FALSE(readAudioFileInfo(info, folder.file("a")));
    EXPECT_EQ(info.title, "");
    EXPECT_EQ(info.format, "Unknown");
    EXPECT_EQ(info.dataSize, 16U) << "starts as the file's size";
}

TEST(FileInfo, PathsAreUtf8)
{
    const kelp_test::TempDir folder;
    const std::string path = folder.file("Größe – 音樂.flac");
    kelp_test::writeFile(path, kelp_test::taggedFile("flac", {"T", "A", "B"}, Bytes(100)));
    AudioFileInfo info;
    EXPECT_TRUE(readAudioFileInfo(info, path));
    EXPECT_EQ(info.title, "T");
}

TEST(FileInfo, TheCommentOfAFlacFileComesBeforeAnId3Tag)
{
    const Bytes flac = kelp_test::taggedFile("flac", {"comment", "", ""}, id3Of("id3"));
    EXPECT_EQ(readFileOf(flac).info.title, "comment");
}

TEST(FileInfo, AnArtistAloneKeepsTheOtherTagsOut)
{
    const Bytes flac = kelp_test::taggedFile("flac", {"", "artist", ""}, id3Of("id3"));
    EXPECT_EQ(readFileOf(flac).info.title, "");
    EXPECT_EQ(readFileOf(flac).info.artist, "artist");
}

TEST(FileInfo, WithoutACommentAnId3TagInTheHeadCounts)
{
    const Bytes flac = kelp_test::flacBytes({{0, kelp_test::flacStreamInfo(44100, 2, 16, 1)}}, id3Of("id3"));
    EXPECT_EQ(readFileOf(flac).info.title, "id3");
}

TEST(FileInfo, Id3ComesBeforeApeAndApeBeforeBareText)
{
    const Bytes bare = bytesOf("................ TITLE=bare\n");
    const Bytes ape = kelp_test::apeTag({{"Title", "ape"}});
    EXPECT_EQ(readFileOf(joined({bare, id3Of("id3"), ape})).info.title, "id3");
    EXPECT_EQ(readFileOf(joined({bare, ape})).info.title, "ape");
    EXPECT_EQ(readFileOf(bare).info.title, "bare");
}

TEST(FileInfo, ATagWithinTheLast64KiBIsFound)
{
    const Bytes found = joined({bytesOf("DSD "), Bytes(100000, 0x69), id3Of("tail")});
    EXPECT_EQ(readFileOf(found).info.title, "tail");
}

TEST(FileInfo, ATagThatBeginsBeforeTheTailIsNot)
{
    const Bytes late = joined({bytesOf("DSD "), Bytes(100000, 0x69), id3Of("lost"), Bytes(65536, 0x69)});
    EXPECT_EQ(readFileOf(late).info.title, "");
}

TEST(FileInfo, AHeadThatHasTheArtistLeavesTheTailUnread)
{
    const Bytes both = joined({id3Tag(4, {{"TPE1", id3Text(3, "head")}}), Bytes(100000, 1), id3Of("tail")});
    EXPECT_EQ(readFileOf(both).info.title, "");
    EXPECT_EQ(readFileOf(both).info.artist, "head");
}

TEST(FileInfo, AFileJustLongerThanTheHeadHasNoTail)
{
    // The tag stands across the head's end, so that only a tail could give it.
    const Bytes tag = id3Of("tail");
    const auto sized = [&](size_t beyond) {
        return joined({bytesOf("DSD "), Bytes(65536 + beyond - 4 - tag.size(), 0x69), tag});
    };
    EXPECT_EQ(readFileOf(sized(16)).info.title, "");
    EXPECT_EQ(readFileOf(sized(17)).info.title, "tail");
}

TEST(FileInfo, AnUntaggedFileHasNoTagsAndIsUnderstood)
{
    Bytes audio(200000);
    for (size_t i = 0; i < audio.size(); ++i)
        audio[i] = static_cast<uint8_t>(i * i >> 3);
    const Read read = readFileOf(kelp_test::taggedFile("wav-untagged", {}, audio));
    EXPECT_TRUE(read.understood);
    EXPECT_EQ(read.info.title + read.info.artist + read.info.comment, "");
}

TEST(FileInfo, CutAnywhereAFileOfAnyKindIsReadInPeace)
{
    for (const char *kind :
         {"flac", "flac-cover", "wav", "aiff", "mp3", "dsf", "ape", "wavpack", "tta", "ogg", "m4a"}) {
        const Bytes whole = kelp_test::taggedFile(kind, {"Title", "Artist", "Album"}, Bytes(900, 0x2A));
        const size_t step = whole.size() > 4000 ? 97 : 7;
        for (size_t length = 0; length < whole.size(); length += step) {
            const Read read =
                readFileOf({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)});
            EXPECT_LE(read.info.title.size(), length) << kind;
        }
    }
}
