#include "player_core/session/options.h"

#include <gtest/gtest.h>

namespace kelp_core::test {

namespace {

ParsedCommand parse(std::vector<std::string> args)
{
    return parseCommandLine(args);
}

} // namespace

TEST(OptionsTest, TakesAWholeHostCommandLine)
{
    const ParsedCommand command = parse({"-stream",
                                         "-parent-pid",
                                         "4711",
                                         "-spectrum",
                                         "on",
                                         "-scope",
                                         "off",
                                         "-start",
                                         "12.500",
                                         "-dev",
                                         "hw:1,0",
                                         "-dop",
                                         "force",
                                         "-output-path",
                                         "exclusive",
                                         "-resample",
                                         "-src-quality",
                                         "best",
                                         "-stream",
                                         "-crossfade",
                                         "2.5",
                                         "-gapless",
                                         "off",
                                         "-pcm",
                                         "-pcm",
                                         "-pcm-bits",
                                         "float32",
                                         "-pcm-filter",
                                         "fast",
                                         "-vol",
                                         "40",
                                         "-inproc-host",
                                         "-inproc-ctl",
                                         "18446744073709551615",
                                         "-inproc-ctl-fn",
                                         "4096"});
    ASSERT_EQ(command.kind, CommandKind::session) << command.error;
    const SessionOptions &o = command.options;
    EXPECT_TRUE(o.stream);
    EXPECT_EQ(o.parentPid, 4711);
    EXPECT_TRUE(o.staysUp());
    EXPECT_TRUE(o.spectrum);
    EXPECT_FALSE(o.scope);
    EXPECT_DOUBLE_EQ(o.startSec, 12.5);
    EXPECT_EQ(o.device, "hw:1,0");
    EXPECT_EQ(o.dop, DopPolicy::force);
    EXPECT_EQ(o.outputPath, PathPolicy::exclusive);
    EXPECT_TRUE(o.resample);
    EXPECT_EQ(o.srcQuality, ResampleQuality::best);
    EXPECT_DOUBLE_EQ(o.crossfadeSec, 2.5);
    EXPECT_FALSE(o.gapless);
    EXPECT_TRUE(o.forcePcm);
    EXPECT_TRUE(o.pcmFloat);
    EXPECT_TRUE(o.pcmBitsChosen);
    EXPECT_EQ(o.pcmFilter, PdmFilter::fast);
    EXPECT_TRUE(o.pcmFilterChosen);
    EXPECT_EQ(o.volume, 40);
    EXPECT_EQ(o.inprocQueue, 18446744073709551615ull);
    EXPECT_EQ(o.inprocReadFn, 4096u);
    EXPECT_TRUE(o.warnings.empty());
}

TEST(OptionsTest, DefaultsAreThoseOfAnUntouchedHost)
{
    const SessionOptions o = parse({"-i", "/music/a b.flac"}).options;
    EXPECT_EQ(o.path, "/music/a b.flac");
    EXPECT_TRUE(o.device.empty());
    EXPECT_EQ(o.volume, 100);
    EXPECT_TRUE(o.gapless);
    EXPECT_EQ(o.pcmBits, 24);
    EXPECT_FALSE(o.pcmBitsChosen);
    EXPECT_EQ(o.pcmFilter, PdmFilter::standard);
    EXPECT_FALSE(o.staysUp());
}

struct FlagCase
{
    std::vector<std::string> args;
    size_t warnings;
};

class NeutralOrMissing : public testing::TestWithParam<FlagCase>
{
};

TEST_P(NeutralOrMissing, WarnsOnlyWhenItWouldBeHeard)
{
    std::vector<std::string> args{"-stream"};
    args.insert(args.end(), GetParam().args.begin(), GetParam().args.end());
    const ParsedCommand command = parse(args);
    ASSERT_EQ(command.kind, CommandKind::session) << command.error;
    EXPECT_EQ(command.options.warnings.size(), GetParam().warnings) << args.back();
}

INSTANTIATE_TEST_SUITE_P(
    Flags, NeutralOrMissing,
    testing::Values(FlagCase{{"-mode", "standard"}, 0}, FlagCase{{"-mode", "btl", "-devs", "a;b"}, 1},
                    FlagCase{{"-mode", "crossover", "-devs", "a;b", "-xo", "2000"}, 1},
                    FlagCase{{"-rig", "direct"}, 0}, FlagCase{{"-rig", "bs775"}, 1},
                    FlagCase{{"-dsp-plugins-on"}, 1}, FlagCase{{"-prefetch", "on"}, 0},
                    FlagCase{{"-peak-guard", "on"}, 0}, FlagCase{{"-peak-guard", "off"}, 0},
                    FlagCase{{"-denoise", "strong", "-keep-harmonics", "on"}, 1},
                    FlagCase{{"-replaygain", "album"}, 0},
                    FlagCase{{"-speed", "1.00", "-pitch-lock", "on"}, 0},
                    FlagCase{{"-speed", "1.25", "-pitch-lock", "off"}, 0},
                    FlagCase{{"-pcm2dsd", "-pcm2dsd-target", "2822400", "-pcm2dsd-taps", "2048"}, 1},
                    FlagCase{{"-ext-decoder", "/x.so"}, 1}, FlagCase{{"-dop", "asio"}, 1}));

class BadCommand : public testing::TestWithParam<std::vector<std::string>>
{
};

TEST_P(BadCommand, IsRefusedWithASentence)
{
    const ParsedCommand command = parse(GetParam());
    EXPECT_EQ(command.kind, CommandKind::bad);
    EXPECT_FALSE(command.error.empty());
    EXPECT_EQ(command.error.back(), '.');
}

INSTANTIATE_TEST_SUITE_P(Lines, BadCommand,
                         testing::Values(std::vector<std::string>{}, std::vector<std::string>{"-vol", "50"},
                                         std::vector<std::string>{"-i"}, std::vector<std::string>{"-i", ""},
                                         std::vector<std::string>{"-stream", "-vol", "101"},
                                         std::vector<std::string>{"-stream", "-vol", "5x"},
                                         std::vector<std::string>{"-stream", "-start", "1,5"},
                                         std::vector<std::string>{"-stream", "-start", "nan"},
                                         std::vector<std::string>{"-stream", "-crossfade", "-1"},
                                         std::vector<std::string>{"-stream", "-gapless", "maybe"},
                                         std::vector<std::string>{"-stream", "-dop", "perhaps"},
                                         std::vector<std::string>{"-stream", "-output-path", "loud"},
                                         std::vector<std::string>{"-stream", "-pcm-bits", "20"},
                                         std::vector<std::string>{"-stream", "-parent-pid", "0"},
                                         std::vector<std::string>{"-stream", "-inproc-ctl", "12"},
                                         std::vector<std::string>{"-stream", "-speed", "0.49"},
                                         std::vector<std::string>{"-stream", "-speed", "3.01"},
                                         std::vector<std::string>{"-stream", "-pitch-lock", "yes"},
                                         std::vector<std::string>{"-stream", "-peak-guard", "maybe"},
                                         std::vector<std::string>{"-stream", "-replaygain", "loud"},
                                         std::vector<std::string>{"-stream", "-track", "-1"},
                                         std::vector<std::string>{"-stream", "--volume", "1"},
                                         std::vector<std::string>{"file.flac"}));

TEST(OptionsTest, TheSourceGivenLastCounts)
{
    const SessionOptions o = parse({"-i", "/a.flac", "-cue", "/b.cue", "-track", "3"}).options;
    EXPECT_TRUE(o.path.empty());
    EXPECT_EQ(o.cuePath, "/b.cue");
    EXPECT_EQ(o.track, 3);
}

TEST(OptionsTest, LevelAndSpeedAreTaken)
{
    const SessionOptions plain = parse({"-stream"}).options;
    EXPECT_FALSE(plain.peakGuard);
    EXPECT_EQ(plain.replayGain, ReplayGainMode::off);
    EXPECT_FALSE(plain.speed.active());
    EXPECT_TRUE(plain.speed.pitchKept);
    const SessionOptions o = parse({"-stream", "-peak-guard", "on", "-replaygain", "album", "-speed", "1.25",
                                    "-pitch-lock", "off"})
                                 .options;
    EXPECT_TRUE(o.peakGuard);
    EXPECT_EQ(o.replayGain, ReplayGainMode::album);
    EXPECT_EQ(o.speed, (SpeedPlan{1.25, false}));
    EXPECT_EQ(parse({"-stream", "-replaygain", "track"}).options.replayGain, ReplayGainMode::track);
}

TEST(OptionsTest, HelpAndVersionNeedNoSource)
{
    EXPECT_EQ(parse({"--help"}).kind, CommandKind::help);
    EXPECT_EQ(parse({"-h"}).kind, CommandKind::help);
    EXPECT_EQ(parse({"--version"}).kind, CommandKind::version);
}

} // namespace kelp_core::test
