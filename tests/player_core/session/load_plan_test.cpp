#include "player_core/session/load_plan.h"

#include <gtest/gtest.h>

namespace kelp_core::test {

namespace {

LoadFacts near(double remainingSec)
{
    LoadFacts facts;
    facts.playing = true;
    facts.totalSec = 200;
    facts.positionSec = 200 - remainingSec;
    return facts;
}

} // namespace

TEST(LoadPlanTest, StartsWhenNothingPlays)
{
    LoadFacts facts = near(1);
    facts.playing = false;
    facts.hasPosition = true;
    EXPECT_EQ(planLoad(facts), LoadAction::start);
}

TEST(LoadPlanTest, IsAPreloadOnlyWithinTheGaplessWindow)
{
    EXPECT_EQ(planLoad(near(1.5)), LoadAction::preload);
    EXPECT_EQ(planLoad(near(1.75)), LoadAction::preload);
    EXPECT_EQ(planLoad(near(1.76)), LoadAction::switchNow);
    EXPECT_EQ(planLoad(near(0.02)), LoadAction::preload);
    EXPECT_EQ(planLoad(near(-0.5)), LoadAction::preload) << "a length that was told too short";
}

TEST(LoadPlanTest, TheCrossfadeTimeIsTheWindowWhenThereIsOne)
{
    LoadFacts facts = near(8.2);
    facts.crossfadeSec = 8;
    EXPECT_EQ(planLoad(facts), LoadAction::preload);
    facts.crossfadeSec = 0.5;
    EXPECT_EQ(planLoad(facts), LoadAction::switchNow);
    facts.gapless = false;
    facts.positionSec = 199.5;
    EXPECT_EQ(planLoad(facts), LoadAction::preload);
}

TEST(LoadPlanTest, WhileALoopRepeatsThereIsNothingToPreloadFor)
{
    LoadFacts facts = near(1);
    facts.looping = true;
    EXPECT_EQ(planLoad(facts), LoadAction::switchNow);
}

TEST(LoadPlanTest, TheWayOfTheLinesTakesMoreMusicAtAHigherSpeed)
{
    LoadFacts facts = near(2.2);
    EXPECT_EQ(planLoad(facts), LoadAction::switchNow);
    facts.speed = 3.0;
    EXPECT_EQ(planLoad(facts), LoadAction::preload);
}

TEST(LoadPlanTest, WithoutAWindowEveryLoadIsAChoice)
{
    LoadFacts facts = near(0.1);
    facts.gapless = false;
    EXPECT_EQ(planLoad(facts), LoadAction::switchNow);
}

TEST(LoadPlanTest, APositionAPauseAnUnknownLengthOrASecondLoadSwitches)
{
    LoadFacts facts = near(1);
    facts.hasPosition = true;
    EXPECT_EQ(planLoad(facts), LoadAction::switchNow);
    facts = near(1);
    facts.paused = true;
    EXPECT_EQ(planLoad(facts), LoadAction::switchNow);
    facts = near(1);
    facts.totalSec = -1;
    EXPECT_EQ(planLoad(facts), LoadAction::switchNow);
    facts = near(1);
    facts.preloaded = true;
    EXPECT_EQ(planLoad(facts), LoadAction::switchNow);
}

namespace {

StreamFormat pcm(int rateHz, int channels, int depthBits, bool isFloat = false)
{
    return {SignalKind::pcm, rateHz, channels, depthBits, isFloat};
}

WireFormat wire(SampleEncoding encoding, int validBits)
{
    return {Carrier::pcm, encoding, 44100, 2, validBits};
}

} // namespace

TEST(JoinTest, RateChannelsAndKindMustAgree)
{
    const WireFormat w = wire(SampleEncoding::s32, 24);
    EXPECT_EQ(whyNotJoin({pcm(44100, 2, 16), w, pcm(44100, 2, 16)}), "");
    EXPECT_EQ(whyNotJoin({pcm(44100, 2, 16), w, pcm(96000, 2, 16)}),
              "the rate differs (96000 Hz after 44100 Hz)");
    EXPECT_EQ(whyNotJoin({pcm(44100, 2, 16), w, pcm(44100, 1, 16)}),
              "the number of channels differs (1 after 2)");
    const StreamFormat dsd{SignalKind::dsd, 2822400, 2, 1, false};
    EXPECT_NE(whyNotJoin({pcm(44100, 2, 16), w, dsd}), "");
    EXPECT_NE(whyNotJoin({dsd, w, pcm(44100, 2, 16)}), "");
    EXPECT_EQ(whyNotJoin({dsd, w, dsd}), "");
}

TEST(JoinTest, ThePlacesOfTheChannelsMustAgree)
{
    const WireFormat w = wire(SampleEncoding::s32, 24);
    StreamFormat quad = pcm(44100, 4, 16);
    StreamFormat centred = quad;
    quad.speakers = 0x33;
    centred.speakers = 0x107;
    EXPECT_EQ(whyNotJoin({quad, w, quad}), "");
    EXPECT_EQ(whyNotJoin({quad, w, centred}), "the places of the channels differ");
}

TEST(JoinTest, DepthMustFitTheOpenedDevice)
{
    EXPECT_EQ(whyNotJoin({pcm(44100, 2, 24), wire(SampleEncoding::s32, 24), pcm(44100, 2, 16)}), "");
    EXPECT_EQ(whyNotJoin({pcm(44100, 2, 16), wire(SampleEncoding::s32, 24), pcm(44100, 2, 24)}), "");
    EXPECT_EQ(whyNotJoin({pcm(44100, 2, 16), wire(SampleEncoding::s16, 16), pcm(44100, 2, 24)}),
              "the depth differs (24 bit after 16 bit)");
    EXPECT_EQ(whyNotJoin({pcm(44100, 2, 24), wire(SampleEncoding::s16, 16), pcm(44100, 2, 24)}), "")
        << "no better format was to be had for the first one";
    EXPECT_NE(whyNotJoin({pcm(44100, 2, 16), wire(SampleEncoding::s32, 32), pcm(44100, 2, 32, true)}), "");
    EXPECT_EQ(whyNotJoin({pcm(44100, 2, 16), wire(SampleEncoding::f32, 24), pcm(44100, 2, 24, true)}), "");
}

} // namespace kelp_core::test
