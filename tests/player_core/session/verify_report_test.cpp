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

/// Items that break no verdict, and what they say.
struct KeptCase
{
    const char *name;
    std::function<void(ChainFacts &)> change;
    const char *item;
    const char *reason; ///< whole
};

const KeptCase keptCases[] = {
    {"the device's own order of speakers",
     [](ChainFacts &f) {
         f.transform.from.channels = f.transform.toChannels = 6;
         f.output.speakerOrder = "FL FR RL RR FC LFE";
     },
     stage_name::channels, "6 in, 6 out, each to its speaker (FL FR RL RR FC LFE)"},
    {"the original's speed", [](ChainFacts &f) { f.transform.speed.ratio = 1.0004; }, stage_name::speed,
     "1.00x, no stage for another speed is in the chain"},
    {"no ReplayGain", [](ChainFacts &) {}, stage_name::replayGain, "off"},
    {"ReplayGain without a tag",
     [](ChainFacts &f) { f.replayGain = "this track has no tag for it, so its level stays"; },
     stage_name::replayGain, "on, but it scales nothing (this track has no tag for it, so its level stays)"},
    {"ReplayGain at unity", [](ChainFacts &f) { f.replayGain = "album gain +0.00 dB"; },
     stage_name::replayGain, "on, but it scales nothing (album gain +0.00 dB)"},
    {"no guard", [](ChainFacts &) {}, stage_name::guard, "off"},
    {"an idle guard", [](ChainFacts &f) { f.guard = true; }, stage_name::guard,
     "on, and no sample of this track has needed it"},
    {"a loop", [](ChainFacts &f) { f.looping = true; }, stage_name::loop,
     "a part of the track is repeated, its frames themselves are not touched"},
};

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
    {"clipped", [](ChainFacts &f) { f.clippedSamples = 3; }, stage_name::clipping,
     "3 samples of this track passed full scale and were cut"},
    {"one sample clipped", [](ChainFacts &f) { f.clippedSamples = 1; }, stage_name::clipping,
     "1 sample of this track passed full scale and was cut"},
    {"faster, pitch kept",
     [](ChainFacts &f) {
         f.transform.speed = {1.25, true};
     },
     stage_name::speed, "the speed is changed to 1.25x, pitch kept (time stretching)"},
    {"slower, pitch not kept",
     [](ChainFacts &f) {
         f.transform.speed = {0.8, false};
     },
     stage_name::speed, "the speed is changed to 0.80x, pitch goes along (resampling)"},
    {"ReplayGain",
     [](ChainFacts &f) {
         f.replayGainFactor = f.volume.gain = 0.5;
         f.replayGain = "track gain -6.02 dB";
     },
     stage_name::replayGain, "ReplayGain scales the samples by -6.02 dB (track gain -6.02 dB)"},
    {"volume beside ReplayGain",
     [](ChainFacts &f) {
         f.replayGainFactor = 0.5;
         f.volume.gain = 0.125;
     },
     stage_name::volume, "the volume stage scales the samples by -12.04 dB"},
    {"volume that undoes ReplayGain",
     [](ChainFacts &f) {
         f.replayGainFactor = 2.0;
         f.volume.gain = 1.0;
     },
     stage_name::volume, "the volume stage scales the samples by -6.02 dB"},
    {"a guard that acted",
     [](ChainFacts &f) {
         f.guard = true;
         f.guardedFrames = 12;
         f.guardGain = 0.5;
     },
     stage_name::guard, "has brought 12 frames of this track down, by up to 6.02 dB"},
    {"a guard that acted and is off by now", [](ChainFacts &f) { f.guardedFrames = 1; }, stage_name::guard,
     "has brought 1 frames of this track down"},
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
         f.stages.push_back({stage_name::effects, Proof::broken, "reverb"});
     },
     stage_name::effects, "reverb"},
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

TEST(VerifyTest, AnIdleStageSaysWhyItBreaksNothing)
{
    for (const KeptCase &c : keptCases) {
        ChainFacts facts = provenFacts();
        c.change(facts);
        EXPECT_EQ(lineOf(facts, c.item), "verify: " + std::string(c.item) + " ok -- " + c.reason) << c.name;
        EXPECT_THAT(verifyReport(facts).back(), StartsWith("verify: verdict BITPERFECT=1 | ")) << c.name;
        EXPECT_THAT(bitPerfectVerdict(facts), StartsWith("YES: ")) << c.name;
        EXPECT_THAT(chainVerdict(facts), StartsWith("clean (")) << c.name;
    }
}

TEST(VerifyTest, DirectDsdIsTouchedByNeitherSpeedNorGuardNorReplayGain)
{
    ChainFacts facts = dopFacts();
    facts.transform.speed.ratio = facts.speedWanted.ratio = 1.5;
    facts.guard = true;
    facts.replayGain = "not applied, since DSD goes out directly";
    EXPECT_EQ(lineOf(facts, stage_name::speed),
              "verify: speed ok -- 1.00x, the 1.50x that was asked for does not act on DSD that goes out "
              "directly");
    EXPECT_EQ(lineOf(facts, stage_name::guard),
              "verify: peak guard ok -- on, but it does not act on DSD that goes out directly");
    EXPECT_EQ(
        lineOf(facts, stage_name::replayGain),
        "verify: ReplayGain ok -- on, but it scales nothing (not applied, since DSD goes out directly)");
    EXPECT_THAT(verifyReport(facts).back(), StartsWith("verify: verdict BITPERFECT=1 | "));
    EXPECT_THAT(bitPerfectVerdict(facts), StartsWith("YES: "));
}

TEST(VerifyTest, TheReportNeverContradictsTheVerdict)
{
    std::vector<std::function<void(ChainFacts &)>> changes;
    for (const VerifyCase &c : cases)
        changes.push_back(c.change);
    for (const KeptCase &c : keptCases)
        changes.push_back(c.change);
    changes.push_back([](ChainFacts &f) { f.output.readBack = {}; });
    for (const auto &one : changes) {
        for (const auto &other : changes) {
            ChainFacts facts = provenFacts();
            one(facts);
            other(facts);
            const bool passed = verifyReport(facts).back().starts_with("verify: verdict BITPERFECT=1 ");
            const std::string bits = bitPerfectVerdict(facts);
            const std::string chain = chainVerdict(facts);
            EXPECT_EQ(bits.starts_with("YES: "), passed) << bits;
            EXPECT_TRUE(!passed || chain.starts_with("clean (")) << chain;
            // A clean path can only be spoilt by what came into it, or by gaps.
            const std::vector<StageItem> items = verifyItems(facts);
            const StageItem *objection = firstObjection(items);
            const bool spoilt = objection && (objection->name == stage_name::source ||
                                              objection->name == stage_name::underruns);
            EXPECT_TRUE(passed || spoilt || !chain.starts_with("clean (")) << bits << '\n' << chain;
        }
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
