#include "player_core/session/chain_report.h"

#include "player_core/session/output_lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace kelp_core::test {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

ChainFacts cleanFacts()
{
    ChainFacts f;
    f.path = "/music/a.flac";
    f.source.format = {SignalKind::pcm, 44100, 2, 16, false};
    f.source.description = "FLAC, 16 bit, 44100 Hz, 2 channels";
    f.output.wire = {Carrier::pcm, SampleEncoding::s16, 44100, 2, 16};
    f.output.device = "hw:1,0";
    f.output.backend = "ALSA hardware";
    f.output.exclusive = true;
    f.output.pcmRateHz = 44100;
    f.output.readBack = {true, "kernel", 44100, "S16_LE", 2};
    f.transform.from = f.source.format;
    f.transform.toRateHz = 44100;
    f.transform.toChannels = 2;
    f.volume.sourceBits = 16;
    f.volume.deviceBits = 16;
    f.latencyMs = 92.34;
    return f;
}

struct ChainCase
{
    const char *name;
    std::function<void(ChainFacts &)> change;
    const char *chain;
    const char *bitPerfect;
};

const ChainCase cases[] = {
    {"clean", [](ChainFacts &) {}, "clean (", "YES: "},
    {"not read back", [](ChainFacts &f) { f.output.readBack = {}; }, "unknown (nothing of ours",
     "not known: "},
    {"mixer", [](ChainFacts &f) { f.output.mixer = true; }, "OS mixer (", "NO: the sound server's mixer"},
    {"mixer at another rate",
     [](ChainFacts &f) {
         f.output.mixer = true;
         f.output.readBack.rateHz = 48000;
     },
     "OS mixer AND format (the device runs at 48000 Hz", "NO: the sound server's mixer"},
    {"device at another rate", [](ChainFacts &f) { f.output.readBack.rateHz = 48000; },
     "converted (the device runs at 48000 Hz", "NO: the device runs at 48000 Hz"},
    {"device in another format", [](ChainFacts &f) { f.output.readBack.format = "S24_LE"; },
     "converted (the device runs at 44100 Hz S24_LE", "NO: the device runs at 44100 Hz S24_LE"},
    {"known conversion", [](ChainFacts &f) { f.output.converts = true; }, "converted (rate or format",
     "NO: rate or format"},
    {"volume", [](ChainFacts &f) { f.volume.gain = 0.5; },
     "converted (the volume stage scales the samples by -6.02",
     "NO: the volume stage scales the samples by -6.02 dB."},
    {"volume on DoP",
     [](ChainFacts &f) {
         f.volume.gain = 0.5;
         f.volume.place = VolumePlace::dop;
     },
     "clean (", "YES: "},
    {"resampling comes before volume",
     [](ChainFacts &f) {
         f.volume.gain = 0.5;
         f.transform.toRateHz = 48000;
     },
     "converted (the rate is converted from 44100 Hz to 48000 Hz", "NO: the rate is converted"},
    {"depth",
     [](ChainFacts &f) {
         f.dithered = true;
         f.source.format.depthBits = 24;
     },
     "converted (the device takes 16 bits", "NO: the device takes 16 bits"},
    {"channels", [](ChainFacts &f) { f.transform.toChannels = 6; }, "converted (2 channels are mapped to 6",
     "NO: 2 channels are mapped to 6"},
    {"decoded DSD",
     [](ChainFacts &f) {
         f.source.format = {SignalKind::dsd, 2822400, 2, 1, false};
         f.transform.from = f.source.format;
         f.transform.toRateHz = 176400;
     },
     "converted (DSD64 is decoded to PCM at 176400 Hz", "NO: DSD64 is decoded"},
    {"speed",
     [](ChainFacts &f) {
         f.transform.speed.ratio = 1.5;
         f.volume.gain = 0.5;
     },
     "converted (the speed is changed to 1.50x", "NO: the speed is changed to 1.50x"},
    {"a speed as good as the original's", [](ChainFacts &f) { f.transform.speed.ratio = 1.0004; }, "clean (",
     "YES: "},
    {"a speed that DSD cannot have",
     [](ChainFacts &f) {
         f.transform.from = {SignalKind::dsd, 2822400, 2, 1, false};
         f.transform.toDsd = true;
         f.transform.speed.ratio = f.speedWanted.ratio = 1.5;
         f.volume.place = VolumePlace::dop;
     },
     "clean (", "YES: "},
    {"ReplayGain before volume",
     [](ChainFacts &f) {
         f.replayGainFactor = 0.5;
         f.volume.gain = 0.25;
     },
     "converted (ReplayGain scales the samples by -6.02 dB",
     "NO: ReplayGain scales the samples by -6.02 dB."},
    {"an idle guard", [](ChainFacts &f) { f.guard = true; }, "clean (", "YES: "},
    {"a guard that acts",
     [](ChainFacts &f) {
         f.guard = true;
         f.guardedFrames = 12;
         f.guardGain = 0.5;
     },
     "converted (the peak guard has brought 12 frames of this track down, by up to 6.02 dB",
     "NO: the peak guard has brought 12 frames"},
    {"clipping", [](ChainFacts &f) { f.clippedSamples = 3; }, "converted (3 samples of this track passed",
     "NO: 3 samples of this track passed full scale and were cut."},
    {"a loop", [](ChainFacts &f) { f.looping = true; }, "clean (", "YES: "},
    {"fade", [](ChainFacts &f) { f.fading = true; }, "converted (a fade", "NO: a fade"},
};

} // namespace

TEST(ChainReportTest, NamesTheFirstStageThatChangesBits)
{
    for (const ChainCase &c : cases) {
        ChainFacts facts = cleanFacts();
        c.change(facts);
        EXPECT_THAT(chainVerdict(facts), StartsWith(c.chain)) << c.name;
        EXPECT_THAT(bitPerfectVerdict(facts), StartsWith(c.bitPerfect)) << c.name;
    }
}

TEST(ChainReportTest, NeverSaysNoWhereItMeansYes)
{
    EXPECT_THAT(bitPerfectVerdict(cleanFacts()), Not(HasSubstr("NO")));
    ChainFacts unknown = cleanFacts();
    unknown.output.readBack = {};
    EXPECT_THAT(bitPerfectVerdict(unknown), Not(HasSubstr("NO")));
    EXPECT_THAT(chainVerdict(unknown), Not(HasSubstr("clean")));
}

TEST(ChainReportTest, ALossySourceIsNoBitPerfectOneHoweverCleanThePath)
{
    ChainFacts facts = cleanFacts();
    facts.source.lossless = false;
    EXPECT_THAT(bitPerfectVerdict(facts), StartsWith("NO: "));
    EXPECT_THAT(bitPerfectVerdict(facts), HasSubstr("the coding is lossy"));
    EXPECT_THAT(chainVerdict(facts), StartsWith("clean"));
}

TEST(ChainReportTest, HasTheTwelveLabelsInOrder)
{
    const std::vector<std::string> lines = chainReport(cleanFacts());
    const char *labels[] = {"SIGNAL CHAIN BEGIN",
                            "source: ",
                            "source format: ",
                            "device requested: ",
                            "output backend: ",
                            "output format: ",
                            "output latency: ",
                            "dsp: ",
                            "speed: ",
                            "volume: ",
                            "bit-perfect: ",
                            "chain: ",
                            "underruns: ",
                            "SIGNAL CHAIN END"};
    ASSERT_EQ(lines.size(), std::size(labels));
    for (size_t i = 0; i < lines.size(); ++i)
        EXPECT_THAT(lines[i], StartsWith(labels[i]));
    EXPECT_EQ(lines[6], "output latency: 92.3 ms");
    EXPECT_EQ(lines[7], "dsp: none (samples pass through untouched)");
    EXPECT_EQ(lines[12], "underruns: 0");
}

TEST(ChainReportTest, TheDspLineIsActiveExactlyWhenSomethingIs)
{
    ChainFacts facts = cleanFacts();
    EXPECT_THAT(chainReport(facts)[7], Not(HasSubstr("ACTIVE")));
    facts.transform.toRateHz = 96000;
    EXPECT_THAT(chainReport(facts)[7], HasSubstr("ACTIVE: resampling to 96000 Hz"));
}

TEST(ChainReportTest, TheSpeedLineTellsWhatIsDoneAndWhatCannotBe)
{
    ChainFacts facts = cleanFacts();
    EXPECT_EQ(speedLine(facts), "speed: 1.00x (no stage in the path)");
    facts.transform.speed = facts.speedWanted = {1.5, true};
    EXPECT_EQ(speedLine(facts), "speed: 1.50x, pitch kept (time stretching)");
    facts.transform.speed.pitchKept = false;
    EXPECT_EQ(speedLine(facts), "speed: 1.50x, pitch goes along (resampling)");
    facts.transform.toDsd = true;
    EXPECT_EQ(speedLine(facts),
              "speed: 1.00x (DSD goes out directly and cannot be stretched; 1.50x was asked for)");
}

TEST(ChainReportTest, WhatIsOnButDoesNothingIsSaidWithoutBeingActive)
{
    ChainFacts facts = cleanFacts();
    facts.guard = true;
    facts.looping = true;
    facts.replayGain = "this track has no tag for it, so its level stays";
    EXPECT_EQ(
        chainReport(facts)[7],
        "dsp: none (samples pass through untouched); ReplayGain: this track has no tag for it, so its level "
        "stays; the peak guard is on and has not been needed; an A/B loop repeats a part of the track");
}

TEST(ChainReportTest, ThePathCannotBreakTheBlock)
{
    ChainFacts facts = cleanFacts();
    facts.path = "/a\nchain: clean";
    EXPECT_EQ(chainReport(facts)[1], "source: /a?chain: clean");
}

TEST(OutputLinesTest, Progress)
{
    EXPECT_EQ(progressLine(30, 120), "PG 25.00 30.000 120.000");
    EXPECT_EQ(progressLine(121, 120), "PG 100.00 120.000 120.000");
    EXPECT_EQ(progressLine(-0.1, 120), "PG 0.00 0.000 120.000");
    EXPECT_EQ(progressLine(12.3456, -1), "PG 0.00 12.346");
    EXPECT_EQ(progressLine(0, 0), "PG 100.00 0.000 0.000");
}

TEST(OutputLinesTest, SourceLevelsAndTheRest)
{
    SourceFacts facts;
    facts.format = {SignalKind::dsd, 5644800, 2, 1, false};
    facts.formatWord = "dsd";
    facts.dst = true;
    facts.totalFrames = 705600 * 3;
    EXPECT_EQ(sourceLine(facts), "SRC 5644800 1 2 dsd 1 3.000");
    facts.totalFrames = -1;
    EXPECT_EQ(sourceLine(facts), "SRC 5644800 1 2 dsd 1 0.000");
    EXPECT_EQ(levelLine({-3.0, -120.0}), "LVL -3.00 -120.00");
    EXPECT_EQ(segmentLine(1.5, 2.25, 12), "SEG 1.500 2.250 12");
    EXPECT_EQ(scanLine(150, 3, 2), "SCAN 100.0 3.0 2.0");
    EXPECT_EQ(doneLine("/a\rb"), "DONE /a?b");
    EXPECT_EQ(failedLine("no such file", "/a"), "FAILED no such file: /a");
    EXPECT_EQ(pdmFilterLine(22579200, "best", false), "PDM2PCM filter DSD512 best auto");
    EXPECT_EQ(dsdName(3072000), "DSD64");
}

} // namespace kelp_core::test
