// ReplayGain's tags: as text, in CUE sheets, and in files.

#include "player_core/source/cue_sheet.h"
#include "player_core/source/gain_tag_text.h"
#include "player_core/source/source.h"
#include "tests/support/byte_writer.h"
#include "tests/support/dsd_file_maker.h"
#include "tests/support/dsd_signal.h"
#include "tests/support/id3_maker.h"
#include "tests/support/packed_maker.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

namespace {

using namespace kelp_test;
using namespace std::string_literals;
using kelp_core::GainTags;
using kelp_core::takeGainTag;

struct TagCase
{
    const char *key;
    const char *value;
    std::optional<double> wanted;
};

GainTags gainsOfFile(const std::string &path, const std::string &cue = {}, int track = 0)
{
    kelp_core::SourceRequest request;
    request.path = path;
    request.cuePath = cue;
    request.track = track;
    const auto opened = kelp_core::openSource(request);
    EXPECT_TRUE(opened.source) << opened.error;
    return opened.source ? opened.source->facts().gains : GainTags();
}

} // namespace

TEST(GainTags, NumbersComeInManyWritings)
{
    const TagCase cases[] = {
        {"REPLAYGAIN_TRACK_GAIN", "-7.30 dB", -7.3},
        {"replaygain_track_gain", "+2.5 dB", 2.5},
        {"Replaygain_Track_Gain", " 1 ", 1.0},
        {"REPLAYGAIN_TRACK_GAIN", "-6,54 dB", -6.54},
        {"REPLAYGAIN_TRACK_GAIN", "-6.5dB", -6.5},
        {"R128_TRACK_GAIN", "-256", 4.0},
        {"R128_TRACK_GAIN", "0", 5.0},
        {"REPLAYGAIN_TRACK_GAIN", "", {}},
        {"REPLAYGAIN_TRACK_GAIN", "loud", {}},
        {"REPLAYGAIN_TRACK_GAIN", "nan", {}},
        {"REPLAYGAIN_TRACK_GAIN", "-1e9 dB", {}},
        {"REPLAYGAIN_TRACK_GAIN", "61 dB", {}},
        {"REPLAYGAIN_TRACK_GAIN", "5x", {}},
        {"REPLAYGAIN_GAIN", "-3 dB", {}},
    };
    for (const TagCase &c : cases) {
        GainTags tags;
        takeGainTag(c.key, c.value, tags);
        ASSERT_EQ(tags.trackGainDb.has_value(), c.wanted.has_value()) << c.key << '=' << c.value;
        if (c.wanted) {
            EXPECT_DOUBLE_EQ(*tags.trackGainDb, *c.wanted) << c.value;
        }
    }
}

TEST(GainTags, APeakIsAboveZero)
{
    for (const char *bad : {"0", "-0.5", "65", "inf", "x"}) {
        GainTags tags;
        takeGainTag("REPLAYGAIN_ALBUM_PEAK", bad, tags);
        EXPECT_FALSE(tags.albumPeak) << bad;
    }
    GainTags tags;
    takeGainTag("REPLAYGAIN_ALBUM_PEAK", "1.0123", tags);
    takeGainTag("REPLAYGAIN_ALBUM_PEAK", "0.5", tags);
    EXPECT_EQ(tags.albumPeak, 1.0123) << "the first one stands";
}

TEST(GainTags, ASheetHasThemForTheAlbumAndForEachTrack)
{
    const auto sheet = kelp_core::parseCueSheet("REM REPLAYGAIN_ALBUM_GAIN -5.00 dB\n"
                                                "REM REPLAYGAIN_ALBUM_PEAK 0.99\n"
                                                "FILE \"a.wav\" WAVE\n"
                                                "TRACK 01 AUDIO\n"
                                                "REM REPLAYGAIN_TRACK_GAIN -4.20 dB\n"
                                                "INDEX 01 00:00:00\n"
                                                "TRACK 02 AUDIO\n"
                                                "REM REPLAYGAIN_TRACK_GAIN \"+1.00 dB\"\n"
                                                "REM COMMENT something\n"
                                                "REM\n"
                                                "INDEX 01 00:01:00\n");
    ASSERT_TRUE(sheet);
    EXPECT_EQ(sheet->gains.albumGainDb, -5.0);
    EXPECT_EQ(sheet->gains.albumPeak, 0.99);
    EXPECT_EQ(sheet->tracks[0].gains.trackGainDb, -4.2);
    EXPECT_EQ(sheet->tracks[1].gains.trackGainDb, 1.0);
}

TEST(GainTags, PackedFilesCarryThem)
{
    const TempDir dir;
    const PcmSignal signal = makeSignal({.frames = 20'000});
    for (const char *kind : {"flac", "wv", "tta"}) {
        const std::string path = dir.file("a."s + kind);
        FileTags tags;
        tags.words = {{"REPLAYGAIN_TRACK_GAIN", "-8.12 dB"},
                      {"REPLAYGAIN_TRACK_PEAK", "0.987"},
                      {"REPLAYGAIN_ALBUM_GAIN", "-7.00 dB"},
                      {"REPLAYGAIN_ALBUM_PEAK", "1.000"}};
        ASSERT_EQ(writePacked(kind, path, signal, tags), "");
        const GainTags gains = gainsOfFile(path);
        EXPECT_EQ(gains.trackGainDb, -8.12) << kind;
        EXPECT_EQ(gains.trackPeak, 0.987) << kind;
        EXPECT_EQ(gains.albumGainDb, -7.0) << kind;
        EXPECT_EQ(gains.albumPeak, 1.0) << kind;
    }
}

TEST(GainTags, ADsfFileCarriesThemInItsId3Tag)
{
    const TempDir dir;
    DsfOptions options;
    options.id3 = id3Bytes({.version = 4, .texts = {{"TXXX", "REPLAYGAIN_TRACK_GAIN\0-6.50 dB"s}}});
    writeFile(dir.file("a.dsf"), dsfBytes(makeDsd(SignalShape::sine, 50'000), options));
    EXPECT_EQ(gainsOfFile(dir.file("a.dsf")).trackGainDb, -6.5);
}

TEST(GainTags, WhatASheetSaysOfATrackGoesBeforeItsFile)
{
    const TempDir dir;
    FileTags tags;
    tags.words = {{"REPLAYGAIN_TRACK_GAIN", "-8.00 dB"}, {"REPLAYGAIN_TRACK_PEAK", "0.9"}};
    ASSERT_EQ(writePacked("flac", dir.file("a.flac"), makeSignal({.frames = 100'000}), tags), "");
    const std::string text = "FILE \"a.flac\" WAVE\nTRACK 01 AUDIO\nREM REPLAYGAIN_TRACK_GAIN -3.00 dB\n"
                             "INDEX 01 00:00:00\nTRACK 02 AUDIO\nINDEX 01 00:01:00\n";
    writeFile(dir.file("a.cue"), text);
    const GainTags first = gainsOfFile({}, dir.file("a.cue"), 1);
    EXPECT_EQ(first.trackGainDb, -3.0);
    EXPECT_FALSE(first.trackPeak) << "the peak of another gain's music";
    EXPECT_EQ(gainsOfFile({}, dir.file("a.cue"), 2).trackGainDb, -8.0);
}
