// Files that are damaged, cut off, empty, foreign or not files at all end in one clear line.

#include "tests/support/byte_writer.h"
#include "tests/support/packed_maker.h"
#include "tests/support/source_check.h"
#include "tests/support/temp_dir.h"
#include "tests/support/wav_maker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace kelp_test;
using kelp_core::ReadStatus;

class BadFiles : public testing::Test
{
protected:
    TempDir dir_;
    std::string path_ = dir_.file("a");

    std::string errorOf(const std::string &bytes)
    {
        writeFile(path_, bytes);
        auto opened = openPath(path_);
        EXPECT_FALSE(opened.source);
        return opened.error;
    }
};

TEST_F(BadFiles, ThatCannotBeOpened)
{
    EXPECT_EQ(openPath(dir_.file("none")).error, "cannot open: no such file");
    EXPECT_EQ(openPath("").error, "cannot open: no such file");
    EXPECT_EQ(openPath(dir_.path()).error, "cannot open: it is a folder");
    ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
    EXPECT_EQ(openPath(path_).error, "cannot open: it is not a regular file");
    if (geteuid() == 0)
        return; // nothing is unreadable for root
    writeFile(dir_.file("locked"), "x");
    chmod(dir_.file("locked").c_str(), 0);
    EXPECT_EQ(openPath(dir_.file("locked")).error, "cannot open: permission denied");
}

TEST_F(BadFiles, ThatAreNoAudio)
{
    EXPECT_EQ(errorOf(""), "the file is empty");
    EXPECT_EQ(errorOf("hello"), "this is not a kind of audio file that this player knows");
    EXPECT_EQ(errorOf(std::string(100000, '\0')), "this is not a kind of audio file that this player knows");
    for (const char *magic :
         {"fLaC", "RIFF\4\0\0\0WAVE", "FORM\0\0\0\4AIFF", "wvpk", "TTA1", "MAC ", "\0\0\0\10ftypM4A ",
          "\x7f\xfe\x80\x01", "DTSHDHDR", "riff\x2e\x91\xcf\x11", "1bit"}) {
        const std::string error =
            errorOf(std::string(magic, magic[0] ? std::string(magic).size() : 12) + "\1\2\3");
        EXPECT_NE(error, "");
        EXPECT_EQ(error.find('\n'), std::string::npos) << error;
    }
}

TEST_F(BadFiles, LossyKindsAreRefusedByName)
{
    // Two valid MPEG-1 layer III frames' heads at their right distance, again and again.
    std::string mp3;
    for (int i = 0; i < 40; ++i)
        mp3 += std::string("\xFF\xFB\x90\x00", 4) + std::string(413, '\0');
    const std::string error = errorOf(mp3);
    EXPECT_NE(error.find(" is not a format this player decodes"), std::string::npos) << error;
    EXPECT_NE(error.find("MP"), std::string::npos) << error;
    // A WAV file of µ-law.
    std::vector<uint8_t> ulaw = wavBytes(makeSignal({.channels = 1, .depthBits = 8, .frames = 4000}));
    ulaw[20] = 7;
    EXPECT_EQ(errorOf(std::string(ulaw.begin(), ulaw.end())),
              "PCM mu-law / G.711 mu-law is not a format this player decodes");
}

TEST_F(BadFiles, NamesThatLookLikeProtocolsAreNames)
{
    const PcmSignal signal = makeSignal({.frames = 500});
    for (const char *name : {"http:x.wav", "concat:a|b.wav", "file:y", "pipe:0", "a b\n\"c\".wav",
                             "\xFF\xFE.wav", "七里香 #1?%20.wav"}) {
        writeFile(dir_.file(name), wavBytes(signal));
        auto opened = openPath(dir_.file(name));
        ASSERT_TRUE(opened.source) << name << opened.error;
        EXPECT_TRUE(readAll(*opened.source).pcm == signal.samples);
    }
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(dir_.path());
    EXPECT_TRUE(openPath("http:x.wav").source) << "a relative one too";
    std::filesystem::current_path(before);
}

struct CutCase
{
    const char *kind;
    int depthBits;
};

void PrintTo(const CutCase &file, std::ostream *out)
{
    *out << file.kind << file.depthBits;
}

class CutFiles : public testing::TestWithParam<CutCase>
{
protected:
    TempDir dir_;
    std::string path_ = dir_.file("a");
    PcmSignal signal_ =
        makeSignal({.shape = SignalShape::noise, .depthBits = GetParam().depthBits, .frames = 88200});

    std::vector<uint8_t> bytes()
    {
        const std::string kind = GetParam().kind;
        if (kind == "wav")
            return wavBytes(signal_);
        if (kind == "w64")
            return wavBytes(signal_, {.form = WavForm::w64});
        if (kind == "aiff")
            return aiffBytes(signal_);
        EXPECT_EQ(writePacked(kind, path_, signal_), "");
        return readFile(path_);
    }
    bool deliveredIsRight(const Delivered &all)
    {
        return all.pcm.size() <= signal_.samples.size() &&
               std::equal(all.pcm.begin(), all.pcm.end(), signal_.samples.begin());
    }
};

TEST_P(CutFiles, GiveWhatIsThereAndSayWhereItEnds)
{
    std::vector<uint8_t> whole = bytes();
    whole.resize(whole.size() * 6 / 10);
    writeFile(path_, whole);
    auto opened = openPath(path_);
    ASSERT_TRUE(opened.source) << opened.error;
    const Delivered all = readAll(*opened.source);
    EXPECT_EQ(all.last.status, ReadStatus::failed);
    EXPECT_TRUE(all.last.message.rfind("ended after 1.", 0) == 0 ||
                all.last.message.rfind("damaged at 1.", 0) == 0)
        << all.last.message;
    EXPECT_GE(all.frames, 44100U);
    EXPECT_TRUE(deliveredIsRight(all));
}

TEST_P(CutFiles, DamageNeverGivesWrongSamplesOfAPackedFile)
{
    std::vector<uint8_t> whole = bytes();
    const std::string kind = GetParam().kind;
    if (kind == "wav" || kind == "w64" || kind == "aiff")
        return; // plain samples carry no check sum: nobody can tell
    for (size_t i = 0; i < 200; ++i)
        whole[whole.size() * 6 / 10 + i] ^= 0x55;
    writeFile(path_, whole);
    auto opened = openPath(path_);
    ASSERT_TRUE(opened.source) << opened.error;
    const Delivered all = readAll(*opened.source);
    EXPECT_EQ(all.last.status, ReadStatus::failed);
    EXPECT_EQ(all.last.message.rfind("damaged at ", 0), 0U) << all.last.message;
    EXPECT_GT(all.frames, 20000U);
    EXPECT_TRUE(deliveredIsRight(all));
}

TEST_P(CutFiles, VanishingWhilePlayingIsNoCrash)
{
    writeFile(path_, bytes());
    auto opened = openPath(path_);
    ASSERT_TRUE(opened.source) << opened.error;
    EXPECT_EQ(readSome(*opened.source, 5000).frames, 5000U);
    ASSERT_EQ(truncate(path_.c_str(), 100), 0);
    const Delivered rest = readAll(*opened.source);
    EXPECT_EQ(rest.last.status, ReadStatus::failed) << "a file that shrinks is not a track that is over";
    EXPECT_FALSE(opened.source->seekFrame(80000) && readAll(*opened.source).last.status == ReadStatus::end);
}

INSTANTIATE_TEST_SUITE_P(Kinds, CutFiles,
                         testing::Values(CutCase{"wav", 16}, CutCase{"w64", 24}, CutCase{"aiff", 16},
                                         CutCase{"flac", 16}, CutCase{"flac", 24}, CutCase{"wv", 16},
                                         CutCase{"tta", 16}));

/// Where the frames of a FLAC file begin.
std::vector<size_t> flacFrames(const std::vector<uint8_t> &bytes)
{
    std::vector<size_t> places;
    for (size_t at = 42; at + 4 < bytes.size(); ++at) {
        const size_t first = places.empty() ? at : places[0];
        // All but the last have the same block size and rate in their third and fourth byte.
        if (bytes[at] == 0xFF && bytes[at + 1] == 0xF8 && bytes[at + 2] == bytes[first + 2] &&
            bytes[at + 3] == bytes[first + 3])
            places.push_back(at);
    }
    return places;
}

TEST_F(BadFiles, FlacFramesThatAreMissingAreNoticed)
{
    const PcmSignal signal = makeSignal({.shape = SignalShape::noise, .frames = 88200});
    ASSERT_EQ(writePacked("flac", path_, signal), "");
    std::vector<uint8_t> bytes = readFile(path_);
    const std::vector<size_t> frames = flacFrames(bytes);
    ASSERT_GT(frames.size(), 10U);
    bytes.erase(bytes.begin() + static_cast<std::ptrdiff_t>(frames[8]),
                bytes.begin() + static_cast<std::ptrdiff_t>(frames[9]));
    writeFile(path_, bytes);
    auto opened = openPath(path_);
    ASSERT_TRUE(opened.source) << opened.error;
    const Delivered all = readAll(*opened.source);
    EXPECT_EQ(all.last.message, "damaged at 0.835 s: 4608 frames are missing");
    EXPECT_TRUE(all.pcm == cut(signal, 0, 8 * 4608).samples);
}

TEST_F(BadFiles, TagsAroundFlacAndAnUnknownLengthDoNoHarm)
{
    const PcmSignal signal = makeSignal({.shape = SignalShape::noise, .frames = 88200});
    ASSERT_EQ(writePacked("flac", path_, signal), "");
    std::vector<uint8_t> bytes = readFile(path_);
    // The count of samples: the low four bits of byte 21, and the four bytes behind it.
    bytes[21] &= 0xF0;
    std::fill(bytes.begin() + 22, bytes.begin() + 26, uint8_t{0});
    const std::vector<uint8_t> id3{'I', 'D', '3', 3, 0, 0, 0, 0, 0, 10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    bytes.insert(bytes.begin(), id3.begin(), id3.end());
    writeFile(path_, bytes);
    auto opened = openPath(path_);
    ASSERT_TRUE(opened.source) << opened.error;
    EXPECT_EQ(opened.source->facts().totalFrames, 88200);
    EXPECT_TRUE(readAll(*opened.source).pcm == signal.samples);
    ASSERT_TRUE(opened.source->seekFrame(50000));
    EXPECT_TRUE(readSome(*opened.source, 100).pcm == cut(signal, 50000, 100).samples);

    ASSERT_EQ(writePacked("flac", path_, signal), "");
    bytes = readFile(path_);
    bytes.insert(bytes.end(), {'T', 'A', 'G'});
    bytes.resize(bytes.size() + 125, ' ');
    writeFile(path_, bytes);
    opened = openPath(path_);
    ASSERT_TRUE(opened.source) << opened.error;
    const Delivered all = readAll(*opened.source);
    EXPECT_EQ(all.last.status, ReadStatus::end) << all.last.message;
    EXPECT_TRUE(all.pcm == signal.samples);
}

TEST_F(BadFiles, FlacPlaysOnBehindALengthThatIsTooShort)
{
    const PcmSignal signal = makeSignal({.shape = SignalShape::noise, .frames = 88200});
    for (const uint64_t stated : {uint64_t{1}, uint64_t{4096}, uint64_t{50000}, uint64_t{88199}}) {
        ASSERT_EQ(writePacked("flac", path_, signal), "");
        std::vector<uint8_t> bytes = readFile(path_);
        bytes[21] &= 0xF0;
        for (size_t i = 0; i < 4; ++i)
            bytes[22 + i] = static_cast<uint8_t>(stated >> (24 - 8 * i));
        const std::vector<uint8_t> whole = bytes;
        bytes.insert(bytes.end(), {'T', 'A', 'G'});
        bytes.resize(bytes.size() + 125, ' ');
        bytes.insert(bytes.end(), whole.begin(), whole.end()); // another one, glued behind it
        writeFile(path_, bytes);
        auto opened = openPath(path_);
        ASSERT_TRUE(opened.source) << opened.error;
        EXPECT_EQ(opened.source->facts().totalFrames, static_cast<int64_t>(stated));
        const Delivered all = readAll(*opened.source);
        EXPECT_EQ(all.last.status, ReadStatus::end) << all.last.message;
        EXPECT_TRUE(all.pcm == signal.samples) << stated;
    }
}

TEST_F(BadFiles, SizesThatAPipeLeavesInAHeadAreNoLengths)
{
    const PcmSignal signal = makeSignal({.frames = 20000});
    const std::vector<uint8_t> whole = wavBytes(signal);
    for (const uint32_t size : {0xFFFFFFFFu, 0x80000000u, 0x7FFFFFFFu, 0x7FFFF000u, 0x7FFFFFDAu}) {
        std::vector<uint8_t> bytes = whole;
        for (size_t i = 0; i < 4; ++i)
            bytes[40 + i] = static_cast<uint8_t>(size >> (8 * i));
        writeFile(path_, bytes);
        auto opened = openPath(path_);
        ASSERT_TRUE(opened.source) << opened.error;
        EXPECT_EQ(opened.source->facts().totalFrames, 20000) << std::hex << size;
        const Delivered all = readAll(*opened.source);
        EXPECT_EQ(all.last.status, ReadStatus::end) << all.last.message;
        EXPECT_TRUE(all.pcm == signal.samples);
    }
}

TEST_F(BadFiles, ARateThatNoDeviceHasIsRefused)
{
    for (const int rate : {1, 999, 1'536'001, 0x7FFFFFFF}) {
        writeFile(path_, wavBytes(makeSignal({.rateHz = rate, .frames = 1000})));
        const auto opened = openPath(path_);
        EXPECT_FALSE(opened.source) << rate;
        EXPECT_EQ(opened.error, "the file's audio format is not one that can be played (WAV, 16 bit, " +
                                    std::to_string(rate) + " Hz, 2 channels)");
    }
}

TEST_F(BadFiles, CancellingOpensNothing)
{
    writeFile(path_, wavBytes(makeSignal({})));
    const std::atomic<bool> cancelled{true};
    kelp_core::SourceRequest request;
    request.path = path_;
    request.cancelled = &cancelled;
    EXPECT_EQ(kelp_core::openSource(request).error, "opening was cancelled");
}

TEST_F(BadFiles, LossyDtsSaysSoAndTellsItsLength)
{
    const PcmSignal signal = makeSignal({.shape = SignalShape::sine, .rateHz = 48000, .frames = 512 * 200});
    const std::string error = writePacked("dts", path_, signal);
    if (!error.empty())
        GTEST_SKIP() << error;
    double lastPercent = -1;
    kelp_core::SourceRequest request;
    request.path = path_;
    request.onScan = [&](double percent, double, double) { lastPercent = percent; };
    auto opened = kelp_core::openSource(request);
    ASSERT_TRUE(opened.source) << opened.error;
    EXPECT_FALSE(opened.source->facts().lossless);
    EXPECT_EQ(opened.source->facts().formatWord, "dts");
    EXPECT_GT(lastPercent, 50);
    const Delivered all = readAll(*opened.source);
    EXPECT_EQ(all.last.status, ReadStatus::end) << all.last.message;
    EXPECT_EQ(static_cast<int64_t>(all.frames), opened.source->facts().totalFrames);
    ASSERT_TRUE(opened.source->seekFrame(70001));
    const Delivered some = readSome(*opened.source, 3000);
    EXPECT_TRUE(std::equal(some.pcm.begin(), some.pcm.end(), all.pcm.begin() + 70001 * 2));
}

} // namespace
