// The record of what was chosen for the engine.
#include "output/engine_choices.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(EngineChoices, TheDefaultsAreWithinTheirRanges)
{
    EngineChoices defaults;
    defaults.channelDevices.resize(EngineChoices::mostChannels);
    EXPECT_EQ(withinRanges({}), defaults);
}

TEST(EngineChoices, WhatADamagedFileSaysIsBroughtIntoRange)
{
    EngineChoices damaged;
    damaged.mode = u"no such mode"_s;
    damaged.channelCount = 7;
    damaged.dop = u"maybe"_s;
    damaged.crossfadeSec = 400.;
    damaged.speedRatio = 0.1;
    damaged.denoiseTier = 9;
    damaged.pcmToDsdTargetHz = 44100;
    damaged.pcmToDsdTaps = -1;
    damaged.replayGainMode = 3;
    const EngineChoices mended = withinRanges(damaged);
    EXPECT_EQ(mended.mode, u"standard"_s);
    EXPECT_EQ(mended.channelCount, 2);
    EXPECT_EQ(mended.dop, u"auto"_s);
    EXPECT_EQ(mended.crossfadeSec, 12.);
    EXPECT_EQ(mended.speedRatio, 0.5);
    EXPECT_EQ(mended.denoiseTier, 3);
    EXPECT_EQ(mended.pcmToDsdTargetHz, 2822400);
    EXPECT_EQ(mended.pcmToDsdTaps, 0);
    EXPECT_EQ(mended.replayGainMode, 0);
}

TEST(EngineChoices, HarmonicsNeedATier)
{
    EngineChoices choices;
    choices.keepHarmonics = true;
    EXPECT_FALSE(withinRanges(choices).keepHarmonics);
    choices.denoiseTier = 1;
    EXPECT_TRUE(withinRanges(choices).keepHarmonics);
}

TEST(EngineChoices, TheCodesOfEachChoiceInTheirOrder)
{
    const auto codes = [](const QList<ChoiceItem> &items) {
        QStringList words;
        for (const ChoiceItem &item : items)
            words.append(item.code);
        return words.join(u'|');
    };
    EXPECT_EQ(codes(engineItems::modes()), u"standard|differential|btl|crossover|pairs"_s);
    EXPECT_EQ(codes(engineItems::layouts()), u"2|4|5|6|8"_s);
    EXPECT_EQ(codes(engineItems::rigs()), u"|direct|bs775|all-channel-stereo|custom"_s);
    EXPECT_EQ(codes(engineItems::dops()), u"auto|force|native"_s);
    EXPECT_EQ(codes(engineItems::outputPaths()), u"auto|exclusive|shared"_s);
    EXPECT_EQ(codes(engineItems::pcmBits()), u"16|24|32|float32"_s);
    EXPECT_EQ(codes(engineItems::pcmFilters()), u"fast|standard|best"_s);
    EXPECT_EQ(codes(engineItems::qualities()), u"fast|standard|best"_s);
    EXPECT_EQ(codes(engineItems::replayGains()), u"0|1|2"_s);
    EXPECT_EQ(codes(engineItems::dsdTargets()), u"2822400|5644800|11289600|22579200|45158400|90316800"_s);
    EXPECT_EQ(codes(engineItems::dsdTaps()), u"0|2048|4096|8192|16384|32768"_s);
}

TEST(EngineChoices, EveryCodeOccursOnce)
{
    for (const QList<ChoiceItem> &items :
         {engineItems::modes(), engineItems::layouts(), engineItems::rigs(), engineItems::dops(),
          engineItems::outputPaths(), engineItems::pcmBits(), engineItems::pcmFilters(),
          engineItems::qualities(), engineItems::replayGains(), engineItems::dsdTargets(),
          engineItems::dsdTaps()}) {
        QStringList codes;
        for (const ChoiceItem &item : items) {
            EXPECT_FALSE(codes.contains(item.code));
            EXPECT_FALSE(item.text.isEmpty());
            codes.append(item.code);
        }
    }
    EXPECT_EQ(engineItems::dsdTargets().last().text, u"DSD2048"_s);
    EXPECT_EQ(engineItems::dsdTargets().last().code, u"90316800"_s);
}
