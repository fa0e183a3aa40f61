// Covers come out of files byte by byte, from beside them, or not at all.

#include "player_core/source/cover.h"
#include "player_core/source/id3_picture.h"
#include "tests/support/byte_writer.h"
#include "tests/support/dsd_file_maker.h"
#include "tests/support/id3_maker.h"
#include "tests/support/packed_maker.h"
#include "tests/support/temp_dir.h"
#include "tests/support/wav_maker.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace kelp_test;
using kelp_core::extractCover;

class Cover : public testing::Test
{
protected:
    TempDir dir_, outDir_;
    std::string out_ = outDir_.file("out.img");
    std::vector<uint8_t> png_ = smallPng();
    std::vector<uint8_t> jpeg_{0xFF, 0xD8, 0xFF, 0xE0, 0xFF, 0x00, 0xFF, 0xFF, 1, 2, 3};
    PcmSignal signal_ = makeSignal({.frames = 5000});

    void expectCover(const std::string &path, const std::vector<uint8_t> &bytes, const char *mime,
                     int track = 0)
    {
        const auto answer = extractCover({path, track, out_});
        EXPECT_EQ(answer.line, "COVER " + std::to_string(bytes.size()) + " " + mime) << path;
        EXPECT_EQ(answer.exitCode, 0);
        EXPECT_TRUE(readFile(out_) == bytes);
        std::filesystem::remove(out_);
    }
    void expectNone(const std::string &path)
    {
        const auto answer = extractCover({path, 0, out_});
        EXPECT_EQ(answer.line, "COVER none");
        EXPECT_EQ(answer.exitCode, 1);
        EXPECT_TRUE(std::filesystem::is_empty(outDir_.path()));
    }
};

TEST_F(Cover, ComesOutOfEveryKindOfFile)
{
    ASSERT_FALSE(png_.empty());
    for (const char *kind : {"flac", "m4a"}) {
        ASSERT_EQ(writePacked(kind, dir_.file(kind), signal_, {.words = {{"title", "T"}}, .coverPng = png_}),
                  "");
        expectCover(dir_.file(kind), png_, "image/png");
    }
    const auto tag = id3Bytes({.texts = {{"TIT2", "T"}}, .backCover = jpeg_, .frontCover = png_});
    const DsdSignal dsd = makeDsd(SignalShape::silence, 4704);
    writeFile(dir_.file("dsf"), dsfBytes(dsd, {.id3 = tag}));
    writeFile(dir_.file("dff"), dffBytes(dsd, DstKind::none, tag));
    writeFile(dir_.file("wav"), wavBytes(signal_, {.id3 = tag}));
    writeFile(dir_.file("aiff"), aiffBytes(signal_, false, tag));
    for (const char *name : {"dsf", "dff", "wav", "aiff"})
        expectCover(dir_.file(name), png_, "image/png");
}

TEST_F(Cover, EveryFormOfTagIsRead)
{
    for (const int version : {2, 3, 4}) {
        for (const bool unsync : {false, true}) {
            const auto tag = id3Bytes({.version = version,
                                       .unsync = unsync,
                                       .texts = {{version == 2 ? "TT2" : "TIT2", "T"}},
                                       .backCover = png_,
                                       .frontCover = jpeg_,
                                       .wideDescription = true});
            kelp_core::MemoryInput input(tag);
            const auto picture = kelp_core::readId3Picture(input, 0);
            ASSERT_TRUE(picture) << version << unsync;
            EXPECT_TRUE(*picture == jpeg_) << version << unsync;
        }
    }
}

TEST_F(Cover, ComesFromBesideTheFile)
{
    writeFile(dir_.file("a.wav"), wavBytes(signal_));
    expectNone(dir_.file("a.wav"));
    writeFile(dir_.file("Front.PNG"), png_);
    expectCover(dir_.file("a.wav"), png_, "image/png");
    writeFile(dir_.file("FOLDER.jpg"), jpeg_);
    expectCover(dir_.file("a.wav"), jpeg_, "image/jpeg");
    writeFile(dir_.file("cover.webp"), "no picture");
    expectCover(dir_.file("a.wav"), jpeg_, "image/jpeg");
}

TEST_F(Cover, OfASheetsTrackComesFromItsFile)
{
    ASSERT_EQ(writePacked("flac", dir_.file("1.flac"), signal_), "");
    ASSERT_EQ(writePacked("flac", dir_.file("2.flac"), signal_, {.words = {}, .coverPng = png_}), "");
    writeFile(dir_.file("a.cue"), "FILE 1.flac WAVE\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n"
                                  "FILE 2.flac WAVE\nTRACK 02 AUDIO\nINDEX 01 00:00:00\n");
    expectCover(dir_.file("a.cue"), png_, "image/png", 2);
    expectNone(dir_.file("a.cue"));
    writeFile(dir_.file("cover.jpeg"), jpeg_);
    expectCover(dir_.file("a.cue"), jpeg_, "image/jpeg", 1);
}

TEST_F(Cover, WhatFailsLeavesNothing)
{
    expectNone(dir_.file("nothing"));
    writeFile(dir_.file("cover.png"), png_);
    writeFile(dir_.file("a.wav"), wavBytes(signal_));
    const auto answer = extractCover({dir_.file("a.wav"), 0, outDir_.file("no/folder/x")});
    EXPECT_EQ(answer.line, "cannot write: no such file");
    EXPECT_EQ(answer.exitCode, 1);
}

} // namespace
