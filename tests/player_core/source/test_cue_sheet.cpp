// CUE sheets as text: every line, both kinds of sheet, damage.

#include "player_core/source/cue_sheet.h"

#include <gtest/gtest.h>

namespace {

using namespace kelp_core;

constexpr const char *singleFile = "REM DATE 1999\n"
                                   "CATALOG 1234567890123\n"
                                   "PERFORMER \"The Band\"\n"
                                   "TITLE \"The \"Best\" Of\"\n"
                                   "FILE \"the album.wav\" WAVE\n"
                                   "  TRACK 01 AUDIO\n"
                                   "    TITLE \"One\"\n"
                                   "    ISRC ABCDE1234567\n"
                                   "    FLAGS DCP PRE\n"
                                   "    INDEX 01 00:00:00\n"
                                   "  TRACK 02 AUDIO\n"
                                   "    TITLE Two words\n"
                                   "    PERFORMER \"Someone Else\"\n"
                                   "    PREGAP 00:02:00\n"
                                   "    INDEX 00 03:10:20\n"
                                   "    INDEX 01 03:12:20\n"
                                   "    INDEX 02 04:00:00\n"
                                   "    POSTGAP 00:00:10\n"
                                   "  TRACK 03 AUDIO\n"
                                   "    INDEX 01 07:00:74\n";

TEST(CueSheet, ReadsEveryLine)
{
    const auto sheet = parseCueSheet(singleFile);
    ASSERT_TRUE(sheet);
    EXPECT_EQ(sheet->title, "The \"Best\" Of");
    EXPECT_EQ(sheet->performer, "The Band");
    EXPECT_EQ(sheet->catalog, "1234567890123");
    ASSERT_EQ(sheet->files.size(), 1U);
    EXPECT_EQ(sheet->files[0].name, "the album.wav");
    EXPECT_EQ(sheet->files[0].type, "WAVE");
    ASSERT_EQ(sheet->tracks.size(), 3U);
    EXPECT_EQ(sheet->tracks[0].isrc, "ABCDE1234567");
    EXPECT_EQ(sheet->tracks[0].flags, "DCP PRE");
    EXPECT_EQ(sheet->tracks[1].title, "Two words");
    EXPECT_EQ(sheet->tracks[1].pregapFrames, 150);
    EXPECT_EQ(sheet->tracks[1].postgapFrames, 10);
    EXPECT_EQ(sheet->tracks[1].pregapStartFrames, (3 * 60 + 10) * 75 + 20);
    EXPECT_EQ(sheet->tracks[2].startFrames, 7 * 60 * 75 + 74);
}

TEST(CueSheet, TracksGoFromIndexOneToIndexOne)
{
    const auto spans = cueSpans(*parseCueSheet(singleFile));
    ASSERT_EQ(spans.size(), 3U);
    EXPECT_EQ(spans[0].startFrames, 0);
    EXPECT_EQ(spans[0].endFrames, (3 * 60 + 12) * 75 + 20) << "the pre-gap belongs to the track before";
    EXPECT_EQ(spans[1].startFrames, spans[0].endFrames);
    EXPECT_EQ(spans[2].endFrames, -1);
    EXPECT_EQ(spans[0].performer, "The Band");
    EXPECT_EQ(spans[1].performer, "Someone Else");
}

TEST(CueSheet, EveryLineEndReadsTheSame)
{
    for (const char *end : {"\r", "\r\n", "\n", "\r\n\r\n"}) {
        std::string text;
        for (const char letter : std::string(singleFile))
            letter == '\n' ? text += end : text += letter;
        const auto sheet = parseCueSheet(text);
        ASSERT_TRUE(sheet);
        EXPECT_EQ(sheet->tracks.size(), 3U);
        EXPECT_EQ(sheet->files[0].name, "the album.wav");
    }
}

TEST(CueSheet, SeveralFiles)
{
    // Track 2's pre-gap stands at the end of the first file, as rippers write it.
    const auto sheet = parseCueSheet("FILE 01 first song.flac WAVE\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n"
                                     "TRACK 02 AUDIO\nTITLE \"b\"\nINDEX 00 02:00:00\n"
                                     "FILE \"02.flac\" WAVE\nINDEX 01 00:00:00\n"
                                     "FILE \"03.bin\" BINARY\nTRACK 03 AUDIO\nINDEX 01 00:00:00\n");
    ASSERT_TRUE(sheet);
    ASSERT_EQ(sheet->files.size(), 3U);
    EXPECT_EQ(sheet->files[0].name, "01 first song.flac");
    EXPECT_EQ(sheet->files[2].type, "BINARY");
    const auto spans = cueSpans(*sheet);
    ASSERT_EQ(spans.size(), 3U);
    EXPECT_EQ(spans[1].file, 1U);
    EXPECT_EQ(spans[2].file, 2U);
    for (const CueSpan &span : spans)
        EXPECT_EQ(span.endFrames, -1);
}

TEST(CueSheet, PassesOverWhatItDoesNotKnow)
{
    const auto sheet =
        parseCueSheet("CDTEXTFILE \"a.cdt\"\nSONGWRITER \"x\"\nfile \"a.wav\" wave\n"
                      "TRACK 01 MODE1/2352\nINDEX 01 00:00:00\n"
                      "TRACK xx AUDIO\nTITLE \"lost\"\nINDEX 01 00:01:00\n"
                      "track 02 audio\nINDEX 01 00:61:00\nINDEX 01 00:02:75\nindex 01 00:03:00\n"
                      "TRACK 03 AUDIO\nTITLE \"no time\"\n"
                      "TRACK 04 AUDIO\nINDEX 00 00:09:00\n");
    ASSERT_TRUE(sheet);
    const auto spans = cueSpans(*sheet);
    ASSERT_EQ(spans.size(), 2U) << "data, tracks without a number and without a time are none";
    EXPECT_EQ(spans[0].number, 2);
    EXPECT_EQ(spans[0].startFrames, 3 * 75);
    EXPECT_EQ(spans[1].number, 4);
    EXPECT_EQ(spans[1].startFrames, 9 * 75);
    EXPECT_EQ(sheet->title, "");
}

TEST(CueSheet, TimesThatRunBackwardsEndWithTheFile)
{
    const auto spans = cueSpans(*parseCueSheet("FILE a WAVE\nTRACK 1 AUDIO\nINDEX 01 00:05:00\n"
                                               "TRACK 2 AUDIO\nINDEX 01 00:02:00\n"));
    EXPECT_EQ(spans[0].endFrames, -1);
}

TEST(CueSheet, IsNothingWithoutTracks)
{
    EXPECT_FALSE(parseCueSheet(""));
    EXPECT_FALSE(parseCueSheet("hello\nworld\n"));
    EXPECT_FALSE(parseCueSheet("TRACK 01 AUDIO\nINDEX 01 00:00:00\n")) << "a track without a file";
    EXPECT_FALSE(parseCueSheet("FILE \"a.wav"));
    EXPECT_FALSE(parseCueSheet(std::string_view("\0\0\0\0", 4)));
}

TEST(CueSheet, TimesBecomeFramesRoundedOnce)
{
    EXPECT_EQ(cueTimeToFrames(75, 44100), 44100);
    EXPECT_EQ(cueTimeToFrames(1, 44100), 588);
    EXPECT_EQ(cueTimeToFrames(1, 32000), 427); // 426.67
    EXPECT_EQ(cueTimeToFrames(1, 352800), 4704);
    EXPECT_EQ(cueTimeToFrames(75LL * 60 * 99999, 192000), 192000LL * 60 * 99999);
}

} // namespace
