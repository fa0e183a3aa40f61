#include "player_core/program/engine_host.h"

#include "kelp_player_core.h"

#include "tests/support/dsd_file_maker.h"
#include "tests/support/dsd_signal.h"
#include "tests/support/pcm_signal.h"
#include "tests/support/process_count.h"
#include "tests/support/temp_dir.h"
#include "tests/support/wav_maker.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include <malloc.h>
#include <unistd.h>

namespace kelp_core::test {

namespace {

using kelp_test::fallsTo;
using kelp_test::openDescriptors;
using kelp_test::PcmSignal;
using kelp_test::runningThreads;
using kelp_test::SignalRecipe;
using kelp_test::SignalShape;
using kelp_test::TempDir;

/// Playing on real ALSA: a PCM named "cap" that writes all it gets to a file.
class EngineTest : public testing::Test
{
protected:
    void SetUp() override
    {
        std::ofstream conf(dir_.file("asound.conf"));
        conf << "pcm.cap { type file slave.pcm \"null\" file \"" << dir_.file("cap.raw")
             << "\" format \"raw\" }\n";
        conf.close();
        const std::string path = "/usr/share/alsa/alsa.conf:" + dir_.file("asound.conf");
        ::setenv("ALSA_CONFIG_PATH", path.c_str(), 1);
        ::unsetenv("KELP_ENGINE_LOG");
    }

    void TearDown() override { ::unsetenv("ALSA_CONFIG_PATH"); }

    std::string save(const std::string &name, const std::vector<uint8_t> &bytes) const
    {
        std::ofstream file(dir_.file(name), std::ios::binary);
        file.write(reinterpret_cast<const char *>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        return dir_.file(name);
    }

    std::vector<uint8_t> captured() const
    {
        std::ifstream file(dir_.file("cap.raw"), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    PcmSignal ramp(size_t frames, int rateHz = 44100, int depthBits = 16, uint32_t seed = 1) const
    {
        SignalRecipe recipe;
        recipe.shape = SignalShape::noise;
        recipe.frames = frames;
        recipe.rateHz = rateHz;
        recipe.depthBits = depthBits;
        recipe.seed = seed;
        return makeSignal(recipe);
    }

    TempDir dir_;
    const std::string pid_ = std::to_string(::getpid());
};

size_t residentKib()
{
    std::ifstream statm("/proc/self/statm");
    size_t total = 0;
    size_t resident = 0;
    statm >> total >> resident;
    return resident * static_cast<size_t>(::sysconf(_SC_PAGESIZE)) / 1024;
}

/// The bytes without the silence that a session feeds a device behind a track, which for noise is clear-cut.
std::vector<uint8_t> withoutTail(std::vector<uint8_t> bytes, size_t keep)
{
    for (size_t i = keep; i < bytes.size(); ++i)
        EXPECT_EQ(bytes[i], 0) << "behind the music there is silence";
    bytes.resize(std::min(bytes.size(), keep));
    return bytes;
}

} // namespace

TEST_F(EngineTest, WavReachesTheDeviceBitForBit)
{
    for (const auto &[rateHz, depthBits] :
         {std::pair{44100, 16}, std::pair{96000, 24}, std::pair{48000, 32}}) {
        const PcmSignal signal = ramp(30'000, rateHz, depthBits);
        const std::string path = save("a.wav", wavBytes(signal));
        EngineHost host;
        host.start({"-i", path, "-dev", "cap"});
        EXPECT_EQ(host.wait(), 0);
        EXPECT_EQ(host.lines("DONE "), std::vector<std::string>{"DONE " + path})
            << testing::PrintToString(host.lines());
        EXPECT_EQ(captured(), rawBytes(signal)) << rateHz << '/' << depthBits;
    }
}

TEST_F(EngineTest, AStreamSessionPlaysWhatTheHostLoads)
{
    const PcmSignal signal = ramp(20'000);
    const std::string path = save("a b.wav", wavBytes(signal));
    ::setenv("KELP_ENGINE_LOG", dir_.file("engine.log").c_str(), 1);
    EngineHost host;
    host.start(
        {"-stream", "-parent-pid", pid_, "-dev", "cap", "-spectrum", "on", "-scope", "on", "-gapless", "on"});
    host.send("load " + path);
    EXPECT_EQ(host.waitLine("OPENED").substr(0, 6), "OPENED");
    EXPECT_EQ(host.waitLine("DONE "), "DONE " + path);
    host.send("stop");
    EXPECT_EQ(host.wait(), 3);
    const std::vector<uint8_t> wanted = rawBytes(signal);
    EXPECT_EQ(withoutTail(captured(), wanted.size()), wanted);
    std::ifstream log(dir_.file("engine.log"));
    const std::string text{std::istreambuf_iterator<char>(log), {}};
    EXPECT_NE(text.find("[ctl] recv load " + path), std::string::npos);
    EXPECT_NE(text.find("[ctl] recv stop"), std::string::npos);
    EXPECT_NE(text.find("SRC 44100 16 2 wav 0 0.454"), std::string::npos);
}

TEST_F(EngineTest, DsdGoesOutAsDoPOnlyWhenForcedAndKeepsItsBits)
{
    const kelp_test::DsdSignal signal = kelp_test::makeDsd(SignalShape::sine, 100'000);
    const std::string path = save("a.dsf", dsfBytes(signal));
    EngineHost host;
    host.start({"-i", path, "-dev", "cap", "-dop", "force"});
    EXPECT_EQ(host.wait(), 0);
    const std::vector<uint8_t> bytes = captured();
    ASSERT_EQ(host.lines("SRC ").size(), 1u);
    ASSERT_GT(bytes.size(), 6'000u);
    const size_t sampleBytes = host.lines("OPENED").front().find("S24_3LE") != std::string::npos ? 3 : 4;
    const size_t top = sampleBytes - 1;
    size_t wrong = 0;
    for (size_t frame = 0; (frame + 1) * 2 * sampleBytes <= bytes.size(); ++frame) {
        const uint8_t marker = frame % 2 ? 0xFA : 0x05;
        wrong += bytes[frame * 2 * sampleBytes + top] != marker;
        wrong += bytes[(frame * 2 + 1) * sampleBytes + top] != marker;
    }
    EXPECT_EQ(wrong, 0u);
}

TEST_F(EngineTest, DamagedFilesEndWithOneLineAndACode)
{
    for (const std::vector<uint8_t> &bytes :
         {std::vector<uint8_t>{}, std::vector<uint8_t>{'R', 'I', 'F', 'F'},
          std::vector<uint8_t>(5'000, 0x5A)}) {
        const std::string path = save("bad.wav", bytes);
        EngineHost host;
        host.start({"-i", path, "-dev", "cap"});
        EXPECT_EQ(host.wait(), 1);
        EXPECT_EQ(host.lines("FAILED ").size(), 1u);
        EXPECT_TRUE(host.lines("DONE ").empty());
    }
}

TEST_F(EngineTest, AnUnknownDeviceEndsWithFour)
{
    const std::string path = save("a.wav", wavBytes(ramp(1'000)));
    EngineHost host;
    host.start({"-i", path, "-dev", "nosuchdevice", "-output-path", "exclusive"});
    EXPECT_EQ(host.wait(), 4);
}

TEST_F(EngineTest, AThousandSessionsLeaveNothingBehind)
{
    // On a busy machine threads meet in the allocator more often, and each meeting may found a heap of 2 to 3
    // MiB that stays: no leak, and more than a leak that this test is to find.
    ::mallopt(M_ARENA_MAX, 1);
    const std::string path = save("a.wav", wavBytes(ramp(500)));
    const auto session = [&] {
        EngineHost host;
        host.start({"-i", path, "-dev", "cap"});
        EXPECT_EQ(host.wait(), 0);
    };
    for (int i = 0; i < 50; ++i)
        session(); // what is loaded and cached once
    const int threads = fallsTo(kelp_test::idleThreads, runningThreads);
    const int descriptors = openDescriptors();
    const size_t memory = residentKib();
    for (int i = 0; i < 1'000; ++i)
        session();
    EXPECT_LE(fallsTo(descriptors, openDescriptors), descriptors);
    EXPECT_LE(fallsTo(threads, runningThreads), threads);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    EXPECT_LT(residentKib(), memory + 4'096); // the stacks of threads that overlapped are kept, too
#else
    (void)memory;
#endif
}

TEST_F(EngineTest, ProbesAnswerIntoABuffer)
{
    const auto probe = [](std::vector<std::string> args, int size) {
        std::vector<char *> argv;
        for (std::string &arg : args)
            argv.push_back(arg.data());
        std::vector<char> buffer(static_cast<size_t>(size), 'x');
        const int code = kelp_player_probe(argv.data(), static_cast<int>(argv.size()), buffer.data(), size);
        return std::pair(code, std::string(buffer.data()));
    };
    EXPECT_EQ(probe({"p", "-scan", "/a"}, 100).second, "This engine cannot answer -scan yet.\n");
    EXPECT_EQ(probe({"p", "-scan", "/a"}, 100).first, 2);
    EXPECT_EQ(probe({"p", "-scan", "/a"}, 5).second, "This");
    EXPECT_EQ(probe({"p", "-dance"}, 100).first, 2);
    EXPECT_EQ(probe({"p"}, 100).first, 2);
    EXPECT_EQ(probe({"p", "-list"}, 100'000).first, 0);
    EXPECT_EQ(kelp_player_probe(nullptr, 0, nullptr, 10), -1);
    char one = 'x';
    EXPECT_EQ(kelp_player_probe(nullptr, 0, &one, 0), -1);
}

} // namespace kelp_core::test
