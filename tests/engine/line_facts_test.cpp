// Facts that a line may hold anywhere.
#include "engine/line_support.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace line_effect;
using namespace line_support;

namespace {

TEST(Classify, DecodeFilterIsReadFromErrorsToo)
{
    Engine engine;
    const auto effects = engine.say(u"[x]PDM2PCM filter DSD64 steep auto"_s, true);
    EXPECT_EQ(all<ShowDecodeFilter>(effects).at(0).filter, (DecodeFilterLine{u"steep"_s, true}));
    EXPECT_EQ(logged(effects), QStringList{u"![x]PDM2PCM filter DSD64 steep auto"_s});
}

TEST(Classify, ScanEndsWhetherItParsesOrNot)
{
    Engine engine;
    const auto effects = engine.say(u"SCAN 12.5 30 240"_s);
    EXPECT_EQ(all<ShowScan>(effects).at(0).scan, (ScanLine{12.5, 30., 240.}));
    EXPECT_TRUE(logged(effects).isEmpty());
    EXPECT_TRUE(logged(engine.say(u"SCAN 0x8889000A"_s)).isEmpty());
}

TEST(Classify, SourceIsRememberedAndGoesOn)
{
    Engine engine;
    const auto effects = engine.say(u"[x]SRC 96000 24 2 flac 0 61.25"_s);
    ASSERT_EQ(all<ShowSource>(effects).size(), 1U);
    EXPECT_EQ(all<ShowSource>(effects)[0].labels, sourceLabels(*engine.state.sourceInfo));
    EXPECT_EQ(engine.state.sourceInfo->rateHz, 96000);
    EXPECT_EQ(logged(effects).size(), 1);
    engine.say(u"SRC nonsense"_s);
    EXPECT_EQ(engine.state.sourceInfo->rateHz, 96000);
}

TEST(Classify, WithoutASourceLabelNoSource)
{
    Engine engine;
    engine.context.hasSourceLabel = false;
    EXPECT_FALSE(has<ShowSource>(engine.say(u"SRC 96000 24 2 flac 0 61.25"_s)));
    EXPECT_FALSE(engine.state.sourceInfo);
}

TEST(Levels, BehindATimeStampTheyCountAndBehindALetterTheyDoNot)
{
    Engine engine;
    EXPECT_EQ(all<ShowLevels>(engine.say(u"12:00:00.5 LVL -1.5 -2"_s)).at(0).levels, (LevelLine{-1.5, -2.}));
    EXPECT_FALSE(has<ShowLevels>(engine.say(u"12:00:00.5xLVL -1.5 -2"_s)));
}

TEST(Levels, AreDelayedByTheLatencyFromHalfAMillisecondOn)
{
    Engine engine;
    const auto delay = [&] { return all<ShowLevels>(engine.say(u"LVL -1 -1"_s)).at(0).delayMs; };
    EXPECT_EQ(delay(), 0.);
    engine.say(u"output latency: 0.4"_s);
    EXPECT_EQ(delay(), 0.);
    engine.say(u"output latency: 0.5"_s);
    EXPECT_EQ(delay(), 0.5);
    engine.say(u"output latency: 4999.9"_s);
    EXPECT_EQ(delay(), 4999.9);
    engine.say(u"output latency: 5000.0"_s);
    EXPECT_EQ(delay(), 4999.9) << "5000 ms is refused";
}

TEST(Levels, ALineWithBothUsesTheFormerLatency)
{
    Engine engine;
    const auto effects = engine.say(u"LVL -1 -1 output latency: 20"_s);
    EXPECT_EQ(all<ShowLevels>(effects).at(0).delayMs, 0.);
    EXPECT_EQ(engine.state.outputLatencyMs, 20.);
    EXPECT_EQ(logged(effects), QStringList{u"电平/频谱已按输出延时对齐：20.0 ms"_s});
}

TEST(Levels, AnEngineThatMeasuresNoLatencyAnyMoreIsShownAtOnce)
{
    Engine engine;
    engine.say(u"output latency: 90"_s);
    engine.say(u"output latency: 0"_s);
    EXPECT_EQ(all<ShowLevels>(engine.say(u"LVL -1 -1"_s)).at(0).delayMs, 0.);
}

TEST(Denoise, StatusTexts)
{
    Engine engine;
    const auto status = [&](const QString &line) {
        const auto found = all<ShowPanelStatus>(engine.say(line));
        return found.empty() ? QString() : found.at(0).text;
    };
    EXPECT_EQ(status(u"[fx] denoise ready"_s), u"噪声样本就绪"_s);
    EXPECT_EQ(status(u"denoise inactive here"_s), u"本曲无噪声，直接通过"_s);
    EXPECT_EQ(status(u"denoise bootstrap"_s), u"正在学习噪声（约 1 秒）"_s);
    EXPECT_EQ(status(u"denoise scan"_s), u"正在学习噪声样本"_s);
    EXPECT_EQ(status(u"denoise: learning"_s), u"正在学习噪声样本"_s);
    EXPECT_EQ(status(u"denoise learning"_s), QString());
    engine.context.hasEffectsPanel = false;
    EXPECT_EQ(status(u"denoise ready"_s), QString());
}

TEST(Classify, VerifyLinesEnd)
{
    Engine engine;
    const auto effects = engine.say(u"12:00 verify: volume: unity ok -- fine"_s);
    EXPECT_EQ(all<ReceiveVerify>(effects).at(0).text, u"verify: volume: unity ok -- fine"_s);
    EXPECT_FALSE(has<ShowEffectiveBits>(effects));
    EXPECT_TRUE(logged(effects).isEmpty());
    EXPECT_FALSE(has<ReceiveVerify>(engine.say(u"xverify: y"_s)));
}

TEST(Volume, LampTakesTheLineAndTheDevicesDepthStays)
{
    Engine engine;
    auto shown = all<ShowEffectiveBits>(engine.say(u"[x] volume: on a 24 bit device: unity"_s)).at(0);
    EXPECT_EQ(shown.result.bits, 24);
    EXPECT_EQ(shown.toolTip, shown.result.text + u"\n[x] volume: on a 24 bit device: unity"_s);
    shown = all<ShowEffectiveBits>(engine.say(u"volume: unity"_s)).at(0);
    EXPECT_EQ(shown.result.bits, 24);
    EXPECT_FALSE(has<ShowEffectiveBits>(engine.say(u"volume: 80 on a 16 bit device"_s)));
    EXPECT_EQ(engine.state.deviceBits, 16);
    engine.context.hasBitsLed = false;
    EXPECT_FALSE(has<ShowEffectiveBits>(engine.say(u"volume: unity"_s)));
}

TEST(Chain, LampTakesTheLine)
{
    Engine engine;
    const auto shown = all<ShowChainText>(engine.say(u"chain: OS mixer (x)"_s)).at(0);
    EXPECT_TRUE(shown.result.warn);
    EXPECT_EQ(shown.toolTip, u"chain: OS mixer (x)"_s);
    EXPECT_FALSE(has<ShowChainText>(engine.say(u"SIGNAL CHAIN: x"_s)));
    engine.context.hasChainLed = false;
    EXPECT_FALSE(has<ShowChainText>(engine.say(u"chain: OS mixer (x)"_s)));
}

} // namespace
