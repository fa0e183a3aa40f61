#include "output_rounds.h"

#include "player_core/output/opened_line.h"
#include "support/process_count.h"
#include "support_devices/private_pulse.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace kelp_core;
using namespace output_test;
using test_devices::PrivatePlace;
using test_devices::PrivatePulse;
using test_devices::SinkRecorder;
using ::testing::Contains;
using ::testing::HasSubstr;

namespace {

class PulseOutputTest : public ::testing::Test
{
protected:
    void start(const std::string &sinkArguments)
    {
        pulse = std::make_unique<PrivatePulse>(place, sinkArguments);
    }
    PrivatePlace place;
    std::unique_ptr<PrivatePulse> pulse;
};

/// What was recorded between the silence around it, or empty when it is not there.
bool holdsWhole(const std::string &recorded, const std::string &played)
{
    return recorded.find(played) != std::string::npos;
}

TEST_F(PulseOutputTest, TheMonitorHearsEveryByte)
{
    start("sink_name=n1 rate=44100 format=s16le");
    if (!pulse->missing().empty())
        GTEST_SKIP() << pulse->missing();
    const SinkRecorder recorder(place, "n1", 44100, "s16le", 2);
    if (!recorder.missing().empty())
        GTEST_SKIP() << recorder.missing();
    OutputOutcome outcome = openOutput(pcmRequest("pulse"));
    ASSERT_TRUE(outcome.output) << outcome.error;
    const OpenedOutput &opened = outcome.output->opened();
    EXPECT_EQ(opened.device, "pulse");
    EXPECT_EQ(opened.backend, "PulseAudio");
    EXPECT_TRUE(opened.mixer);
    EXPECT_FALSE(opened.converts);
    EXPECT_FALSE(opened.exclusive);
    EXPECT_THAT(openedLine(opened), HasSubstr("44100 Hz, s16le, 2 channels, read back from the sound server; "
                                              "client side: 44100 Hz, S16_LE, 2 channels, PCM"));
    const std::string bytes = noise(4 * 44100);
    InHand most;
    if (!playInPeace(*outcome.output, bytes, most))
        GTEST_SKIP() << "this machine is too busy to play without a gap";
    EXPECT_GT(most.delayFrames, 0);
    EXPECT_GT(most.latencyMs, 0.0);
    EXPECT_LT(most.latencyMs, 5000.0);
    EXPECT_TRUE(kelp_test::waitUntil([&] { return holdsWhole(recorder.bytes(), bytes); }));
    outcome.output.reset();
}

TEST_F(PulseOutputTest, TwentyFourBitsAreKept)
{
    start("sink_name=n1 rate=96000 format=s24le");
    if (!pulse->missing().empty())
        GTEST_SKIP() << pulse->missing();
    const SinkRecorder recorder(place, "n1", 96000, "s24le", 2);
    if (!recorder.missing().empty())
        GTEST_SKIP() << recorder.missing();
    OutputOutcome outcome = openOutput(pcmRequest("pulse:n1", 96000, 24));
    ASSERT_TRUE(outcome.output) << outcome.error;
    EXPECT_EQ(outcome.output->opened().device, "pulse:n1");
    const std::string bytes = noise(6 * 48000);
    InHand most;
    if (!playInPeace(*outcome.output, bytes, most))
        GTEST_SKIP() << "this machine is too busy to play without a gap";
    EXPECT_TRUE(kelp_test::waitUntil([&] { return holdsWhole(recorder.bytes(), bytes); }));
}

TEST_F(PulseOutputTest, SaysWhatTheServerReallyRunsAt)
{
    start("sink_name=n1 rate=48000 format=s32le");
    if (!pulse->missing().empty())
        GTEST_SKIP() << pulse->missing();
    OutputRequest request = pcmRequest("pulse", 44100, 16);
    const OutputOutcome outcome = openOutput(request);
    ASSERT_TRUE(outcome.output) << outcome.error;
    EXPECT_TRUE(outcome.output->opened().converts);
    EXPECT_EQ(outcome.output->opened().readBack.rateHz, 48000);
    EXPECT_EQ(outcome.output->opened().wire.frameRateHz, 44100);
    request.allowResample = true;
    const OutputOutcome resampled = openOutput(request);
    ASSERT_TRUE(resampled.output) << resampled.error;
    EXPECT_EQ(resampled.output->opened().pcmRateHz, 48000);
}

TEST_F(PulseOutputTest, NeverCarriesDsd)
{
    start("sink_name=n1 rate=48000 format=s32le");
    if (!pulse->missing().empty())
        GTEST_SKIP() << pulse->missing();
    for (DopPolicy dop : {DopPolicy::automatic, DopPolicy::force, DopPolicy::native}) {
        for (const char *id : {"", "pulse", "pulse:n1"}) {
            OutputRequest request = dsdRequest(id);
            request.dop = dop;
            const OutputOutcome outcome = openOutput(request);
            ASSERT_TRUE(outcome.output) << outcome.error;
            EXPECT_EQ(outcome.output->opened().backend, "PulseAudio");
            EXPECT_EQ(outcome.output->opened().wire.carrier, Carrier::pcm);
            EXPECT_EQ(outcome.output->opened().pcmRateHz, 88200);
            EXPECT_THAT(outcome.notes, Contains(HasSubstr("DSD is decoded to PCM")));
        }
    }
}

TEST_F(PulseOutputTest, AMissingSinkIsNamed)
{
    start("sink_name=n1 rate=44100 format=s16le");
    if (!pulse->missing().empty())
        GTEST_SKIP() << pulse->missing();
    EXPECT_EQ(openOutput(pcmRequest("pulse:n2")).error,
              "device 'pulse:n2' endpoint not found: the sound server has no such sink");
}

TEST_F(PulseOutputTest, TheEndOfTheServerEndsTheStream)
{
    start("sink_name=n1 rate=44100 format=s16le");
    if (!pulse->missing().empty())
        GTEST_SKIP() << pulse->missing();
    OutputOutcome outcome = openOutput(pcmRequest("pulse"));
    ASSERT_TRUE(outcome.output) << outcome.error;
    const std::string bytes = noise(4 * 1000);
    ASSERT_TRUE(writeAll(*outcome.output, bytes));
    pulse->kill();
    EXPECT_TRUE(kelp_test::waitUntil([&] { return !writeAll(*outcome.output, bytes); }));
    EXPECT_THAT(outcome.output->message(), HasSubstr("The sound server ended the stream"));
    outcome.output->drain();
    outcome.output->drop();
}

TEST_F(PulseOutputTest, AWaitingWriteIsInterruptedAndADropMakesRoom)
{
    start("sink_name=n1 rate=44100 format=s16le");
    if (!pulse->missing().empty())
        GTEST_SKIP() << pulse->missing();
    OutputOutcome outcome = openOutput(pcmRequest("pulse"));
    ASSERT_TRUE(outcome.output) << outcome.error;
    const std::string bytes = noise(4 * 22050);
    ASSERT_TRUE(writeAll(*outcome.output, bytes));
    outcome.output->interrupt();
    EXPECT_EQ(outcome.output->write(reinterpret_cast<const uint8_t *>(bytes.data()), 1000), 0);
    outcome.output->drop();
    EXPECT_TRUE(writeAll(*outcome.output, bytes.substr(0, 4 * 100)));
}

TEST_F(PulseOutputTest, RunningDryIsCountedOnce)
{
    start("sink_name=n1 rate=44100 format=s16le");
    if (!pulse->missing().empty())
        GTEST_SKIP() << pulse->missing();
    OutputOutcome outcome = openOutput(pcmRequest("pulse"));
    ASSERT_TRUE(outcome.output) << outcome.error;
    // In one piece, so that it cannot run dry in between.
    const std::string bytes = noise(4 * 8820);
    const long taken = outcome.output->write(reinterpret_cast<const uint8_t *>(bytes.data()), 8820);
    ASSERT_GT(taken, 44100 / 20);
    ASSERT_TRUE(kelp_test::waitUntil([&] { return outcome.output->underruns() > 0; }));
    // A second of a stream that stays dry.
    kelp_test::waitUntil([&] { return outcome.output->underruns() > 1; }, std::chrono::seconds(1));
    EXPECT_EQ(outcome.output->underruns(), 1u);
}

TEST_F(PulseOutputTest, HavingRunDryItKeepsMoreInHand)
{
    start("sink_name=n1 rate=44100 format=s16le");
    if (!pulse->missing().empty())
        GTEST_SKIP() << pulse->missing();
    OutputOutcome outcome = openOutput(pcmRequest("pulse"));
    ASSERT_TRUE(outcome.output) << outcome.error;
    const auto inHandAfterASecond = [&] {
        EXPECT_TRUE(writeAll(*outcome.output, noise(4 * 44100)));
        return outcome.output->delayFrames();
    };
    const int64_t inHand = inHandAfterASecond();
    // But where this machine is so busy that it ran dry by itself.
    EXPECT_TRUE(inHand < 44100 * 3 / 10 || outcome.output->underruns() > 0) << inHand;
    ASSERT_TRUE(kelp_test::waitUntil([&] { return outcome.output->underruns() > 0; }));
    EXPECT_TRUE(kelp_test::waitUntil([&] { return inHandAfterASecond() > 44100 * 3 / 10; }));
}

TEST_F(PulseOutputTest, TwoHundredRoundsLeaveNothingBehind)
{
    start("sink_name=n1 rate=44100 format=s16le");
    if (!pulse->missing().empty())
        GTEST_SKIP() << pulse->missing();
    const auto round = [] {
        const OutputOutcome outcome = openOutput(pcmRequest("pulse"));
        ASSERT_TRUE(outcome.output) << outcome.error;
    };
    round();
    const int descriptors = kelp_test::openDescriptors();
    const int threads = kelp_test::runningThreads();
    for (int i = 0; i < 200; ++i)
        round();
    EXPECT_LE(kelp_test::fallsTo(descriptors, kelp_test::openDescriptors), descriptors);
    EXPECT_LE(kelp_test::fallsTo(threads, kelp_test::runningThreads), threads);
}

} // namespace
