// SACD images give back the very bits of their tracks, in every form, from any place, and join without a gap.

#include "player_core/source/sacd_source.h"

#include "tests/support/byte_writer.h"
#include "tests/support/sacd_maker.h"
#include "tests/support/source_check.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace {

using namespace kelp_test;
using kelp_core::ReadStatus;
using kelp_core::SourceRequest;

constexpr size_t frameBytes = 4704;
constexpr int tracks = 3, framesOfATrack = 4;

struct ImageCase
{
    const char *name;
    SacdForm form;
    int sectorBytes;
    int channels;
};

void PrintTo(const ImageCase &image, std::ostream *out)
{
    *out << image.name << 'x' << image.channels << '/' << image.sectorBytes;
}

kelp_core::OpenedSource openTrack(const std::string &path, int track)
{
    SourceRequest request;
    request.isoPath = path;
    request.track = track;
    return kelp_core::openSource(request);
}

class SacdFile : public testing::TestWithParam<ImageCase>
{
protected:
    SacdFile()
    {
        area_ = plainArea(GetParam().form, tracks, framesOfATrack, GetParam().channels, 3, SignalShape::sine);
        writeFile(path_, makeSacd({.sectorBytes = GetParam().sectorBytes, .areas = {area_}}).bytes);
    }

    size_t channels() const { return static_cast<size_t>(GetParam().channels); }
    /// The bytes of a track, from a frame (one byte of every channel) of it on.
    std::vector<uint8_t> expected(int track, size_t from = 0) const
    {
        const size_t bytes = framesOfATrack * frameBytes * channels();
        const auto begin = area_.signal.bytes.begin() + static_cast<std::ptrdiff_t>((track - 1) * bytes);
        return {begin + static_cast<std::ptrdiff_t>(from * channels()),
                begin + static_cast<std::ptrdiff_t>(bytes)};
    }

    TempDir dir_;
    std::string path_ = dir_.file("disc.iso");
    SacdAreaRecipe area_;
};

TEST_P(SacdFile, GivesBackTheBitsOfEveryTrack)
{
    for (int track = 1; track <= tracks; ++track) {
        auto opened = openTrack(path_, track);
        ASSERT_TRUE(opened.source) << opened.error;
        const auto &facts = opened.source->facts();
        EXPECT_TRUE(facts.format.isDsd());
        EXPECT_EQ(facts.formatWord, "dsd");
        EXPECT_EQ(facts.format.rateHz, 2822400);
        EXPECT_EQ(facts.format.channels, GetParam().channels);
        EXPECT_EQ(facts.format.speakers, GetParam().channels == 6   ? 0x3Fu
                                         : GetParam().channels == 5 ? 0x37u
                                                                    : 0u);
        EXPECT_EQ(facts.dst, GetParam().form == SacdForm::dstCoded || GetParam().form == SacdForm::dstStored);
        EXPECT_EQ(facts.totalFrames, static_cast<int64_t>(framesOfATrack * frameBytes));
        EXPECT_EQ(facts.firstFrame, static_cast<int64_t>((track - 1) * framesOfATrack) * 4704);
        const Delivered all = readAll(*opened.source, 1001);
        EXPECT_EQ(all.last.status, ReadStatus::end) << all.last.message;
        EXPECT_TRUE(all.dsd == expected(track)) << "track " << track;
    }
}

TEST_P(SacdFile, GivesTheWholeImageWithItsTracksAsSegments)
{
    SourceRequest plain;
    plain.path = path_;
    for (const bool asFile : {false, true}) {
        auto opened = asFile ? kelp_core::openSource(plain) : openTrack(path_, 0);
        ASSERT_TRUE(opened.source) << opened.error;
        const Delivered all = readAll(*opened.source, 5000);
        EXPECT_EQ(all.last.status, ReadStatus::end) << all.last.message;
        EXPECT_TRUE(all.dsd == area_.signal.bytes);
        const auto segments = opened.source->segments();
        ASSERT_EQ(segments.size(), static_cast<size_t>(tracks));
        EXPECT_EQ(segments[1].number, 2);
        EXPECT_EQ(segments[1].startFrame, static_cast<int64_t>(framesOfATrack * frameBytes));
        EXPECT_EQ(segments[1].title, "Track 2");
    }
}

TEST_P(SacdFile, FindsEveryFrame)
{
    auto opened = openTrack(path_, 2);
    ASSERT_TRUE(opened.source) << opened.error;
    for (const size_t frame :
         {size_t{14112}, size_t{0}, size_t{4703}, size_t{4704}, size_t{18815}, size_t{9}, size_t{9407}}) {
        ASSERT_TRUE(opened.source->seekFrame(static_cast<int64_t>(frame)));
        const Delivered all = readAll(*opened.source, 3000);
        EXPECT_EQ(all.last.status, ReadStatus::end) << all.last.message;
        EXPECT_TRUE(all.dsd == expected(2, frame)) << "at " << frame;
    }
    ASSERT_TRUE(opened.source->seekFrame(framesOfATrack * static_cast<int64_t>(frameBytes)));
    EXPECT_EQ(readAll(*opened.source).last.status, ReadStatus::end);
}

INSTANTIATE_TEST_SUITE_P(Forms, SacdFile,
                         testing::Values(ImageCase{"Plain14", SacdForm::plain14, 2048, 2},
                                         ImageCase{"Plain14Framed", SacdForm::plain14, 2064, 2},
                                         ImageCase{"Plain16", SacdForm::plain16, 2048, 2},
                                         ImageCase{"Plain16Framed", SacdForm::plain16, 2064, 2},
                                         ImageCase{"DstStored", SacdForm::dstStored, 2048, 2},
                                         ImageCase{"DstCoded", SacdForm::dstCoded, 2048, 2},
                                         ImageCase{"DstCodedFramed", SacdForm::dstCoded, 2064, 2},
                                         ImageCase{"Multi5", SacdForm::dstCoded, 2048, 5},
                                         ImageCase{"Multi6", SacdForm::dstCoded, 2064, 6},
                                         ImageCase{"Multi6Stored", SacdForm::dstStored, 2048, 6}),
                         [](const auto &one) { return one.param.name; });

TEST(SacdFiles, APauseBetweenTracksBelongsToNeither)
{
    SacdAreaRecipe area = plainArea(SacdForm::plain14, 1, 12);
    area.tracks = {{.startFrame = 2, .frames = 3}, {.startFrame = 7, .frames = 5}};
    TempDir dir;
    writeFile(dir.file("a.iso"), makeSacd({.areas = {area}}).bytes);
    const auto part = [&](size_t from, size_t frames) {
        const auto begin = area.signal.bytes.begin() + static_cast<std::ptrdiff_t>(from * frameBytes * 2);
        return std::vector<uint8_t>(begin, begin + static_cast<std::ptrdiff_t>(frames * frameBytes * 2));
    };
    EXPECT_TRUE(readAll(*openTrack(dir.file("a.iso"), 1).source).dsd == part(2, 3));
    EXPECT_TRUE(readAll(*openTrack(dir.file("a.iso"), 2).source).dsd == part(7, 5));
    EXPECT_TRUE(readAll(*openTrack(dir.file("a.iso"), 0).source).dsd == part(2, 10));
}

TEST(SacdFiles, AFrameOfDstThatIsDamagedIsTold)
{
    SacdImageMade image = makeSacd({.areas = {plainArea(SacdForm::dstStored, 1, 6)}});
    std::fill_n(image.bytes.begin() + static_cast<std::ptrdiff_t>(image.at(image.areas[0].firstAudio + 20)),
                2048, uint8_t{0});
    TempDir dir;
    writeFile(dir.file("a.iso"), image.bytes);
    auto opened = openTrack(dir.file("a.iso"), 1);
    ASSERT_TRUE(opened.source) << opened.error;
    const Delivered all = readAll(*opened.source);
    EXPECT_EQ(all.last.status, ReadStatus::failed);
    EXPECT_EQ(all.last.message, "damaged at 0.053 s: a frame of the image is missing or incomplete");
    EXPECT_EQ(all.frames, 4 * frameBytes);
}

TEST(SacdFiles, ATruncatedImagePlaysWhatIsThereAndSaysWhereItEnds)
{
    const SacdImageMade image = makeSacd({.areas = {plainArea(SacdForm::plain14, 2, 30)}});
    TempDir dir;
    const std::string path = dir.file("a.iso");
    // In the middle of the second track.
    const size_t bytes = image.at(image.areas[0].firstAudio + 14 * 15) + 100;
    writeFile(path, std::vector<uint8_t>(image.bytes.begin(),
                                         image.bytes.begin() + static_cast<std::ptrdiff_t>(bytes)));
    EXPECT_EQ(readAll(*openTrack(path, 1).source).last.status, ReadStatus::end);
    const Delivered all = readAll(*openTrack(path, 2).source);
    EXPECT_EQ(all.last.status, ReadStatus::failed);
    EXPECT_EQ(all.last.message, "ended after 0.200 s of 0.400 s");
    EXPECT_EQ(all.frames, 15 * frameBytes);
}

TEST(SacdFiles, WhatCannotBeOpenedSaysWhy)
{
    TempDir dir;
    EXPECT_EQ(openTrack(dir.file("none.iso"), 1).error, "cannot open: no such file");
    writeFile(dir.file("a.iso"), "hello");
    EXPECT_EQ(openTrack(dir.file("a.iso"), 1).error, "this is not an SACD image");
    writeFile(dir.file("b.iso"), makeSacd({.areas = {plainArea(SacdForm::plain14, 2, 3)}}).bytes);
    EXPECT_EQ(openTrack(dir.file("b.iso"), 3).error, "the SACD image has no track 3");
}

TEST(SacdFiles, TheListHasAHeaderAndALineATrack)
{
    TempDir dir;
    SacdAreaRecipe area = plainArea(SacdForm::plain14, 3, 75);
    area.tracks[1].title = "";
    area.tracks[2].title = "Drei\tVier";
    writeFile(dir.file("a.iso"), makeSacd({.title = "Ein Album", .areas = {area}}).bytes);
    const kelp_core::SacdListing listing = kelp_core::listSacd(dir.file("a.iso"));
    EXPECT_EQ(listing.exitCode, 0);
    EXPECT_EQ(listing.text, "ISO\tEin Album\t3\n"
                            "TRACK\t1\t0.000000\t1.000000\tTrack 1\n"
                            "TRACK\t2\t1.000000\t2.000000\t\n"
                            "TRACK\t3\t2.000000\t3.000000\tDrei Vier\n");
    EXPECT_EQ(kelp_core::sacdTrackNumbers(dir.file("a.iso")), (std::vector{1, 2, 3}));
}

TEST(SacdFiles, TheListOfWhatIsNoImageIsOneLine)
{
    TempDir dir;
    writeFile(dir.file("a.iso"), std::string(2048 * 600, 'x'));
    const kelp_core::SacdListing foreign = kelp_core::listSacd(dir.file("a.iso"));
    EXPECT_EQ(foreign.exitCode, 1);
    EXPECT_EQ(foreign.text, "this is not an SACD image\n");
    EXPECT_EQ(kelp_core::listSacd(dir.file("none.iso")).text, "cannot open: no such file\n");
    EXPECT_EQ(kelp_core::listSacd(dir.path()).text, "cannot open: it is a folder\n");
    EXPECT_TRUE(kelp_core::sacdTrackNumbers(dir.file("a.iso")).empty());
}

} // namespace
