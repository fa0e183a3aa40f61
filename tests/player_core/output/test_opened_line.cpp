#include "player_core/output/opened_line.h"

#include <gtest/gtest.h>

using namespace kelp_core;

namespace {

OpenedOutput hardware()
{
    OpenedOutput opened;
    opened.wire = {Carrier::dop, SampleEncoding::s32, 176400, 2, 24};
    opened.device = "hw:1,0";
    opened.deviceLabel = "Desk DAC, USB Audio";
    opened.backend = "ALSA hardware";
    opened.exclusive = true;
    opened.readBack = {true, "kernel (/proc/asound/card1/pcm0p/sub0/hw_params)", 176400, "S32_LE", 2};
    return opened;
}

TEST(OpenedLine, TellsWhatWasReadBackAndTheClientSideApart)
{
    OpenedOutput opened = hardware();
    opened.readBack.rateHz = 48000;
    EXPECT_EQ(
        openedLine(opened),
        "OPENED hw:1,0 (Desk DAC, USB Audio) by ALSA hardware, exclusive: 48000 Hz, S32_LE, 2 channels, "
        "read back from the kernel (/proc/asound/card1/pcm0p/sub0/hw_params); "
        "client side: 176400 Hz, S32_LE, 2 channels, DoP");
}

TEST(OpenedLine, SaysNotKnownWithoutARecord)
{
    OpenedOutput opened = hardware();
    opened.device = opened.deviceLabel = "cap";
    opened.backend = "ALSA file";
    opened.exclusive = false;
    opened.readBack = ReadBack{};
    opened.wire = {Carrier::pcm, SampleEncoding::s16, 44100, 1, 16};
    EXPECT_EQ(
        openedLine(opened),
        "OPENED cap by ALSA file, shared: rate not known, format not known, channels not known, there is "
        "no record to read back; client side: 44100 Hz, S16_LE, 1 channel, PCM");
}

TEST(OpenedLine, IsNeverReadAsAMissingDevice)
{
    EXPECT_EQ(openedLine(hardware()).find("device '"), std::string::npos);
}

} // namespace
