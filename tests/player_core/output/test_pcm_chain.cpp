#include "player_core/output/pcm_chain.h"

#include <gtest/gtest.h>

using kelp_core::parsePcmChain;
using kelp_core::PcmChain;

namespace {

const std::string setup = "Its setup is:\n  stream       : PLAYBACK\n  rate         : 44100\n";

struct Case
{
    const char *name;
    std::string dump;
    bool untouched;
    bool hardware;
    bool clocked;
    std::string blocker;
};

TEST(PcmChain, OnlyKnownHarmlessStagesAreUntouched)
{
    const Case cases[] = {
        {"card", "Hardware PCM card 0 'HDA Intel' device 0 subdevice 0\n" + setup, true, true, true, ""},
        {"null", "Null PCM\n", true, false, false, ""},
        {"capture",
         "File PCM (file=/tmp/a.raw)\nFinal file PCM (file=/tmp/a.raw)\n" + setup + "Slave: Null PCM\n" +
             setup,
         true, false, false, ""},
        {"tee", "File PCM (file=a)\n" + setup + "Slave: Hardware PCM card 1 'DAC' device 0 subdevice 0\n",
         true, true, true, ""},
        {"hooks", "Hooks PCM\nSlave: Hardware PCM card 1 'DAC' device 0 subdevice 0\n", true, true, true, ""},
        {"plug", "Plug PCM: Hardware PCM card 0 'HDA Intel' device 0 subdevice 0\n" + setup, false, true,
         true, "Plug PCM: Hardware PCM card 0 'HDA Intel' device 0 subdevice"},
        {"rate", "Rate conversion PCM (48000)\nConverter: libspeex (external)\nSlave: Null PCM\n", false,
         false, false, "Rate conversion PCM (48000)"},
        {"softvol",
         "Soft volume PCM\nControl: PCM Playback Volume\nSlave: Hardware PCM card 0 'x' device 0 "
         "subdevice 0\n",
         false, true, true, "Soft volume PCM"},
        {"hidden below a file",
         "File PCM (file=a)\nSlave: Route conversion PCM (sformat=S16_LE)\n"
         "Slave: Null PCM\n",
         false, false, false, "Route conversion PCM (sformat=S16_LE)"},
        {"server", "ALSA <-> PulseAudio PCM I/O Plugin\n" + setup, false, false, true,
         "ALSA <-> PulseAudio PCM I/O Plugin"},
        {"dmix", "Direct Stream Mixing PCM\n", false, false, true, "Direct Stream Mixing PCM"},
        {"nothing", "", false, false, true, "a chain without a known end"},
        {"no end", "File PCM (file=a)\n", false, false, true, "a chain without a known end"},
        {"look-alike", "Null PCM with a volume control\n", false, false, true,
         "Null PCM with a volume control"},
    };
    for (const Case &row : cases) {
        const PcmChain chain = parsePcmChain(row.dump);
        EXPECT_EQ(chain.untouched, row.untouched) << row.name;
        EXPECT_EQ(chain.hardware, row.hardware) << row.name;
        EXPECT_EQ(chain.clocked, row.clocked) << row.name;
        EXPECT_EQ(chain.blocker, row.blocker) << row.name;
    }
}

TEST(PcmChain, ToldApartAreConvertersAndMixers)
{
    EXPECT_FALSE(
        parsePcmChain("Plug PCM: Rate conversion PCM (48000)\nSlave: Hardware PCM card 0 'x'\n").mixes);
    EXPECT_TRUE(parsePcmChain("Plug PCM: Direct Stream Mixing PCM\n").mixes);
    EXPECT_TRUE(parsePcmChain("Soft volume PCM\nSlave: Hardware PCM card 0 'x'\n").mixes);
    EXPECT_FALSE(parsePcmChain("Null PCM\n").mixes);
    EXPECT_TRUE(parsePcmChain("").mixes) << "what is not known is taken for the worst";
}

TEST(PcmChain, AFileNameCannotSpeakForTheChain)
{
    // A line feed in a file's name may add a harmless line; it cannot take away a harmful one.
    const PcmChain chain = parsePcmChain("File PCM (file=a\nSlave: Null PCM\n)\nSlave: Soft volume PCM\n");
    EXPECT_FALSE(chain.untouched);
}

TEST(PcmChain, AStageWithoutANameIsNotHarmless)
{
    for (const char *dump : {"\nSlave: Null PCM\n", "File PCM (file=a)\nSlave: \nSlave: Null PCM\n"}) {
        const PcmChain chain = parsePcmChain(dump);
        EXPECT_FALSE(chain.untouched) << dump;
        EXPECT_EQ(chain.blocker, "a stage without a name") << dump;
        EXPECT_TRUE(chain.mixes) << dump;
    }
}

TEST(PcmChain, TheEndsSetupIsReadFromTheLastStage)
{
    const std::string outer =
        "File PCM (file=a)\nIts setup is:\n  format       : S16_LE\n  channels     : 2\n"
        "  rate         : 44100\n  exact rate   : 44100 (44100/1)\n";
    const std::string inner = "Slave: Null PCM\nIts setup is:\n  format       : S24_3LE\n  channels     : 6\n"
                              "  rate         : 48000\n  exact rate   : 48000 (48000/1)\n";
    const kelp_core::ReadBack one = kelp_core::parseEndSetup(outer);
    EXPECT_TRUE(one.known);
    EXPECT_EQ(one.rateHz, 44100);
    EXPECT_EQ(one.format, "S16_LE");
    EXPECT_EQ(one.channels, 2);
    const kelp_core::ReadBack two = kelp_core::parseEndSetup(outer + inner);
    EXPECT_EQ(two.rateHz, 48000);
    EXPECT_EQ(two.format, "S24_3LE");
    EXPECT_EQ(two.channels, 6);
}

TEST(PcmChain, ADamagedSetupIsNotKnown)
{
    const std::string good =
        "Its setup is:\n  format       : S16_LE\n  channels     : 2\n  rate         : 44100\n";
    EXPECT_TRUE(kelp_core::parseEndSetup(good).known);
    for (const char *text : {"", "Its setup is:\n", "  rate         : 44100", "Null PCM\n",
                             "  format       : S16_LE\n  channels     : -2\n  rate         : 44100\n",
                             "  format       : S16_LE\n  channels     : 2\n  rate         : 99999999999\n"})
        EXPECT_FALSE(kelp_core::parseEndSetup(text).known) << text;
    EXPECT_FALSE(kelp_core::parseEndSetup(good + "Slave: Null PCM\nIts setup is:\n").known)
        << "the last stage says nothing";
}

} // namespace
