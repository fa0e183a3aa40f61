// What `verify` says in sessions at another speed, with a loop, under the peak guard, with ReplayGain.
#include "player_core/session/fake_world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

namespace kelp_core::test {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

class VerifyTuningTest : public testing::Test
{
protected:
    void begin(const std::vector<std::string> &more = {})
    {
        world.device.clocked = true;
        world.device.readBackKnown = true;
        std::vector<std::string> args{"-stream", "-parent-pid", std::to_string(::getpid())};
        args.insert(args.end(), more.begin(), more.end());
        world.start(args);
        world.send("load /a");
        EXPECT_THAT(world.waitLine("SIGNAL CHAIN END"), Not(IsEmpty()));
    }

    /// The answer in a stage's line and the verdict, of a new check. The stage's line begins so.
    void expectCheck(const std::string &stage, const std::string &verdict)
    {
        if (HasFailure())
            return; // what failed has already waited long enough
        world.send("verify");
        EXPECT_THAT(world.waitLine("verify: " + stage.substr(0, stage.find(" --"))),
                    HasSubstr(stage.substr(stage.find(" --"))));
        EXPECT_THAT(
            world.waitLine("verify: verdict"),
            AnyOf(StartsWith("verify: verdict BITPERFECT=" + verdict), HasSubstr("the device ran dry")));
    }

    /// What a new chain block says on the same.
    void expectReport(const std::string &bits, const std::string &chain)
    {
        if (HasFailure())
            return;
        world.send("report");
        EXPECT_THAT(world.waitLine("bit-perfect: "),
                    AnyOf(StartsWith("bit-perfect: " + bits), HasSubstr("the device ran dry")));
        EXPECT_THAT(world.waitLine("chain: "), StartsWith("chain: " + chain));
    }

    void stop()
    {
        world.send("stop");
        EXPECT_EQ(world.wait(), exit_code::stopped);
        if (!world.lines("WARN The device ran dry").empty())
            GTEST_SKIP() << "this machine is too slow at the moment: gaps are found beside what is asked for";
    }

    FakeWorld world;
};

} // namespace

TEST_F(VerifyTuningTest, AnotherSpeedBreaksTheVerdictUntilItIsTheOriginalsAgain)
{
    world.tracks["/a"].frames = 44'100 * 60;
    begin();
    expectCheck("speed ok -- 1.00x", "1");
    world.send("speed 1.50");
    EXPECT_THAT(world.waitLine("speed: 1.5"), Not(IsEmpty()));
    expectCheck("speed FAIL -- the speed is changed to 1.50x, pitch kept", "0 | speed: ");
    expectReport("NO: the speed is changed to 1.50x", "converted (the speed is changed to 1.50x");
    world.send("speed 1.00");
    EXPECT_THAT(world.waitLine("speed: 1.0"), Not(IsEmpty()));
    expectCheck("speed ok -- 1.00x", "1");
    expectReport("YES: ", "clean (");
    stop();
}

TEST_F(VerifyTuningTest, ALoopIsSaidAndBreaksNothing)
{
    world.tracks["/a"].frames = 44'100 * 60;
    begin();
    world.send("ab 0.100 20.000");
    EXPECT_THAT(world.waitLine("A/B loop: "), Not(IsEmpty()));
    expectCheck("A/B loop ok -- a part of the track is repeated", "1 | all 17 stages");
    expectReport("YES: ", "clean (");
    world.send("ab off");
    expectCheck("clipping ok -- ", "1 | all 16 stages");
    stop();
}

TEST_F(VerifyTuningTest, AGuardIsHarmlessUntilItActs)
{
    world.tracks["/a"].frames = 44'100 * 60;
    world.tracks["/b"].frames = 44'100 * 60;
    world.tracks["/b"].format.isFloat = true;
    world.tracks["/b"].format.depthBits = 32;
    world.tracks["/b"].scale = 1.5;
    begin({"-peak-guard", "on"});
    expectCheck("peak guard ok -- on, and no sample of this track has needed it", "1");
    expectReport("YES: ", "clean (");
    world.send("load /b");
    EXPECT_THAT(world.waitLine("dsp: ACTIVE: the peak guard"), Not(IsEmpty()));
    expectCheck("peak guard FAIL -- the peak guard has brought", "0 | peak guard: ");
    expectReport("NO: the peak guard has brought", "converted (the peak guard has brought");
    world.send("guard off");
    // What it did to this track is done, and from now on the samples are cut.
    expectCheck("peak guard FAIL -- the peak guard has brought", "0 | peak guard: ");
    stop();
}

TEST_F(VerifyTuningTest, ReplayGainBreaksTheVerdictOnlyWhereItScales)
{
    world.tracks["/a"].frames = 44'100 * 60;
    world.tracks["/b"].frames = 44'100 * 60;
    world.tracks["/b"].gains.trackGainDb = -6.0;
    begin({"-replaygain", "track"});
    expectCheck("ReplayGain ok -- on, but it scales nothing (this track has no tag", "1");
    expectReport("YES: ", "clean (");
    world.send("load /b");
    EXPECT_THAT(world.waitLine("ReplayGain: track gain"), Not(IsEmpty()));
    EXPECT_THAT(world.waitLine("SIGNAL CHAIN END"), Not(IsEmpty()));
    expectCheck("ReplayGain FAIL -- ReplayGain scales the samples by -6.00 dB (track gain -6.00 dB)",
                "0 | ReplayGain: ");
    expectReport("NO: ReplayGain scales", "converted (ReplayGain scales");
    world.send("vol 50");
    expectCheck("volume FAIL -- the volume stage scales the samples by -18.06 dB", "0 | ReplayGain: ");
    stop();
}

TEST_F(VerifyTuningTest, DirectDsdPassesWhateverIsWishedOfIt)
{
    world.device.dsdCarrier = Carrier::dop;
    world.tracks["/a"].format = {SignalKind::dsd, 2822400, 2, 1, false};
    world.tracks["/a"].frames = 352'800 * 20;
    world.tracks["/a"].gains.trackGainDb = -6.0;
    begin({"-speed", "1.50", "-peak-guard", "on", "-replaygain", "track"});
    expectCheck("speed ok -- 1.00x, the 1.50x that was asked for does not act", "1");
    expectCheck("ReplayGain ok -- on, but it scales nothing (not applied", "1");
    expectCheck("peak guard ok -- on, but it does not act on DSD", "1");
    expectReport("YES: ", "clean (");
    stop();
}

} // namespace kelp_core::test
