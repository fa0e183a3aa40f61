#include "list_reader.h"

#include "player_core/output/device_probes.h"

#include "support/process_count.h"
#include "support_devices/private_pulse.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

using namespace kelp_core;
using namespace output_test;
using test_devices::PrivatePlace;
using test_devices::PrivatePulse;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

TEST(DeviceProbes, ListNamesThePcmsOfTheConfiguration)
{
    PrivatePlace place;
    place.writeAlsaConfig("pcm.recorder { type dsnoop ipc_key 1 slave.pcm \"hw:0\" }\n"
                          "pcm.template { @args [ X ] @args.X { type string } type null }\n"
                          "pcm.named { type null hint { description \"A named one\" } }\n");
    const std::string raw = place.addCapturePcm("cap");
    const std::vector<ListRow> rows = readList(listText());
    EXPECT_THAT(rows, Contains(ListRow{"cap", "ALSA PCM of type file (cap)"}));
    EXPECT_THAT(rows, Contains(ListRow{"named", "A named one (named)"}));
    const std::string text = listText();
    for (const char *absent : {"recorder\t", "template\t", "null\t", "jack\t", "\npulse", "["})
        EXPECT_THAT("\n" + text, Not(HasSubstr(absent)));
    EXPECT_FALSE(std::filesystem::exists(raw)) << "listing opens nothing";
}

TEST(DeviceProbes, ListNamesTheServerAndItsSinks)
{
    PrivatePlace place;
    const PrivatePulse pulse(place, "sink_name=n1 rate=96000 format=s24le");
    if (!pulse.missing().empty())
        GTEST_SKIP() << pulse.missing();
    const std::vector<ListRow> rows = readList(listText());
    EXPECT_THAT(rows, Contains(ListRow{"pulse", "pulse (system mixer; non-bit-perfect)"}));
    EXPECT_THAT(rows, Contains(ListRow{"pulse:n1", "Null Output (pulse:n1)"}));
    EXPECT_THAT(readCapabilities(listDevicesText()),
                Contains(CapabilityRow{"pulse:n1", false, false, false, "96000"}));
}

TEST(DeviceProbes, VolumeOfASinkIsInDecibelsToo)
{
    PrivatePlace place;
    EXPECT_THAT(volGetText("pulse"), HasSubstr("VOL pulse not known: There is no PulseAudio server"));
    const PrivatePulse pulse(place, "sink_name=n1 rate=44100 format=s16le");
    if (!pulse.missing().empty())
        GTEST_SKIP() << pulse.missing();
    EXPECT_EQ(volGetText("pulse:n1"),
              "VOL pulse:n1 \"Null Output\" percent=100 db=0.00 muted=no unity=yes\n");
    EXPECT_EQ(volGetText(""), "VOL pulse \"Null Output\" percent=100 db=0.00 muted=no unity=yes\n");
    EXPECT_EQ(volGetText("pulse:no"), "VOL pulse:no not known: the sound server has no such sink\n");
}

TEST(DeviceProbes, VolumeOfOtherPcmsIsNotKnown)
{
    PrivatePlace place;
    EXPECT_EQ(volGetText("cap"), "VOL cap not known: this PCM has no mixer of its own\n");
    EXPECT_EQ(volGetText("hw:9,0"), "VOL hw:9,0 not known: there is no such sound card\n");
}

TEST(DeviceProbes, ResetAlwaysSaysWhatItDid)
{
    PrivatePlace place;
    const std::string text = resetDevice();
    EXPECT_FALSE(text.empty());
    EXPECT_EQ(text.back(), '\n');
}

TEST(DeviceProbes, LeaveNothingBehind)
{
    PrivatePlace place;
    place.addCapturePcm("cap");
    const auto round = [] { return listText() + listDevicesText() + volGetText("hw:0,0") + resetDevice(); };
    round();
    const int descriptors = kelp_test::openDescriptors();
    const int threads = kelp_test::runningThreads();
    for (int i = 0; i < 50; ++i)
        round();
    EXPECT_LE(kelp_test::fallsTo(descriptors, kelp_test::openDescriptors), descriptors);
    EXPECT_LE(kelp_test::fallsTo(threads, kelp_test::runningThreads), threads);
}

} // namespace
