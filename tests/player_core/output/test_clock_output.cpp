#include "output_rounds.h"

#include "support_devices/private_place.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

using namespace kelp_core;
using namespace output_test;
using test_devices::PrivatePlace;
using ::testing::Contains;

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

/// No server, and a default PCM that does not open.
OutputOutcome openWithoutDevices(PrivatePlace &place, OutputRequest request)
{
    place.writeAlsaConfig("pcm.!default { type hw card 31 }\n");
    request.deviceId.clear();
    return openOutput(request);
}

TEST(ClockOutput, PlaysInRealTimeAndSaysSo)
{
    PrivatePlace place;
    OutputOutcome outcome = openWithoutDevices(place, pcmRequest("", 48000));
    ASSERT_TRUE(outcome.output) << outcome.error;
    EXPECT_EQ(outcome.output->opened().device, "null clock");
    EXPECT_FALSE(outcome.output->opened().exclusive);
    EXPECT_TRUE(outcome.output->opened().clocked);
    EXPECT_FALSE(outcome.output->opened().readBack.known);
    EXPECT_THAT(outcome.notes, Contains("no sound device: playing to a clocked null device"));
    EXPECT_EQ(outcome.notes, outcome.output->opened().notes);
    EXPECT_EQ(outcome.notes.size(), 3u) << "each rung that was not taken has its reason";
    const auto begin = Clock::now();
    ASSERT_TRUE(writeAll(*outcome.output, noise(4 * 24000)));
    outcome.output->drain();
    EXPECT_GE(Clock::now() - begin, 490ms);
    EXPECT_EQ(outcome.output->delayFrames(), 0);
}

TEST(ClockOutput, AWaitingWriteIsInterrupted)
{
    PrivatePlace place;
    OutputOutcome outcome = openWithoutDevices(place, pcmRequest("", 1000));
    ASSERT_TRUE(outcome.output) << outcome.error;
    const std::string bytes = noise(4 * 200);
    ASSERT_TRUE(writeAll(*outcome.output, bytes));
    std::thread other([&outcome] { outcome.output->interrupt(); });
    while (outcome.output->write(reinterpret_cast<const uint8_t *>(bytes.data()), 200) > 0) {
    }
    other.join();
    outcome.output->drop();
    EXPECT_EQ(outcome.output->delayFrames(), 0);
}

TEST(ClockOutput, DsdIsDecodedForIt)
{
    PrivatePlace place;
    OutputRequest request = dsdRequest("");
    request.dop = DopPolicy::force;
    OutputOutcome outcome = openWithoutDevices(place, request);
    ASSERT_TRUE(outcome.output) << outcome.error;
    EXPECT_EQ(outcome.output->opened().wire.carrier, Carrier::pcm);
    EXPECT_EQ(outcome.output->opened().pcmRateHz, 176400);
}

} // namespace
