// CUE sheets with their audio files: tracks, whole sheets, lost files, and the listing.

#include "player_core/source/cue_list.h"
#include "tests/support/byte_writer.h"
#include "tests/support/dsd_file_maker.h"
#include "tests/support/packed_maker.h"
#include "tests/support/source_check.h"
#include "tests/support/temp_dir.h"
#include "tests/support/wav_maker.h"

#include <gtest/gtest.h>

namespace {

using namespace kelp_test;
using kelp_core::ReadStatus;

kelp_core::OpenedSource openTrack(const std::string &cuePath, int track)
{
    kelp_core::SourceRequest request;
    request.cuePath = cuePath;
    request.track = track;
    return kelp_core::openSource(request);
}

class CueFiles : public testing::Test
{
protected:
    TempDir dir_;
    PcmSignal signal_ = makeSignal({.frames = 44100 * 3 + 100});
    std::string cue_ = dir_.file("album.cue");

    void sheet(const std::string &text) { writeFile(cue_, text); }
    void singleSheet(const std::string &name)
    {
        sheet("TITLE \"Al\tbum\"\nPERFORMER \"Band\"\nFILE \"" + name +
              "\" WAVE\nTRACK 01 AUDIO\nTITLE \"One\"\nINDEX 01 00:00:00\n"
              "TRACK 02 AUDIO\nTITLE \"Two\"\nPERFORMER \"Guest\"\nINDEX 00 00:00:70\nINDEX 01 00:01:10\n"
              "TRACK 03 AUDIO\nINDEX 01 00:02:00\n");
    }
    static constexpr size_t two_ = 85 * 588;

    void expectTrack(int track, size_t first, size_t count)
    {
        auto opened = openTrack(cue_, track);
        ASSERT_TRUE(opened.source) << opened.error;
        EXPECT_EQ(opened.source->facts().totalFrames, static_cast<int64_t>(count));
        EXPECT_EQ(opened.source->facts().firstFrame, static_cast<int64_t>(first));
        const Delivered all = readAll(*opened.source, 777);
        EXPECT_EQ(all.last.status, ReadStatus::end) << all.last.message;
        EXPECT_TRUE(all.pcm == cut(signal_, first, count).samples) << track;
        ASSERT_TRUE(opened.source->seekFrame(1000));
        EXPECT_TRUE(readSome(*opened.source, 100).pcm == cut(signal_, first + 1000, 100).samples);
    }
    void expectAllTracks()
    {
        expectTrack(1, 0, two_);
        expectTrack(2, two_, 88200 - two_);
        expectTrack(3, 88200, signal_.frames() - 88200);
    }
};

TEST_F(CueFiles, TracksOfOneFileAreExact)
{
    writeFile(dir_.file("album.wav"), wavBytes(signal_));
    singleSheet("album.wav");
    expectAllTracks();
    EXPECT_EQ(openTrack(cue_, 4).error, "the CUE sheet has no audio track 4");
}

TEST_F(CueFiles, FindsTheAlbumPackedAnewAndInOtherCase)
{
    ASSERT_EQ(writePacked("flac", dir_.file("ALBUM.flac"), signal_), "");
    singleSheet("C:\\Music\\Album.WAV");
    expectAllTracks();
}

TEST_F(CueFiles, WholeSheetIsOneSourceWithSegments)
{
    writeFile(dir_.file("album.wav"), wavBytes(signal_));
    singleSheet("album.wav");
    auto opened = openTrack(cue_, 0);
    ASSERT_TRUE(opened.source) << opened.error;
    const auto segments = opened.source->segments();
    ASSERT_EQ(segments.size(), 3U);
    EXPECT_EQ(segments[1].startFrame, static_cast<int64_t>(two_));
    EXPECT_EQ(segments[1].title, "Two");
    EXPECT_EQ(segments[1].performer, "Guest");
    EXPECT_EQ(segments[2].performer, "Band");
    EXPECT_TRUE(readAll(*opened.source).pcm == signal_.samples);
}

TEST_F(CueFiles, SeveralFilesJoinWithoutASeam)
{
    writeFile(dir_.file("1.wav"), wavBytes(cut(signal_, 0, 50001)));
    ASSERT_EQ(writePacked("flac", dir_.file("2.flac"), cut(signal_, 50001, signal_.frames() - 50001)), "");
    sheet("FILE 1.wav WAVE\nTRACK 01 AUDIO\nINDEX 01 00:00:00\nTRACK 02 AUDIO\nINDEX 00 00:01:00\n"
          "FILE 2.flac WAVE\nINDEX 01 00:00:00\n");
    auto opened = openTrack(cue_, 0);
    ASSERT_TRUE(opened.source) << opened.error;
    EXPECT_EQ(opened.source->facts().totalFrames, static_cast<int64_t>(signal_.frames()));
    EXPECT_EQ(opened.source->segments()[1].startFrame, 50001);
    EXPECT_TRUE(readAll(*opened.source, 1234).pcm == signal_.samples);
    for (const size_t frame : {size_t{60000}, size_t{10}, size_t{50001}, size_t{50000}}) {
        ASSERT_TRUE(opened.source->seekFrame(static_cast<int64_t>(frame)));
        EXPECT_TRUE(readSome(*opened.source, 500).pcm == cut(signal_, frame, 500).samples) << frame;
    }
    auto second = openTrack(cue_, 2);
    ASSERT_TRUE(second.source) << second.error;
    EXPECT_TRUE(readAll(*second.source).pcm == cut(signal_, 50001, signal_.frames() - 50001).samples);
}

TEST_F(CueFiles, FilesOfDifferentFormatDoNotJoin)
{
    writeFile(dir_.file("1.wav"), wavBytes(signal_));
    writeFile(dir_.file("2.wav"), wavBytes(makeSignal({.depthBits = 24})));
    sheet("FILE 1.wav WAVE\nTRACK 01 AUDIO\nINDEX 01 00:00:00\nFILE 2.wav WAVE\nTRACK 02 AUDIO\nINDEX 01 "
          "00:00:00\n");
    EXPECT_EQ(openTrack(cue_, 0).error,
              "the files of this sheet differ in format; play its tracks one at a time");
    EXPECT_TRUE(openTrack(cue_, 2).source);
}

TEST_F(CueFiles, BareSamplesOfADisc)
{
    writeFile(dir_.file("disc.bin"), rawBytes(signal_));
    sheet("FILE disc.bin BINARY\nTRACK 01 AUDIO\nINDEX 01 00:01:00\n");
    expectTrack(1, 44100, signal_.frames() - 44100);
}

TEST_F(CueFiles, TracksOfDsd)
{
    const DsdSignal dsd = makeDsd(SignalShape::noise, 4704 * 20);
    writeFile(dir_.file("album.dsf"), dsfBytes(dsd));
    sheet("FILE album.dsf WAVE\nTRACK 01 AUDIO\nINDEX 01 00:00:00\nTRACK 02 AUDIO\nINDEX 01 00:00:07\n");
    auto opened = openTrack(cue_, 2);
    ASSERT_TRUE(opened.source) << opened.error;
    const Delivered all = readAll(*opened.source);
    EXPECT_TRUE(
        std::equal(all.dsd.begin(), all.dsd.end(), dsd.bytes.begin() + 7 * 4704 * 2, dsd.bytes.end()));
}

TEST_F(CueFiles, ListsTracksWithTheirFile)
{
    writeFile(dir_.file("album.wav"), wavBytes(signal_));
    singleSheet("album.wav");
    const auto listing = kelp_core::listCue(cue_);
    EXPECT_EQ(listing.exitCode, 0);
    const std::string path = dir_.file("album.wav");
    EXPECT_EQ(listing.text, "CUE\tAl bum\tBand\n"
                            "TRACK\t1\t0.000000\t1.133333\tOne\tBand\t" +
                                path +
                                "\n"
                                "TRACK\t2\t1.133333\t2.000000\tTwo\tGuest\t" +
                                path +
                                "\n"
                                "TRACK\t3\t2.000000\t3.002267\t\tBand\t" +
                                path + "\n");
}

TEST_F(CueFiles, SaysWhatIsMissing)
{
    singleSheet("gone.wav");
    EXPECT_EQ(openTrack(cue_, 1).error, "\"gone.wav\": cannot open: no such file");
    const auto listing = kelp_core::listCue(cue_);
    EXPECT_EQ(listing.exitCode, 1);
    EXPECT_EQ(listing.text,
              "WARN \"gone.wav\": cannot open: no such file\nno track of this CUE sheet can be played\n");
    EXPECT_EQ(kelp_core::listCue(dir_.file("none.cue")).text, "cannot open: no such file\n");
    sheet("no sheet at all");
    EXPECT_EQ(openTrack(cue_, 1).error, "this is not a CUE sheet: it names no track");
    writeFile(dir_.file("short.wav"), wavBytes(makeSignal({.frames = 1000})));
    singleSheet("short.wav");
    EXPECT_EQ(openTrack(cue_, 3).error, "track 3 begins behind the end of its file");
}

} // namespace
