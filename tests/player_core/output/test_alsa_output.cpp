#include "output_rounds.h"

#include "player_core/output/opened_line.h"
#include "support/process_count.h"
#include "support_devices/private_place.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

using namespace kelp_core;
using namespace output_test;
using test_devices::PrivatePlace;
using test_devices::readFile;
using ::testing::HasSubstr;

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

TEST(AlsaOutput, AFilePcmGetsEveryByte)
{
    PrivatePlace place;
    const std::string raw = place.addCapturePcm("cap");
    const struct
    {
        int rateHz;
        int depthBits;
        int channels;
        SampleEncoding encoding;
    } rows[] = {{44100, 16, 2, SampleEncoding::s16},
                {96000, 24, 2, SampleEncoding::s24in3},
                {192000, 32, 1, SampleEncoding::s32},
                {48000, 24, 6, SampleEncoding::s24in3}};
    for (const auto &row : rows) {
        OutputOutcome outcome = openOutput(pcmRequest("cap", row.rateHz, row.depthBits, row.channels));
        ASSERT_TRUE(outcome.output) << outcome.error;
        const OpenedOutput &opened = outcome.output->opened();
        EXPECT_EQ(opened.wire.encoding, row.encoding);
        EXPECT_EQ(opened.wire.frameRateHz, row.rateHz);
        EXPECT_EQ(opened.wire.validBits, row.depthBits);
        EXPECT_EQ(opened.backend, "ALSA file");
        EXPECT_FALSE(opened.clocked);
        EXPECT_TRUE(opened.readBack.known) << "the file's own stage has a record";
        EXPECT_EQ(opened.readBack.rateHz, row.rateHz);
        EXPECT_EQ(opened.readBack.channels, row.channels);
        EXPECT_EQ(opened.readBack.format, encodingName(row.encoding));
        EXPECT_FALSE(opened.mixer);
        EXPECT_FALSE(opened.converts);
        EXPECT_EQ(outcome.output->latencyMs(), -1.0) << "nothing was measured yet";
        const std::string bytes = noise(static_cast<size_t>(opened.wire.bytesPerFrame()) * 23457);
        ASSERT_TRUE(writeAll(*outcome.output, bytes, 777));
        EXPECT_EQ(outcome.output->latencyMs(), 0.0);
        outcome.output->drain();
        EXPECT_EQ(readFile(raw), bytes);
        ASSERT_TRUE(writeAll(*outcome.output, bytes)) << "it goes on after a drain";
        outcome.output.reset();
        EXPECT_EQ(readFile(raw), bytes + bytes) << "closing keeps what the file has not seen yet";
    }
}

TEST(AlsaOutput, WhatANullEndTookWasHeardAtOnce)
{
    PrivatePlace place;
    const std::string raw = place.addCapturePcm("cap");
    OutputOutcome outcome = openOutput(pcmRequest("cap"));
    ASSERT_TRUE(outcome.output) << outcome.error;
    const std::string bytes = noise(4 * 5000);
    ASSERT_TRUE(writeAll(*outcome.output, bytes));
    EXPECT_EQ(outcome.output->delayFrames(), 0);
    outcome.output->drop();
    EXPECT_EQ(readFile(raw), bytes);
    EXPECT_EQ(outcome.output->underruns(), 0u);
    EXPECT_EQ(outcome.output->message(), "");
}

TEST(AlsaOutput, NullPcmTakesEverythingAtOnce)
{
    PrivatePlace place;
    OutputOutcome outcome = openOutput(pcmRequest("null", 192000, 24));
    ASSERT_TRUE(outcome.output) << outcome.error;
    EXPECT_EQ(outcome.output->opened().backend, "ALSA null device");
    EXPECT_THAT(openedLine(outcome.output->opened()), HasSubstr("OPENED null by ALSA null device, exclusive: "
                                                                "rate not known, format not known"));
    EXPECT_TRUE(writeAll(*outcome.output, noise(6 * 192000)));
}

TEST(AlsaOutput, InterruptMakesOneWriteReturn)
{
    PrivatePlace place;
    OutputOutcome outcome = openOutput(pcmRequest("null"));
    ASSERT_TRUE(outcome.output) << outcome.error;
    const std::string bytes = noise(400);
    outcome.output->interrupt();
    EXPECT_EQ(outcome.output->write(reinterpret_cast<const uint8_t *>(bytes.data()), 100), 0);
    EXPECT_EQ(outcome.output->write(reinterpret_cast<const uint8_t *>(bytes.data()), 100), 100);
}

TEST(AlsaOutput, ACaptureCanBePacedInRealTime)
{
    PrivatePlace place;
    const std::string raw = place.addCapturePcm("cap");
    place.setVariable("KELP_ENGINE_PACE", "realtime");
    OutputOutcome outcome = openOutput(pcmRequest("cap", 48000));
    ASSERT_TRUE(outcome.output) << outcome.error;
    EXPECT_TRUE(outcome.output->opened().clocked);
    const std::string bytes = noise(4 * 24000);
    const auto begin = Clock::now();
    const InHand most = writeAndLook(*outcome.output, bytes, 1200);
    EXPECT_GE(Clock::now() - begin, 290ms) << "half a second less the buffer of 200 ms and a little";
    EXPECT_GT(most.delayFrames, 0);
    EXPECT_GT(most.latencyMs, 0.0);
    outcome.output->drain();
    EXPECT_GE(Clock::now() - begin, 490ms);
    EXPECT_EQ(readFile(raw), bytes);
}

TEST(AlsaOutput, ADroppedPacedStreamGoesOnAtOnce)
{
    PrivatePlace place;
    place.addCapturePcm("cap");
    place.setVariable("KELP_ENGINE_PACE", "realtime");
    OutputOutcome outcome = openOutput(pcmRequest("cap", 1000));
    ASSERT_TRUE(outcome.output) << outcome.error;
    const std::string bytes = noise(4 * 200);
    EXPECT_GT(writeAndLook(*outcome.output, bytes, 100).delayFrames, 0);
    outcome.output->drop();
    EXPECT_EQ(outcome.output->delayFrames(), 0);
    EXPECT_GT(outcome.output->write(reinterpret_cast<const uint8_t *>(bytes.data()), 25), 0);
}

TEST(AlsaOutput, TwoHundredRoundsLeaveNothingBehind)
{
    PrivatePlace place;
    place.addCapturePcm("cap");
    const std::string bytes = noise(4 * 100);
    const auto round = [&bytes] {
        OutputOutcome outcome = openOutput(pcmRequest("cap"));
        ASSERT_TRUE(outcome.output) << outcome.error;
        ASSERT_TRUE(writeAll(*outcome.output, bytes));
    };
    round(); // what the library keeps is taken in the first round
    const int descriptors = kelp_test::openDescriptors();
    const int threads = kelp_test::runningThreads();
    for (int i = 0; i < 200; ++i)
        round();
    EXPECT_LE(kelp_test::fallsTo(descriptors, kelp_test::openDescriptors), descriptors);
    EXPECT_LE(kelp_test::fallsTo(threads, kelp_test::runningThreads), threads);
}

} // namespace
