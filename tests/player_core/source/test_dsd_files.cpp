// DSF, DFF, DST and WSD give back their very bits, and FFmpeg reads the same out of the same files.

#include "tests/support/av_decode.h"
#include "tests/support/byte_writer.h"
#include "tests/support/dsd_file_maker.h"
#include "tests/support/source_check.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace kelp_test;
using kelp_core::ReadStatus;

enum class Kind
{
    dsf,
    dsfHighest,
    dff,
    dffStored,
    dffCoded,
    wsd
};

struct DsdCase
{
    const char *name;
    Kind kind;
    int rateHz = 2822400;
    int channels = 2;
    size_t frames = 4704 * 5;
};

void PrintTo(const DsdCase &file, std::ostream *out)
{
    *out << file.name << 'x' << file.channels << '@' << file.rateHz;
}

std::vector<uint8_t> fileBytes(Kind kind, const DsdSignal &signal)
{
    switch (kind) {
    case Kind::dsf:
        return dsfBytes(signal);
    case Kind::dsfHighest:
        return dsfBytes(signal, {.highestBitFirst = true});
    case Kind::dff:
        return dffBytes(signal);
    case Kind::dffStored:
        return dffBytes(signal, DstKind::stored);
    case Kind::dffCoded:
        return dffBytes(signal, DstKind::coded);
    case Kind::wsd:
        return wsdBytes(signal);
    }
    return {};
}

class DsdFile : public testing::TestWithParam<DsdCase>
{
protected:
    DsdSignal signal_ = makeDsd(SignalShape::sine, GetParam().frames, GetParam().rateHz, GetParam().channels);
    TempDir dir_;
    std::string path_ = dir_.file("file.dsd");

    kelp_core::OpenedSource make()
    {
        writeFile(path_, fileBytes(GetParam().kind, signal_));
        return openPath(path_);
    }
};

TEST_P(DsdFile, GivesBackItsBits)
{
    auto opened = make();
    ASSERT_TRUE(opened.source) << opened.error;
    const auto &facts = opened.source->facts();
    EXPECT_TRUE(facts.format.isDsd());
    EXPECT_EQ(facts.formatWord, "dsd");
    EXPECT_EQ(facts.format.rateHz, GetParam().rateHz);
    EXPECT_EQ(facts.format.channels, GetParam().channels);
    EXPECT_EQ(facts.totalFrames, static_cast<int64_t>(signal_.frames()));
    EXPECT_EQ(facts.dst, GetParam().kind == Kind::dffStored || GetParam().kind == Kind::dffCoded);
    const Delivered all = readAll(*opened.source, 1001);
    EXPECT_EQ(all.last.status, ReadStatus::end) << all.last.message;
    EXPECT_TRUE(all.dsd == signal_.bytes);
}

TEST(DsdPlaces, OfMoreThanTwoChannelsAreTold)
{
    TempDir dir;
    for (const Kind kind : {Kind::dsf, Kind::dff}) {
        for (const auto &[channels, speakers] :
             {std::pair(2, 0x00u), std::pair(3, 0x07u), std::pair(6, 0x3Fu), std::pair(8, 0x00u)}) {
            const std::string path = dir.file("a.dsd");
            writeFile(path, fileBytes(kind, makeDsd(SignalShape::noise, 5000, 2822400, channels)));
            const auto opened = openPath(path);
            ASSERT_TRUE(opened.source) << opened.error;
            EXPECT_EQ(opened.source->facts().format.speakers, speakers) << channels;
        }
    }
}

TEST_P(DsdFile, FindsEveryFrame)
{
    auto opened = make();
    ASSERT_TRUE(opened.source) << opened.error;
    const auto channels = static_cast<size_t>(GetParam().channels);
    for (const size_t frame : {size_t{20000}, size_t{0}, size_t{4095}, size_t{4096}, size_t{4703},
                               size_t{4704}, signal_.frames() - 1, size_t{9}}) {
        ASSERT_TRUE(opened.source->seekFrame(static_cast<int64_t>(frame)));
        const size_t count = std::min<size_t>(5000, signal_.frames() - frame);
        const Delivered some = readSome(*opened.source, count);
        const auto begin = signal_.bytes.begin() + static_cast<std::ptrdiff_t>(frame * channels);
        EXPECT_TRUE(std::equal(some.dsd.begin(), some.dsd.end(), begin,
                               begin + static_cast<std::ptrdiff_t>(count * channels)))
            << "at " << frame;
    }
    ASSERT_TRUE(opened.source->seekFrame(static_cast<int64_t>(signal_.frames())));
    EXPECT_EQ(readAll(*opened.source).last.status, ReadStatus::end);
}

/// FFmpeg hands the bits of stored DST frames on as if they were PCM, so it cannot judge those.
class DsdOracle : public DsdFile
{
};

TEST_P(DsdOracle, FfmpegHearsTheSame)
{
    writeFile(path_, fileBytes(GetParam().kind, signal_));
    const std::string plainPath = dir_.file("plain.dff");
    writeFile(plainPath, dffBytes(signal_));
    const AvDecoded plain = decodeByFfmpeg(plainPath);
    ASSERT_EQ(plain.error, "");
    const AvDecoded same = decodeByFfmpeg(path_);
    ASSERT_EQ(same.error, "");
    // Its converter to PCM is an oracle for the bits: equal PCM means equal bits. A DSF file it pads to whole
    // blocks, and the memory of its converter begins with another pattern there, for the first few frames.
    ASSERT_GE(same.samples.size(), plain.samples.size());
    const std::ptrdiff_t settled = 16 * GetParam().channels;
    EXPECT_TRUE(
        std::equal(plain.samples.begin() + settled, plain.samples.end(), same.samples.begin() + settled));
}

TEST(DsdFiles, UnusedBitsOfTheLastByteBecomeSilence)
{
    const DsdSignal signal = makeDsd(SignalShape::noise, 5000);
    TempDir dir;
    writeFile(dir.file("a.dsf"), dsfBytes(signal, {.unusedBits = 3}));
    auto opened = openPath(dir.file("a.dsf"));
    ASSERT_TRUE(opened.source) << opened.error;
    const Delivered all = readAll(*opened.source);
    ASSERT_EQ(all.frames, 5000U);
    EXPECT_TRUE(std::equal(signal.bytes.begin(), signal.bytes.end() - 2, all.dsd.begin()));
    for (size_t i = all.dsd.size() - 2; i < all.dsd.size(); ++i)
        EXPECT_EQ(all.dsd[i], (signal.bytes[i] & 0xF8) | (0x69 & 0x07));
}

TEST(DsdFiles, TruncatedFilesGiveWhatIsThereAndSayWhereTheyEnd)
{
    const DsdSignal signal = makeDsd(SignalShape::sine, 4704 * 5);
    TempDir dir;
    const std::string path = dir.file("a");
    for (const Kind kind : {Kind::dsf, Kind::dff, Kind::dffStored, Kind::dffCoded}) {
        std::vector<uint8_t> bytes = fileBytes(kind, signal);
        bytes.resize(bytes.size() / 2);
        writeFile(path, bytes);
        auto opened = openPath(path);
        ASSERT_TRUE(opened.source) << opened.error;
        const Delivered all = readAll(*opened.source);
        EXPECT_EQ(all.last.status, ReadStatus::failed);
        EXPECT_EQ(all.last.message.rfind("ended after 0.0", 0), 0U) << all.last.message;
        EXPECT_EQ(all.last.message.substr(all.last.message.size() - 11), " of 0.066 s");
        EXPECT_GT(all.frames, 4704U);
        EXPECT_TRUE(std::equal(all.dsd.begin(), all.dsd.end(), signal.bytes.begin()));
    }
}

TEST(DsdFiles, DamagedDstFrameFailsWithItsTime)
{
    const DsdSignal signal = makeDsd(SignalShape::sine, 4704 * 5);
    TempDir dir;
    std::vector<uint8_t> bytes = dffBytes(signal, DstKind::coded);
    const std::string word = "DSTF";
    auto at = bytes.begin();
    for (int frame = 0; frame < 3; ++frame)
        at = std::search(at + 1, bytes.end(), word.begin(), word.end());
    std::fill(at + 12, at + 40, uint8_t{0xFF});
    writeFile(dir.file("a.dff"), bytes);
    auto opened = openPath(dir.file("a.dff"));
    ASSERT_TRUE(opened.source) << opened.error;
    const Delivered all = readAll(*opened.source);
    EXPECT_EQ(all.last.status, ReadStatus::failed);
    EXPECT_EQ(all.last.message.rfind("damaged at 0.026 s: a DST frame", 0), 0U) << all.last.message;
    EXPECT_EQ(all.frames, 4704U * 2);
}

constexpr DsdCase kinds[] = {
    {"dsf", Kind::dsf},
    {"dsf", Kind::dsf, 5644800, 1},
    {"dsf", Kind::dsf, 2822400, 6},
    {"dsf8", Kind::dsfHighest},
    {"dff", Kind::dff},
    {"dff", Kind::dff, 11289600},
    {"dff", Kind::dff, 2822400, 5},
    {"dff", Kind::dff, 22579200, 2, 30001},
    {"coded", Kind::dffCoded},
    {"coded", Kind::dffCoded, 2822400, 1},
    {"coded", Kind::dffCoded, 2822400, 6},
    {"coded", Kind::dffCoded, 5644800, 2, 9408 * 3},
    {"wsd", Kind::wsd},
    {"wsd", Kind::wsd, 5644800, 2},
};

INSTANTIATE_TEST_SUITE_P(Kinds, DsdFile, testing::ValuesIn(kinds));
INSTANTIATE_TEST_SUITE_P(Stored, DsdFile, testing::Values(DsdCase{"stored", Kind::dffStored}));
INSTANTIATE_TEST_SUITE_P(Kinds, DsdOracle, testing::ValuesIn(kinds));

} // namespace
