// ALSA's way with a device that has a clock, tried on the plugin that plays to a sound server: there is no
// card in a test machine.
#include "output_rounds.h"

#include "support_devices/private_pulse.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

using namespace kelp_core;
using namespace output_test;
using test_devices::PrivatePlace;
using test_devices::PrivatePulse;
using test_devices::SinkRecorder;
using ::testing::AnyOf;
using ::testing::HasSubstr;

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

class AlsaClockedTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (!pulse.missing().empty())
            GTEST_SKIP() << pulse.missing();
        place.writeAlsaConfig("pcm.server { type pulse }\n");
        outcome = openOutput(pcmRequest("server"));
        if (!outcome.output)
            GTEST_SKIP() << "ALSA's plugin for PulseAudio is not installed: " << outcome.error;
    }
    long write(size_t frames)
    {
        return outcome.output->write(reinterpret_cast<const uint8_t *>(bytes.data()), frames);
    }
    PrivatePlace place;
    PrivatePulse pulse{place, "sink_name=n1 rate=44100 format=s16le"};
    OutputOutcome outcome;
    std::string bytes = noise(4 * 44100);
};

TEST_F(AlsaClockedTest, IsKnownForAMixer)
{
    const OpenedOutput &opened = outcome.output->opened();
    EXPECT_TRUE(opened.mixer);
    EXPECT_TRUE(opened.clocked);
    EXPECT_FALSE(opened.exclusive);
    EXPECT_FALSE(opened.readBack.known);
    OutputRequest request = dsdRequest("server");
    request.dop = DopPolicy::force;
    outcome = openOutput(request);
    ASSERT_TRUE(outcome.output) << outcome.error;
    EXPECT_EQ(outcome.output->opened().wire.carrier, Carrier::pcm);
    request.path = PathPolicy::exclusive;
    outcome = openOutput(request);
    EXPECT_THAT(outcome.error, HasSubstr("cannot get exclusive access to server"));
}

TEST_F(AlsaClockedTest, PlaysInItsTimeAndDrains)
{
    const SinkRecorder recorder(place, "n1", 44100, "s16le", 2);
    if (!recorder.missing().empty())
        GTEST_SKIP() << recorder.missing();
    const auto begin = Clock::now();
    InHand most;
    if (!playInPeace(*outcome.output, bytes, most))
        GTEST_SKIP() << "this machine is too busy to play without a gap";
    EXPECT_GT(most.latencyMs, 0.0);
    EXPECT_GT(most.delayFrames, 0);
    EXPECT_GE(Clock::now() - begin, 700ms);
    EXPECT_TRUE(kelp_test::waitUntil(
        [&] { return recorder.bytes().find(bytes.substr(4 * 2000)) != std::string::npos; }));
    EXPECT_GT(write(100), 0) << "it goes on after a drain";
}

TEST_F(AlsaClockedTest, AFullDeviceIsWaitedForAndTheWaitInterrupted)
{
    while (write(4000) == 4000) {
    }
    std::thread other([this] { outcome.output->interrupt(); });
    EXPECT_TRUE(kelp_test::waitUntil([this] { return write(44100) == 0; }));
    other.join();
    outcome.output->drop();
    EXPECT_GT(write(1000), 0) << "a drop makes room";
}

TEST_F(AlsaClockedTest, AServerThatDiesEndsTheStream)
{
    ASSERT_GT(write(1000), 0);
    pulse.kill();
    EXPECT_TRUE(kelp_test::waitUntil([this] { return write(1000) < 0; }));
    EXPECT_THAT(outcome.output->message(), HasSubstr("The sound device server"));
    EXPECT_EQ(write(1000), -1) << "it stays gone";
    outcome.output->drain();
    outcome.output->drop();
}

} // namespace
