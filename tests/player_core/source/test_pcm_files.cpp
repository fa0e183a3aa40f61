// Every kind of PCM file gives back its very samples, knows its length, and finds every frame.

#include "tests/support/byte_writer.h"
#include "tests/support/packed_maker.h"
#include "tests/support/source_check.h"
#include "tests/support/temp_dir.h"
#include "tests/support/wav_maker.h"

#include <gtest/gtest.h>

namespace {

using namespace kelp_test;
using kelp_core::ReadStatus;

struct FileCase
{
    const char *kind;
    const char *word;
    int depthBits;
    bool isFloat = false;
    int channels = 2;
    int rateHz = 44100;
};

void PrintTo(const FileCase &file, std::ostream *out)
{
    *out << file.kind << file.depthBits << (file.isFloat ? "f" : "") << 'x' << file.channels << '@'
         << file.rateHz;
}

std::string writeKind(const FileCase &file, const std::string &path, const PcmSignal &signal)
{
    const std::string kind = file.kind;
    const auto put = [&](const std::vector<uint8_t> &bytes) {
        writeFile(path, bytes);
        return std::string();
    };
    if (kind == "wav")
        return put(wavBytes(signal));
    if (kind == "wavx")
        return put(wavBytes(signal, {.form = WavForm::extensible}));
    if (kind == "wavx4")
        return put(wavBytes(signal, {.form = WavForm::extensible, .containerBytes = 4}));
    if (kind == "rf64")
        return put(wavBytes(signal, {.form = WavForm::rf64}));
    if (kind == "w64")
        return put(wavBytes(signal, {.form = WavForm::w64}));
    if (kind == "wavu")
        return put(wavBytes(signal, {.unknownLength = true}));
    if (kind == "aiff")
        return put(aiffBytes(signal));
    if (kind == "sowt")
        return put(aiffBytes(signal, true));
    return writePacked(kind, path, signal);
}

class PcmFile : public testing::TestWithParam<FileCase>
{
protected:
    PcmSignal signal_ = makeSignal({.shape = SignalShape::noise,
                                    .rateHz = GetParam().rateHz,
                                    .channels = GetParam().channels,
                                    .depthBits = GetParam().depthBits,
                                    .isFloat = GetParam().isFloat,
                                    .frames = 150001});
    TempDir dir_;
    std::string path_ = dir_.file("file.audio");

    kelp_core::OpenedSource make()
    {
        const std::string error = writeKind(GetParam(), path_, signal_);
        EXPECT_EQ(error, "");
        return openPath(path_);
    }
};

TEST_P(PcmFile, GivesBackItsSamplesAndFacts)
{
    auto opened = make();
    ASSERT_TRUE(opened.source) << opened.error;
    const auto &facts = opened.source->facts();
    EXPECT_EQ(facts.formatWord, GetParam().word);
    EXPECT_EQ(facts.format.rateHz, GetParam().rateHz);
    EXPECT_EQ(facts.format.channels, GetParam().channels);
    EXPECT_EQ(facts.format.depthBits, GetParam().depthBits);
    EXPECT_EQ(facts.format.isFloat, GetParam().isFloat);
    EXPECT_EQ(facts.totalFrames, static_cast<int64_t>(signal_.frames()));
    EXPECT_TRUE(facts.lossless);
    const Delivered all = readAll(*opened.source, 997);
    EXPECT_EQ(all.last.status, ReadStatus::end) << all.last.message;
    EXPECT_EQ(all.frames, signal_.frames());
    EXPECT_TRUE(all.pcm == signal_.samples);
}

TEST_P(PcmFile, FindsEveryFrame)
{
    auto opened = make();
    ASSERT_TRUE(opened.source) << opened.error;
    // Far forward, back, a little forward, the first and the last frame, and from the end again.
    for (const size_t frame :
         {size_t{100000}, size_t{1}, size_t{4095}, size_t{4096}, size_t{4097}, size_t{65535}, size_t{0},
          signal_.frames() - 1, size_t{77777}, size_t{149000}, size_t{30}}) {
        ASSERT_TRUE(opened.source->seekFrame(static_cast<int64_t>(frame)));
        const size_t count = std::min<size_t>(9000, signal_.frames() - frame);
        const Delivered some = readSome(*opened.source, count);
        ASSERT_EQ(some.frames, count) << "at " << frame << ": " << some.last.message;
        EXPECT_TRUE(some.pcm == cut(signal_, frame, count).samples) << "at " << frame;
    }
    ASSERT_TRUE(opened.source->seekFrame(static_cast<int64_t>(signal_.frames()) + 5));
    EXPECT_EQ(readAll(*opened.source).last.status, ReadStatus::end);
    ASSERT_TRUE(opened.source->seekFrame(149999));
    EXPECT_EQ(readAll(*opened.source).frames, 2U);
}

TEST(PcmPlaces, OfMoreThanTwoChannelsAreTold)
{
    const struct
    {
        FileCase file;
        uint32_t speakers;
    } rows[] = {{{"wav", "wav", 16}, 0},
                {{"wav", "wav", 16, false, 4}, 0x33},
                {{"wav", "wav", 16, false, 5}, 0x37},
                {{"wav", "wav", 16, false, 6}, 0x3F},
                {{"wav", "wav", 16, false, 7}, 0},
                {{"wav", "wav", 16, false, 8}, 0x63F},
                {{"flac", "flac", 16, false, 6}, 0x3F},
                {{"aiff", "aiff", 16, false, 6}, 0}};
    TempDir dir;
    for (const auto &row : rows) {
        const PcmSignal signal = makeSignal({.channels = row.file.channels, .frames = 1000});
        ASSERT_EQ(writeKind(row.file, dir.file("a"), signal), "");
        const auto opened = openPath(dir.file("a"));
        ASSERT_TRUE(opened.source) << opened.error;
        EXPECT_EQ(opened.source->facts().format.speakers, row.speakers) << row.file.kind << row.file.channels;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, PcmFile,
    testing::Values(
        FileCase{"wav", "wav", 8}, FileCase{"wav", "wav", 16}, FileCase{"wav", "wav", 24},
        FileCase{"wav", "wav", 32}, FileCase{"wav", "wav", 32, true}, FileCase{"wav", "wav", 64, true},
        FileCase{"wav", "wav", 16, false, 1}, FileCase{"wav", "wav", 24, false, 6, 96000},
        FileCase{"wavx", "wav", 16}, FileCase{"wavx", "wav", 20}, FileCase{"wavx4", "wav", 24},
        FileCase{"wavx", "wav", 32, true}, FileCase{"rf64", "wav", 24, false, 2, 192000},
        FileCase{"w64", "wav", 16}, FileCase{"w64", "wav", 32, true}, FileCase{"wavu", "wav", 16},
        FileCase{"aiff", "aiff", 8}, FileCase{"aiff", "aiff", 16}, FileCase{"aiff", "aiff", 24},
        FileCase{"aiff", "aiff", 32}, FileCase{"aiff", "aiff", 32, true}, FileCase{"aiff", "aiff", 64, true},
        FileCase{"sowt", "aiff", 16}, FileCase{"flac", "flac", 16}, FileCase{"flac", "flac", 24},
        FileCase{"flac", "flac", 24, false, 2, 96000}, FileCase{"flac", "flac", 16, false, 1, 48000},
        FileCase{"flac", "flac", 24, false, 6, 48000}, FileCase{"m4a", "alac", 16},
        FileCase{"m4a", "alac", 24, false, 2, 88200}, FileCase{"wv", "wavpack", 16},
        FileCase{"wv", "wavpack", 24}, FileCase{"wv", "wavpack", 32}, FileCase{"tta", "tta", 16},
        FileCase{"tta", "tta", 24}));

} // namespace
