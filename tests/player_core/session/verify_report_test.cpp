#include "player_core/session/verify_report.h"

#include "fake_world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include <unistd.h>

namespace kelp_core::test {

using testing::Each;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

ChainFacts provenFacts()
{
    ChainFacts f;
    f.source.format = {SignalKind::pcm, 44100, 2, 16, false};
    f.source.description = "FLAC, 16 bit, 44100 Hz, 2 channels";
    f.output.wire = {Carrier::pcm, SampleEncoding::s16, 44100, 2, 16};
    f.output.exclusive = true;
    f.output.readBack = {true, "kernel", 44100, "S16_LE", 2};
    f.transform.from = f.source.format;
    f.transform.toRateHz = 44100;
    f.transform.toChannels = 2;
    f.volume.sourceBits = 16;
    f.volume.deviceBits = 16;
    f.trackFrames = 12345;
    return f;
}

ChainFacts dopFacts()
{
    ChainFacts f = provenFacts();
    f.source.format = {SignalKind::dsd, 2822400, 2, 1, false};
    f.transform.from = f.source.format;
    f.transform.toDsd = true;
    f.output.wire = {Carrier::dop, SampleEncoding::s32, 176400, 2, 24};
    f.output.readBack = {true, "kernel", 176400, "S32_LE", 2};
    f.volume.place = VolumePlace::dop;
    return f;
}

struct VerifyCase
{
    const char *name;
    std::function<void(ChainFacts &)> change;
    const char *item;   ///< the one that is broken
    const char *reason; ///< part of it
};

const VerifyCase cases[] = {
    {"lossy", [](ChainFacts &f) { f.source.lossless = false; }, stage_name::source, "lossy"},
    {"unreadable rest", [](ChainFacts &f) { f.failure = "it was cut off"; }, stage_name::source,
     "its rest could not be read: it was cut off"},
    {"decoded DSD",
     [](ChainFacts &f) {
         f.source.format = {SignalKind::dsd, 2822400, 2, 1, false};
         f.transform.from = f.source.format;
         f.transform.toRateHz = 176400;
     },
     stage_name::decoding, "DSD64 is decoded to PCM at"},
    {"resampled", [](ChainFacts &f) { f.transform.toRateHz = 48000; }, stage_name::resampler,
     "from 44100 Hz to 48000 Hz"},
    {"mapped", [](ChainFacts &f) { f.transform.toChannels = 6; }, stage_name::channels,
     "2 channels are mapped to 6"},
    {"scaled", [](ChainFacts &f) { f.volume.gain = 0.5; }, stage_name::volume, "-6.02 dB"},
    {"mixed", [](ChainFacts &f) { f.mixing = true; }, stage_name::crossfade, "two tracks"},
    {"fading", [](ChainFacts &f) { f.fading = true; }, stage_name::crossfade, "a fade is under way"},
    {"clipped", [](ChainFacts &f) { f.clipped = 3; }, stage_name::clipping, "3 samples of this track"},
    {"dithered", [](ChainFacts &f) { f.dithered = true; }, stage_name::depth,
     "rounded to 16 bits, with dither"},
    {"too deep", [](ChainFacts &f) { f.source.format.depthBits = 24; }, stage_name::depth,
     "16 bits of the source's 24"},
    {"floats in integers",
     [](ChainFacts &f) {
         f.source.format.isFloat = true;
         f.source.format.depthBits = 32;
     },
     stage_name::depth, "16 bits of the source's 32 in floats"},
    {"32 bits in a float",
     [](ChainFacts &f) {
         f.source.format.depthBits = 32;
         f.output.wire = {Carrier::pcm, SampleEncoding::f32, 44100, 2, 32};
         f.output.readBack.format = "FLOAT_LE";
     },
     stage_name::depth, "24 bits of the source's 32"},
    {"mixer", [](ChainFacts &f) { f.output.mixer = true; }, stage_name::mixer, "mixer stands in the way"},
    {"known conversion", [](ChainFacts &f) { f.output.converts = true; }, stage_name::conversion,
     "converted"},
    {"another rate", [](ChainFacts &f) { f.output.readBack.rateHz = 48000; }, stage_name::delivery,
     "not what was handed over"},
    {"underrun", [](ChainFacts &f) { f.trackUnderruns = 2; }, stage_name::underruns, "2 times"},
    {"a stage that speaks for itself",
     [](ChainFacts &f) {
         f.stages.push_back({stage_name::speed, Proof::broken, "the speed is 1.25x"});
     },
     stage_name::speed, "1.25x"},
    {"a stage of its own name",
     [](ChainFacts &f) {
         f.stages.push_back({"equalizer", Proof::broken, "ten bands"});
     },
     "equalizer", "ten bands"},
};

std::string lineOf(const ChainFacts &facts, const std::string &item)
{
    for (const std::string &line : verifyReport(facts)) {
        if (line.starts_with("verify: " + item + ' '))
            return line;
    }
    return {};
}

} // namespace

TEST(VerifyTest, ACleanChainPassesInEveryItem)
{
    for (const ChainFacts &facts : {provenFacts(), dopFacts()}) {
        std::vector<std::string> lines = verifyReport(facts);
        EXPECT_THAT(lines.back(), StartsWith("verify: verdict BITPERFECT=1 | all 16 stages"));
        lines.pop_back();
        EXPECT_THAT(lines, Each(HasSubstr(" ok -- ")));
        EXPECT_THAT(lines, Each(StartsWith("verify: ")));
    }
}

TEST(VerifyTest, EachStageBreaksTheVerdictByItself)
{
    for (const VerifyCase &c : cases) {
        ChainFacts facts = provenFacts();
        c.change(facts);
        EXPECT_THAT(lineOf(facts, c.item), StartsWith("verify: " + std::string(c.item) + " FAIL -- "))
            << c.name;
        EXPECT_THAT(lineOf(facts, c.item), HasSubstr(c.reason)) << c.name;
        EXPECT_THAT(verifyReport(facts).back(), StartsWith("verify: verdict BITPERFECT=0 | ")) << c.name;
        EXPECT_THAT(bitPerfectVerdict(facts), StartsWith("NO: ")) << c.name;
    }
}

TEST(VerifyTest, WhatCannotBeReadBackIsNotAPass)
{
    ChainFacts facts = provenFacts();
    facts.output.readBack = {};
    EXPECT_THAT(lineOf(facts, stage_name::delivery), StartsWith("verify: delivery FAIL -- not known: "));
    EXPECT_THAT(verifyReport(facts).back(),
                StartsWith("verify: verdict BITPERFECT=0 | delivery: not known: "));
    EXPECT_THAT(bitPerfectVerdict(facts), StartsWith("not known: "));
}

TEST(VerifyTest, TheVerdictNamesTheFirstStageThatBrokeItBeforeWhatIsOnlyNotKnown)
{
    ChainFacts facts = provenFacts();
    facts.output.readBack = {};
    facts.trackUnderruns = 1;
    facts.volume.gain = 0.5;
    EXPECT_THAT(verifyReport(facts).back(), HasSubstr("| volume: the volume stage scales"));
    facts.volume.gain = 1.0;
    EXPECT_THAT(verifyReport(facts).back(), HasSubstr("| underruns: "));
}

TEST(VerifyTest, AStagesOwnItemStandsInItsPlace)
{
    ChainFacts facts = provenFacts();
    facts.stages = {{stage_name::guard, Proof::kept, "armed, has not acted in this run"},
                    {"equalizer", Proof::kept, "off"}};
    const std::vector<StageItem> items = verifyItems(facts);
    ASSERT_EQ(items.size(), 17u);
    EXPECT_EQ(items[9].reason, "armed, has not acted in this run");
    EXPECT_EQ(items[10].name, "equalizer");
    EXPECT_EQ(items[11].name, stage_name::clipping);
    EXPECT_EQ(firstObjection(items), nullptr);
}

TEST(VerifyTest, ItemsStayOnTheirLine)
{
    ChainFacts facts = provenFacts();
    facts.failure = "broken\nverify: verdict BITPERFECT=1";
    for (const std::string &line : verifyReport(facts))
        EXPECT_EQ(line.find('\n'), std::string::npos);
}

TEST(VerifySessionTest, ACheckOfARunningStreamIsAnsweredFromItsState)
{
    FakeWorld world;
    world.device.clocked = true;
    world.device.readBackKnown = true;
    world.tracks["/a.wav"].frames = 441'000;
    world.start({"-stream", "-parent-pid", std::to_string(getpid())});
    world.send("load /a.wav");
    EXPECT_THAT(world.waitLine("SIGNAL CHAIN END"), Not(testing::IsEmpty()));
    world.send("verify");
    EXPECT_THAT(world.waitLine("verify: verdict"), StartsWith("verify: verdict BITPERFECT=1"));

    // A change and a check in one breath: the answer is for what comes after the change.
    world.send("vol 50");
    world.send("verify");
    EXPECT_THAT(world.waitLine("verify: volume"),
                StartsWith("verify: volume FAIL -- the volume stage scales"));
    EXPECT_THAT(world.waitLine("verify: verdict"), StartsWith("verify: verdict BITPERFECT=0 | volume"));
    world.send("vol 100");
    world.send("verify");
    EXPECT_THAT(world.waitLine("verify: volume"), HasSubstr("earlier frames of this track were"));
    EXPECT_THAT(world.waitLine("verify: verdict"), StartsWith("verify: verdict BITPERFECT=1"));

    world.send("pause");
    world.send("verify");
    EXPECT_THAT(world.waitLine("verify: crossfade"), HasSubstr("faded out for the pause"));
    EXPECT_THAT(world.waitLine("verify: verdict"), StartsWith("verify: verdict BITPERFECT=0"));
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
}

TEST(VerifySessionTest, WithoutAStreamThereIsNothingToJudge)
{
    FakeWorld world;
    world.start({"-stream", "-parent-pid", std::to_string(getpid())});
    world.send("verify");
    EXPECT_EQ(world.waitLine("verify: "),
              "verify: verdict BITPERFECT=0 | nothing plays, so there is nothing to judge");
    world.send("report");
    EXPECT_EQ(world.waitLine("Nothing plays"), "Nothing plays, so there is no signal chain to report.");
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
}

TEST(VerifySessionTest, AReportComesAtAnyTime)
{
    FakeWorld world;
    world.device.clocked = true;
    world.tracks["/a.wav"].frames = 441'000;
    world.start({"-stream", "-parent-pid", std::to_string(getpid())});
    world.send("load /a.wav");
    EXPECT_THAT(world.waitLine("SIGNAL CHAIN END"), Not(testing::IsEmpty()));
    world.send("report");
    EXPECT_THAT(world.waitLine("SIGNAL CHAIN BEGIN"), Not(testing::IsEmpty()));
    EXPECT_THAT(world.waitLine("bit-perfect: "), StartsWith("bit-perfect: not known"));
    EXPECT_THAT(world.waitLine("SIGNAL CHAIN END"), Not(testing::IsEmpty()));
    world.send("stop");
    EXPECT_EQ(world.wait(), exit_code::stopped);
}

} // namespace kelp_core::test
