#include "output_rounds.h"

#include "support_devices/private_place.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

using namespace kelp_core;
using namespace output_test;
using test_devices::PrivatePlace;
using ::testing::AnyOf;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

constexpr const char *touchedPcms =
    "pcm.plugged { type plug slave.pcm \"null\" }\n"
    "pcm.rated { type rate slave { pcm \"null\" rate 48000 } }\n"
    "pcm.routed { type route slave.pcm \"null\" ttable.0.0 1 ttable.1.1 1 }\n";

TEST(OpenOutput, AMissingDeviceIsNamed)
{
    PrivatePlace place;
    for (PathPolicy path : {PathPolicy::automatic, PathPolicy::exclusive, PathPolicy::shared}) {
        for (const char *id : {"nosuch", "plughw:9,0", "pulse:nosuch"}) {
            OutputRequest request = pcmRequest(id);
            request.path = path;
            if (path == PathPolicy::exclusive && std::string(id) == "pulse:nosuch")
                continue;
            const OutputOutcome outcome = openOutput(request);
            EXPECT_FALSE(outcome.output);
            EXPECT_THAT(outcome.error, StartsWith("device '" + std::string(id) + "' endpoint not found: "));
        }
    }
    for (PathPolicy path : {PathPolicy::automatic, PathPolicy::exclusive, PathPolicy::shared}) {
        OutputRequest request = pcmRequest("hw:9,0");
        request.path = path;
        EXPECT_EQ(openOutput(request).error,
                  "device 'hw:9,0' endpoint not found: there is no such sound card");
    }
}

TEST(OpenOutput, ExclusiveWantsTheHardware)
{
    PrivatePlace place;
    place.writeAlsaConfig(touchedPcms);
    for (const char *id : {"plugged", "rated", "routed", "pulse", "pulse:n1"}) {
        OutputRequest request = pcmRequest(id, 48000);
        request.path = PathPolicy::exclusive;
        const OutputOutcome outcome = openOutput(request);
        EXPECT_FALSE(outcome.output) << id;
        EXPECT_THAT(outcome.error, HasSubstr("cannot get exclusive access")) << id;
    }
}

TEST(OpenOutput, ExclusiveWithoutACardIsARefusal)
{
    PrivatePlace place;
    OutputRequest request = pcmRequest("");
    request.path = PathPolicy::exclusive;
    const OutputOutcome outcome = openOutput(request);
    if (outcome.output)
        GTEST_SKIP() << "This machine has a sound card.";
    EXPECT_THAT(outcome.error, HasSubstr("cannot get exclusive access"));
}

TEST(OpenOutput, ACaptureCountsAsExclusive)
{
    PrivatePlace place;
    place.addCapturePcm("cap");
    OutputRequest request = pcmRequest("cap", 96000, 24);
    request.path = PathPolicy::exclusive;
    const OutputOutcome outcome = openOutput(request);
    ASSERT_TRUE(outcome.output) << outcome.error;
    EXPECT_TRUE(outcome.output->opened().exclusive);
    EXPECT_EQ(outcome.output->opened().wire.frameRateHz, 96000);
}

// The same rule as the wish list's, on real PCMs: what could change a sample never gets DoP or native DSD.
TEST(OpenOutput, NoDsdOnAnythingThatCouldChangeIt)
{
    PrivatePlace place;
    place.writeAlsaConfig(touchedPcms);
    place.addCapturePcm("cap");
    place.setVariable("KELP_PLAYER_CONF", place.file("player.conf"));
    std::ofstream(place.file("player.conf")) << "dsd_ok=plugged;rated;routed;cap\n";
    for (DopPolicy dop : {DopPolicy::automatic, DopPolicy::force, DopPolicy::native}) {
        for (const char *id : {"plugged", "rated", "routed"}) {
            OutputRequest request = dsdRequest(id);
            request.dop = dop;
            const OutputOutcome outcome = openOutput(request);
            ASSERT_TRUE(outcome.output) << id << ": " << outcome.error;
            EXPECT_EQ(outcome.output->opened().wire.carrier, Carrier::pcm) << id;
            EXPECT_THAT(outcome.notes, Contains(HasSubstr("DSD is decoded to PCM"))) << id;
            EXPECT_FALSE(outcome.output->opened().exclusive) << id;
        }
        OutputRequest request = dsdRequest("cap");
        request.dop = dop;
        request.path = PathPolicy::shared;
        const OutputOutcome outcome = openOutput(request);
        ASSERT_TRUE(outcome.output) << outcome.error;
        EXPECT_EQ(outcome.output->opened().wire.carrier, Carrier::pcm) << "the shared path was chosen";
    }
}

TEST(OpenOutput, DsdGoesUntouchedWhereTheChainIs)
{
    PrivatePlace place;
    place.addCapturePcm("cap");
    OutputRequest request = dsdRequest("cap");
    request.dop = DopPolicy::force;
    OutputOutcome outcome = openOutput(request);
    ASSERT_TRUE(outcome.output) << outcome.error;
    EXPECT_EQ(outcome.output->opened().wire,
              (WireFormat{Carrier::dop, SampleEncoding::s24in3, 176400, 2, 24}));
    EXPECT_EQ(outcome.output->opened().pcmRateHz, 0);
    request.dop = DopPolicy::automatic;
    outcome = openOutput(request);
    ASSERT_TRUE(outcome.output) << outcome.error;
    EXPECT_EQ(outcome.output->opened().wire,
              (WireFormat{Carrier::nativeDsd, SampleEncoding::dsdU32be, 88200, 2, 1}));
    request.forcePcm = true;
    outcome = openOutput(request);
    ASSERT_TRUE(outcome.output) << outcome.error;
    EXPECT_EQ(outcome.output->opened().wire,
              (WireFormat{Carrier::pcm, SampleEncoding::s24in3, 176400, 2, 24}));
}

TEST(OpenOutput, RateIsRightOnEachTrackOfAMixedList)
{
    PrivatePlace place;
    place.addCapturePcm("cap");
    for (int round = 0; round < 3; ++round) {
        for (int rateHz : {44100, 48000, 96000}) {
            const OutputOutcome outcome = openOutput(pcmRequest("cap", rateHz));
            ASSERT_TRUE(outcome.output) << outcome.error;
            EXPECT_EQ(outcome.output->opened().wire.frameRateHz, rateHz);
        }
        OutputRequest request = dsdRequest("cap");
        request.dop = DopPolicy::force;
        const OutputOutcome outcome = openOutput(request);
        ASSERT_TRUE(outcome.output) << outcome.error;
        EXPECT_EQ(outcome.output->opened().wire.frameRateHz, 176400);
    }
}

TEST(OpenOutput, NonsenseIsRefused)
{
    PrivatePlace place;
    for (const OutputRequest &request : {pcmRequest("null", 0), pcmRequest("null", 44100, 16, 0),
                                         pcmRequest("null", 44100, 16, 33), pcmRequest("null", -1)}) {
        const OutputOutcome outcome = openOutput(request);
        EXPECT_FALSE(outcome.output);
        EXPECT_FALSE(outcome.error.empty());
    }
}

TEST(OpenOutput, NotesNeverLookLikeAMissingDevice)
{
    PrivatePlace place;
    const OutputOutcome outcome = openOutput(pcmRequest(""));
    for (const std::string &note : outcome.notes) {
        EXPECT_EQ(note.find("device '"), std::string::npos) << note;
        EXPECT_EQ(note.find("endpoint not found"), std::string::npos) << note;
        EXPECT_EQ(note.find("cannot get exclusive access"), std::string::npos) << note;
    }
}

} // namespace
