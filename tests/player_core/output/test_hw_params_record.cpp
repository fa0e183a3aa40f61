#include "player_core/output/hw_params_record.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <unistd.h>

using kelp_core::parseHwParams;
using kelp_core::ReadBack;
using kelp_core::readHwParams;

namespace {

constexpr const char *running = "access: RW_INTERLEAVED\n"
                                "format: S24_3LE\n"
                                "subformat: STD\n"
                                "channels: 2\n"
                                "rate: 176400 (176400/1)\n"
                                "period_size: 4410\n"
                                "buffer_size: 35280\n";

TEST(HwParamsRecord, ReadsWhatTheKernelSays)
{
    const ReadBack record = parseHwParams(running, "/x");
    EXPECT_TRUE(record.known);
    EXPECT_EQ(record.origin, "kernel (/x)");
    EXPECT_EQ(record.rateHz, 176400);
    EXPECT_EQ(record.format, "S24_3LE");
    EXPECT_EQ(record.channels, 2);
}

TEST(HwParamsRecord, IsNotKnownUnlessWhole)
{
    const char *texts[] = {"",
                           "closed\n",
                           "no setup\n",
                           "format: S16_LE\nchannels: 2\n",
                           "format: S16_LE\nrate: 44100 (44100/1)\n",
                           "channels: 2\nrate: 44100\n",
                           "format: \nchannels: 2\nrate: 44100\n",
                           "format: S16_LE\nchannels: 0\nrate: 44100\n",
                           "format: S16_LE\nchannels: 2\nrate: -44100\n",
                           "format: S16_LE\nchannels: 2\nrate: 44100kHz\n",
                           "format: S16_LE\nchannels: 2000000\nrate: 44100\n",
                           "format: S16_LE\nchannels: 2\nrate: 99999999999999\n",
                           "subformat: S16_LE\nchannels: 2\nrate: 44100\n"};
    for (const char *text : texts)
        EXPECT_FALSE(parseHwParams(text, "/x").known) << text;
}

TEST(HwParamsRecord, StandsWhereTheDeviceSays)
{
    namespace fs = std::filesystem;
    const fs::path root = fs::temp_directory_path() / ("kelp_proc_" + std::to_string(::getpid()));
    const fs::path folder = root / "card3" / "pcm1p" / "sub2";
    fs::create_directories(folder);
    std::ofstream(folder / "hw_params") << running;
    const ReadBack record = readHwParams(3, 1, 2, root.string());
    EXPECT_TRUE(record.known);
    EXPECT_EQ(record.origin, "kernel (" + (folder / "hw_params").string() + ")");
    EXPECT_FALSE(readHwParams(3, 1, 0, root.string()).known);
    fs::remove_all(root);
}

} // namespace
