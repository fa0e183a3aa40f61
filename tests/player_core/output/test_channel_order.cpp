#include "output_rounds.h"

#include "player_core/output/channel_order.h"
#include "support_devices/private_place.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace kelp_core;
using namespace output_test;
using test_devices::PrivatePlace;
using test_devices::readFile;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {

constexpr uint32_t fiveOneBack = 0x3F;
constexpr uint32_t fiveOneSide = 0x60F;
constexpr uint32_t sevenOne = 0x63F;

TEST(ChannelOrder, EveryChannelGoesToItsSpeaker)
{
    const struct
    {
        const char *what;
        uint32_t speakers;
        std::vector<int> places;
        std::vector<size_t> order;
    } rows[] = {
        {"surround as sound cards have it", fiveOneBack, {0, 1, 4, 5, 2, 3}, {0, 1, 4, 5, 2, 3}},
        {"the pair at the sides is that at the back", fiveOneSide, {0, 1, 4, 5, 2, 3}, {0, 1, 4, 5, 2, 3}},
        {"and the other way round", fiveOneBack, {0, 1, 9, 10, 2, 3}, {0, 1, 4, 5, 2, 3}},
        {"the low tones before the centre", fiveOneBack, {0, 1, 3, 2, 4, 5}, {0, 1, 3, 2, 4, 5}},
        {"two pairs stay apart", sevenOne, {0, 1, 4, 5, 2, 3, 9, 10}, {0, 1, 4, 5, 2, 3, 6, 7}},
        {"the same order", fiveOneBack, {0, 1, 2, 3, 4, 5}, {}},
        {"the same order by another name", fiveOneSide, {0, 1, 2, 3, 4, 5}, {}},
        {"a stream of unknown places", 0, {0, 1, 4, 5, 2, 3}, {}},
        {"a device of unknown places", fiveOneBack, {}, {}},
        {"other speakers", fiveOneBack, {0, 1, 4, 5, 2, 8}, {}},
        {"a place twice", fiveOneBack, {0, 1, 4, 5, 2, 2}, {}},
        {"a place without a name", fiveOneBack, {0, 1, 4, 5, 2, -1}, {}},
        {"another number", 0x37, {0, 1, 4, 5, 2, 3}, {}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(orderFor(row.speakers, row.places), row.order) << row.what;
}

TEST(ChannelOrder, AServerIsToldThePlaces)
{
    const struct
    {
        uint32_t speakers;
        const char *map;
    } rows[] = {
        {0x07, "front-left,front-right,front-center"},
        {0x33, "front-left,front-right,rear-left,rear-right"},
        {0x37, "front-left,front-right,front-center,rear-left,rear-right"},
        {fiveOneBack, "front-left,front-right,front-center,lfe,rear-left,rear-right"},
        {fiveOneSide, "front-left,front-right,front-center,lfe,side-left,side-right"},
        {sevenOne, "front-left,front-right,front-center,lfe,rear-left,rear-right,side-left,side-right"}};
    for (const auto &row : rows) {
        const std::optional<pa_channel_map> map = pulseMapOf(row.speakers);
        ASSERT_TRUE(map) << row.map;
        char text[PA_CHANNEL_MAP_SNPRINT_MAX];
        EXPECT_STREQ(pa_channel_map_snprint(text, sizeof text, &*map), row.map);
    }
    EXPECT_FALSE(pulseMapOf(0));
    EXPECT_FALSE(pulseMapOf(1u << 20));
}

/// The samples of six channels as a device with the places FL FR RL RR FC LFE must get them.
std::string reordered(const std::string &bytes, size_t sampleBytes)
{
    std::string result;
    for (size_t frame = 0; frame < bytes.size(); frame += 6 * sampleBytes)
        for (const size_t channel : {0, 1, 4, 5, 2, 3})
            result += bytes.substr(frame + channel * sampleBytes, sampleBytes);
    return result;
}

TEST(ChannelOrder, ADeviceGetsItInItsOwnOrder)
{
    PrivatePlace place;
    const std::string raw = place.file("surround.raw");
    place.writeAlsaConfig("pcm.surround { type file slave.pcm { type null chmap [ \"FL,FR,RL,RR,FC,LFE\" ] } "
                          "file \"" +
                          raw + "\" format \"raw\" }\n");
    const struct
    {
        const char *what;
        uint32_t speakers;
        bool dsd;
        bool moved;
    } rows[] = {{"PCM", fiveOneBack, false, true},
                {"PCM at the sides", fiveOneSide, false, true},
                {"PCM of unknown places", 0, false, false},
                {"DoP", fiveOneBack, true, true}};
    for (const auto &row : rows) {
        OutputRequest request = pcmRequest("surround", 48000, 24, 6);
        if (row.dsd) {
            request = dsdRequest("surround");
            request.stream.channels = 6;
            request.dop = DopPolicy::force;
        }
        request.stream.speakers = row.speakers;
        OutputOutcome outcome = openOutput(request);
        ASSERT_TRUE(outcome.output) << outcome.error;
        const OpenedOutput &opened = outcome.output->opened();
        EXPECT_EQ(opened.wire.carrier, row.dsd ? Carrier::dop : Carrier::pcm);
        EXPECT_EQ(opened.speakerOrder, row.moved ? "FL FR RL RR FC LFE" : "") << row.what;
        const std::string note =
            "The channels go out in the order of the device's speakers (FL FR RL RR FC LFE).";
        EXPECT_EQ(std::count(opened.notes.begin(), opened.notes.end(), note), row.moved ? 1 : 0) << row.what;
        const size_t sampleBytes = static_cast<size_t>(bytesPerSample(opened.wire.encoding));
        const std::string bytes = noise(6 * sampleBytes * 23457);
        ASSERT_TRUE(writeAll(*outcome.output, bytes, 5000)) << row.what;
        outcome.output.reset();
        EXPECT_TRUE(readFile(raw) == (row.moved ? reordered(bytes, sampleBytes) : bytes)) << row.what;
    }
}

} // namespace
