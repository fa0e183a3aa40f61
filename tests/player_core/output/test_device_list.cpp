#include "list_reader.h"

#include "player_core/output/device_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace kelp_core;
using namespace output_test;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

TEST(DeviceList, IsReadAsItWasMeant)
{
    const DeviceList list{"pulseaudio 16.1",
                          {{"pulse:n1", "Null Output"}},
                          {{"hw:1,0", "Desk DAC, USB Audio"}},
                          {{"cap", "ALSA PCM of type file"}}};
    EXPECT_EQ(formatDeviceList(list), "pulse\tpulseaudio 16.1\n"
                                      "pulse:n1\tpulse:n1\tNull Output\n"
                                      "hw:1,0\tDesk DAC, USB Audio\n"
                                      "plughw:1,0\tDesk DAC, USB Audio, converting\n"
                                      "cap\tcap\tALSA PCM of type file\n");
    EXPECT_THAT(readList(formatDeviceList(list)),
                ElementsAre(ListRow{"pulse", "pulse (system mixer; non-bit-perfect)"},
                            ListRow{"pulse:n1", "Null Output (pulse:n1)"},
                            ListRow{"hw:1,0", "hw:1,0 (Desk DAC, USB Audio)"},
                            ListRow{"plughw:1,0", "plughw:1,0 (Desk DAC, USB Audio, converting)"},
                            ListRow{"cap", "ALSA PCM of type file (cap)"}));
}

TEST(DeviceList, NamesCannotBreakALine)
{
    const DeviceList list{"",
                          {},
                          {{"hw:0,0", "A\tB\nC\x01"}},
                          {{"[default] x", "no"},
                           {"=== x", "no"},
                           {"hw:x", "no"},
                           {"pulse", "no"},
                           {"pulse:x", "no"},
                           {"a\tb", "no"},
                           {"", "no"},
                           {"good", " two\twords "}}};
    EXPECT_THAT(readList(formatDeviceList(list)),
                ElementsAre(ListRow{"hw:0,0", "hw:0,0 (A B C)"},
                            ListRow{"plughw:0,0", "plughw:0,0 (A B C, converting)"},
                            ListRow{"good", "two words (good)"}));
}

TEST(DeviceList, OfNothingIsEmpty)
{
    EXPECT_EQ(formatDeviceList({}), "");
    EXPECT_EQ(formatCapabilities({}), "");
}

TEST(DeviceCapabilities, AreReadAsTheyWereMeant)
{
    const std::string text =
        formatCapabilities({{"hw:1,0", "alsa", true, true, false, "free", {44100, 176400}},
                            {"hw:0,3", "alsa", false, false, true, "free", {}},
                            {"pulse:n1", "pulse", false, false, false, "shared", {48000}}});
    EXPECT_EQ(text, "DEV hw:1,0 alsa yes yes no free\n└ rates: 44100,176400\n"
                    "DEV hw:0,3 alsa no no yes free\n"
                    "DEV pulse:n1 pulse no no no shared\n└ rates: 48000\n");
    EXPECT_THAT(readCapabilities(text),
                ElementsAre(CapabilityRow{"hw:1,0", true, true, false, "44100,176400"},
                            CapabilityRow{"hw:0,3", false, false, true, ""},
                            CapabilityRow{"pulse:n1", false, false, false, "48000"}));
}

TEST(DeviceCapabilities, LeaveOutIdsThatTheFormCannotHold)
{
    EXPECT_THAT(readCapabilities(formatCapabilities({{"two words", "alsa", true, true, true, "free", {44100}},
                                                     {"", "alsa", true, true, true, "free", {44100}},
                                                     {"a\tb", "alsa", true, true, true, "free", {44100}}})),
                IsEmpty());
}

} // namespace
