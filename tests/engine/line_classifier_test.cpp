#include "engine/line_classifier.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace line_effect;

namespace {

/// An engine whose lines are read one after the other.
struct Engine
{
    EngineLineState state;
    LineContext context;

    LineEffects say(const QString &line, bool isStderr = false)
    {
        return classify(line, isStderr, state, context).effects;
    }
};

template<typename Effect>
std::vector<Effect> all(const LineEffects &effects)
{
    std::vector<Effect> found;
    for (const LineEffect &effect : effects) {
        if (const auto *one = std::get_if<Effect>(&effect))
            found.push_back(*one);
    }
    return found;
}

template<typename Effect>
bool has(const LineEffects &effects)
{
    return !all<Effect>(effects).empty();
}

/// Texts of the log lines, errors marked by a leading "!".
QStringList logged(const LineEffects &effects)
{
    QStringList lines;
    for (const LogLine &line : all<LogLine>(effects))
        lines.append(line.isError ? u'!' + line.text : line.text);
    return lines;
}

TEST(Classify, TextIsTrimmedAndFreeOfCarriageReturns)
{
    Engine engine;
    const EngineLine line = classify(u"  a\rb \r\n"_s, false, engine.state, engine.context);
    EXPECT_EQ(line.text, u"ab"_s);
    EXPECT_EQ(logged(line.effects), QStringList{u"ab"_s});
}

TEST(Classify, HostCopyGetsTheRawLineWithANewline)
{
    Engine engine;
    EXPECT_FALSE(has<WriteHostCopy>(engine.say(u"x"_s)));
    engine.context.hostCopyOpen = true;
    EXPECT_EQ(all<WriteHostCopy>(engine.say(u" LVL -1 -1\r\n"_s)).at(0).line, u" LVL -1 -1\r\n"_s);
    EXPECT_EQ(all<WriteHostCopy>(engine.say(u"x"_s)).at(0).line, u"x\n"_s);
    EXPECT_EQ(all<WriteHostCopy>(engine.say(u"x"_s, true)).size(), 1U);
}

TEST(Classify, LastLineIsTheLastThatIsNoTelemetry)
{
    Engine engine;
    engine.say(u" decoding \n"_s);
    for (const QString &line : {u"LVL -1 -1"_s, u"SPC none"_s, u"PG 1 1 1"_s, u"  "_s, u""_s})
        engine.say(line);
    EXPECT_EQ(engine.state.lastEngineLine, u"decoding"_s);
    engine.say(u"[player] PG 1 1 1"_s);
    EXPECT_EQ(engine.state.lastEngineLine, u"[player] PG 1 1 1"_s);
    engine.say(u"PG"_s);
    EXPECT_EQ(engine.state.lastEngineLine, u"PG"_s);
    engine.say(u"bad news"_s, true);
    EXPECT_EQ(engine.state.lastEngineLine, u"bad news"_s);
}

TEST(Classify, ChainBlockIsCollectedAlsoFromErrorsAndShownAtItsEnd)
{
    Engine engine;
    engine.say(u"SIGNAL CHAIN BEGIN"_s);
    engine.say(u"chain: clean"_s);
    engine.say(u"remark"_s, true);
    EXPECT_FALSE(has<ShowChainBlock>(engine.say(u"LVL -1 -1"_s)));
    EXPECT_TRUE(has<ShowChainBlock>(engine.say(u"SIGNAL CHAIN END"_s)));
    EXPECT_EQ(engine.state.chain.chainBuffer, (QStringList{u"chain: clean"_s, u"remark"_s, u"LVL -1 -1"_s}));
}

TEST(Classify, LabelsRedrawThePanelOnce)
{
    Engine engine;
    EXPECT_EQ(all<RedrawChainPanel>(engine.say(u"source format: FLAC volume: x"_s)).size(), 1U);
    EXPECT_EQ(engine.state.chain.chainLabels.size(), 1);
    EXPECT_FALSE(has<RedrawChainPanel>(engine.say(u"[x] volume: 3"_s)));
}

TEST(Telemetry, LevelsAndSpectraProveSoundAndOthersDoNot)
{
    Engine engine;
    EXPECT_TRUE(has<StopNoAudioTimer>(engine.say(u"LVL -1 -1"_s)));
    EXPECT_TRUE(has<StopNoAudioTimer>(engine.say(u"[player] SPC cfg"_s)));
    EXPECT_FALSE(has<StopNoAudioTimer>(engine.say(u"PG 1 1 1"_s)));
    EXPECT_FALSE(has<StopNoAudioTimer>(engine.say(u"WVF none"_s)));
}

TEST(Telemetry, FirstTenthAndEvery200thAreWrittenToTheFile)
{
    Engine engine;
    QStringList samples;
    for (int count = 1; count <= 400; ++count) {
        for (const LogFileOnly &sample : all<LogFileOnly>(engine.say(u"LVL -1 -%1"_s.arg(count))))
            samples.append(sample.text);
    }
    EXPECT_EQ(
        samples,
        (QStringList{u"遥测: LVL 第 1 条 —— LVL -1 -1"_s, u"遥测: LVL 第 10 条 —— LVL -1 -10"_s,
                     u"遥测: LVL 第 200 条 —— LVL -1 -200"_s, u"遥测: LVL 第 400 条 —— LVL -1 -400"_s}));
    EXPECT_EQ(engine.state.telemetryCount, (QMap<QString, qint64>{{u"LVL"_s, 400}}));
}

TEST(Telemetry, SamplesAreCutAt70CharactersAndNothingInThemIsAPlaceholder)
{
    Engine engine;
    const QString line = u"COVER %1 %3 "_s + QString(100, u'x');
    EXPECT_EQ(all<LogFileOnly>(engine.say(line)).at(0).text, u"遥测: COVER 第 1 条 —— "_s + line.left(70));
}

TEST(Telemetry, EachKeyHasItsOwnCount)
{
    Engine engine;
    for (const QString &line : {u"LVL 1"_s, u"PG 1"_s, u"SEG 1"_s, u"SRC 1"_s, u"SCAN 1"_s, u"SPC 1"_s,
                                u"WVF 1"_s, u"COVERS"_s, u"[player] PG 2"_s, u"12:00 LVL 1"_s, u"COVE"_s})
        engine.say(line);
    EXPECT_EQ(engine.state.telemetryCount, (QMap<QString, qint64>{{u"LVL"_s, 1},
                                                                  {u"PG"_s, 2},
                                                                  {u"SEG"_s, 1},
                                                                  {u"SRC"_s, 1},
                                                                  {u"SCAN"_s, 1},
                                                                  {u"SPC"_s, 1},
                                                                  {u"WVF"_s, 1},
                                                                  {u"COVER"_s, 1}}));
}

TEST(Classify, DecodeFilterIsReadFromErrorsToo)
{
    Engine engine;
    const auto effects = engine.say(u"[x]PDM2PCM filter DSD64 steep auto"_s, true);
    EXPECT_EQ(all<ShowDecodeFilter>(effects).at(0).filter, (DecodeFilterLine{u"steep"_s, true}));
    EXPECT_EQ(logged(effects), QStringList{u"![x]PDM2PCM filter DSD64 steep auto"_s});
}

TEST(Classify, ErrorOutputIsLoggedAndEnds)
{
    Engine engine;
    for (const QString &line :
         {u"PG 1 1 1"_s, u"WARN x"_s, u"DONE x"_s, u"0x8889000A"_s, u"output latency: 3"_s}) {
        const auto effects = engine.say(line, true);
        EXPECT_EQ(logged(effects), QStringList{u'!' + line});
        EXPECT_FALSE(has<ReceiveProgress>(effects));
        EXPECT_FALSE(has<FinishTrack>(effects));
        EXPECT_FALSE(has<NoteBusyDevice>(effects));
    }
    EXPECT_EQ(engine.state.outputLatencyMs, 0.);
}

TEST(Classify, WarningsAreShownAndGoOn)
{
    Engine engine;
    const auto effects = engine.say(u"x WARN 0x8889000A"_s);
    EXPECT_EQ(logged(effects), (QStringList{u"!⚠ x WARN 0x8889000A"_s, u"x WARN 0x8889000A"_s}));
    EXPECT_EQ(all<ShowStatus>(effects).at(0).text, u"⚠ x WARN 0x8889000A"_s);
    EXPECT_TRUE(has<NoteBusyDevice>(effects));
    EXPECT_FALSE(has<ShowStatus>(engine.say(u"WARNING"_s)));
}

TEST(Classify, ThePanelMayKeepALine)
{
    Engine engine;
    QStringList offered;
    engine.context.effectsPanelTakes = [&](const QString &text) {
        offered.append(text);
        return text.startsWith("fx "_L1);
    };
    EXPECT_TRUE(engine.say(u"fx output latency: 3"_s).empty());
    EXPECT_EQ(engine.state.outputLatencyMs, 0.);
    EXPECT_EQ(logged(engine.say(u"other"_s)), QStringList{u"other"_s});
    engine.say(u"an error"_s, true);
    EXPECT_EQ(offered, (QStringList{u"fx output latency: 3"_s, u"other"_s}));
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

TEST(Scope, FirstFrameOfATrackIsLogged)
{
    Engine engine;
    EXPECT_TRUE(logged(engine.say(u"WVF 44100 257 00"_s)).isEmpty());
    EXPECT_EQ(logged(engine.say(u"WVF 44100 1 00ff"_s)), QStringList{u"示波器：已收到第一帧（1 个桶）"_s});
    EXPECT_TRUE(logged(engine.say(u"WVF 44100 1 00ff"_s)).isEmpty());
    engine.state.resetForTrack();
    EXPECT_EQ(logged(engine.say(u"WVF 44100 1 00ff"_s)).size(), 1);
}

TEST(Scope, ChannelTwoIsTheFirstWhenThereIsNone)
{
    Engine engine;
    auto frame = all<ShowScope>(engine.say(u"12:00 WVF 44100 1 00ff"_s)).at(0).frame;
    EXPECT_EQ(frame.channel2, frame.channel1);
    frame = all<ShowScope>(engine.say(u"WVF 44100 1 00ff ff00"_s)).at(0).frame;
    EXPECT_NE(frame.channel2, frame.channel1);
    EXPECT_EQ(frame.channel2.first.size(), 1U);
}

TEST(Scope, NoneClearsAndSettingsDoNothing)
{
    Engine engine;
    EXPECT_TRUE(has<ClearScope>(engine.say(u"WVF none"_s)));
    for (const QString &line : {u"WVF cfg 44100 1 00ff"_s, u"WVF write x"_s, u"[x] WVF bad 0x8889000A"_s}) {
        const auto effects = engine.say(line);
        EXPECT_FALSE(has<ClearScope>(effects));
        EXPECT_FALSE(has<ShowScope>(effects));
        EXPECT_TRUE(logged(effects).isEmpty());
    }
    EXPECT_EQ(logged(engine.say(u"xWVF none"_s)), QStringList{u"xWVF none"_s});
}

TEST(Spectrum, NoneMeansDsdUnlessAllGoesToDsd)
{
    Engine engine;
    auto effects = engine.say(u"SPC none"_s);
    EXPECT_TRUE(has<ClearSpectrum>(effects));
    EXPECT_TRUE(has<ClearScope>(effects));
    EXPECT_FALSE(all<SetEffectsPath>(effects).at(0).pcmEffectsActive);
    EXPECT_TRUE(all<SetEffectsPath>(effects).at(0).dsdDirect);
    EXPECT_FALSE(has<ShowPanelStatus>(effects));

    engine.context.allToDsd = true;
    effects = engine.say(u"SPC none"_s);
    EXPECT_FALSE(all<SetEffectsPath>(effects).at(0).pcmEffectsActive);
    EXPECT_FALSE(all<SetEffectsPath>(effects).at(0).dsdDirect);
    EXPECT_EQ(all<ShowPanelStatus>(effects).at(0).text, u"DSP 由调制器执行"_s);
    EXPECT_EQ(logged(effects), QStringList{u"DSP 由调制器执行"_s});
    EXPECT_TRUE(logged(engine.say(u"SPC none"_s)).isEmpty()) << "said once";
    engine.say(u"SPC cfg"_s);
    EXPECT_EQ(logged(engine.say(u"SPC none"_s)).size(), 1);
}

TEST(Spectrum, WithoutAPanelOnlyTheViewsAreCleared)
{
    Engine engine;
    engine.context.hasEffectsPanel = false;
    engine.context.allToDsd = true;
    const auto effects = engine.say(u"SPC none"_s);
    EXPECT_TRUE(has<ClearSpectrum>(effects));
    EXPECT_FALSE(has<SetEffectsPath>(effects));
    EXPECT_TRUE(logged(effects).isEmpty());
    EXPECT_FALSE(has<SetEffectsPath>(engine.say(u"SPC 44100 1 ff"_s)));
}

TEST(Spectrum, StatusLinesActOnThePanelAndNotOnTheView)
{
    Engine engine;
    for (const QString &line : {u"SPC cfg 44100 64"_s, u"SPC write"_s, u"12:00 SPC cfg"_s}) {
        const auto effects = engine.say(line);
        EXPECT_TRUE(all<SetEffectsPath>(effects).at(0).pcmEffectsActive);
        EXPECT_FALSE(all<SetEffectsPath>(effects).at(0).dsdDirect);
        EXPECT_FALSE(has<ShowSpectrum>(effects));
        EXPECT_FALSE(has<ClearSpectrum>(effects));
    }
}

TEST(Spectrum, FramesGoToTheViewAfterTheLatency)
{
    Engine engine;
    auto effects = engine.say(u"SPC 44100 2 00ff"_s);
    EXPECT_EQ(all<ShowSpectrum>(effects).at(0).delayMs, 0.);
    EXPECT_EQ(all<ShowSpectrum>(effects).at(0).frame.bandCount, 2);
    EXPECT_TRUE(all<SetEffectsPath>(effects).at(0).pcmEffectsActive);
    engine.say(u"output latency: 90"_s);
    EXPECT_EQ(all<ShowSpectrum>(engine.say(u"SPC 44100 2 00ff"_s)).at(0).delayMs, 90.);
}

TEST(Spectrum, ABadFrameHasNoEffectOnViewAndPanel)
{
    Engine engine;
    for (const QString &line : {u"SPC 44100 129 "_s + QString(258, u'0'), u"SPC 44100 2 00f"_s, u"SPC ?"_s}) {
        const auto effects = engine.say(line);
        EXPECT_FALSE(has<ShowSpectrum>(effects));
        EXPECT_FALSE(has<SetEffectsPath>(effects));
        EXPECT_TRUE(logged(effects).isEmpty());
    }
}

TEST(Spectrum, ZonesGoToTheView)
{
    Engine engine;
    EXPECT_EQ(all<ShowSpectrumZones>(engine.say(u"SPC zones low=3 nyq=200"_s)).at(0).zones,
              (SpectrumZones{3, std::nullopt, 0}));
}

TEST(Progress, ReachesItsFormThroughThePlayersPrefix)
{
    Engine engine;
    const auto effects = engine.say(u"[player] PG 50 12.5 25"_s);
    EXPECT_EQ(all<ReceiveProgress>(effects).at(0).progress, (ProgressLine{50., 12.5, 25.}));
    EXPECT_EQ(logged(effects), QStringList{u"收到进度（PG）：已播放 12.5 s / 共 25.0 s"_s});
}

TEST(Progress, FirstOfATrackIsLoggedAndThreeWordsGiveNoTotal)
{
    Engine engine;
    auto effects = engine.say(u"PG 0 0.04"_s);
    EXPECT_EQ(all<ReceiveProgress>(effects).at(0).progress.totalSec, -1.);
    EXPECT_EQ(logged(effects), QStringList{u"收到进度（PG）：已播放 0.0 s / 共 未知 s"_s});
    EXPECT_TRUE(logged(engine.say(u"PG 1 1 100"_s)).isEmpty());
    engine.state.resetForTrack();
    EXPECT_EQ(logged(engine.say(u"PG 1 1 100"_s)).size(), 1);
}

TEST(Progress, BadOnesAreDroppedWithoutAWord)
{
    Engine engine;
    for (const QString &line : {u"PG 1"_s, u"[player] PG x y z"_s}) {
        const auto effects = engine.say(line);
        EXPECT_FALSE(has<ReceiveProgress>(effects));
        EXPECT_TRUE(logged(effects).isEmpty());
    }
    EXPECT_FALSE(engine.state.firstPgSeen);
}

TEST(Progress, PercentForm)
{
    Engine engine;
    const auto effects = engine.say(u"Progress: 37.5%"_s);
    EXPECT_EQ(all<UpdatePercent>(effects).at(0).percent, 37.5);
    EXPECT_TRUE(logged(effects).isEmpty());
    EXPECT_EQ(logged(engine.say(u"[player] Progress: 37.5%"_s)).size(), 1);
}

TEST(TrackForms, SegmentAndDoneStandAtTheStart)
{
    Engine engine;
    EXPECT_EQ(all<ChangeSegment>(engine.say(u"SEG 0 1 7"_s)).at(0).number, 7);
    EXPECT_EQ(all<FinishTrack>(engine.say(u"DONE a b.flac"_s)).at(0).file, u"a b.flac"_s);
    EXPECT_FALSE(has<FinishTrack>(engine.say(u"DONE"_s)));
    EXPECT_FALSE(has<FinishTrack>(engine.say(u"[player] DONE a.flac"_s)));
    EXPECT_FALSE(has<ChangeSegment>(engine.say(u"[player] SEG 0 1 7"_s)));
}

TEST(PlainText, TelemetryIsDroppedWithoutAnEntry)
{
    Engine engine;
    EXPECT_TRUE(logged(engine.say(u"LVL 0x8889000A"_s)).isEmpty());
    EXPECT_TRUE(logged(engine.say(u"[player] LVL -1 -1"_s)).isEmpty());
    EXPECT_FALSE(has<NoteBusyDevice>(engine.say(u"LVL 0x8889000A"_s)));
}

TEST(PlainText, RefusalsMarkTheDeviceAndGoToTheLog)
{
    Engine engine;
    for (const QString &line : {u"open: 0x8889000A"_s, u"[player] cannot get exclusive access"_s}) {
        const auto effects = engine.say(line);
        EXPECT_TRUE(has<NoteBusyDevice>(effects));
        EXPECT_FALSE(has<NoteMissingDevice>(effects));
        EXPECT_EQ(logged(effects), QStringList{line});
    }
    for (const QString &line :
         {u"endpoint not found"_s, u"x is not among the active render endpoints"_s, u"no device 'hw:9'"_s}) {
        const auto effects = engine.say(line);
        EXPECT_TRUE(has<NoteMissingDevice>(effects));
        EXPECT_FALSE(has<NoteBusyDevice>(effects));
        EXPECT_EQ(logged(effects), QStringList{line});
    }
}

TEST(PlainText, OpenedGoesBeforeTheRefusals)
{
    Engine engine;
    const auto effects = engine.say(u"OPENED device 'hw:0' after 0x8889000A"_s);
    EXPECT_TRUE(has<ForgetDeviceTrouble>(effects));
    EXPECT_FALSE(has<NoteBusyDevice>(effects));
    EXPECT_FALSE(has<NoteMissingDevice>(effects));
    EXPECT_EQ(logged(effects).size(), 1);
}

TEST(PlainText, EffectsStandInTheOrderOfTheSteps)
{
    Engine engine;
    engine.context.hostCopyOpen = true;
    const auto effects = engine.say(u"chain: converted WARN output latency: 7 volume: unity 0x8889000A"_s);
    ASSERT_EQ(effects.size(), 9U);
    EXPECT_TRUE(std::holds_alternative<WriteHostCopy>(effects[0]));
    EXPECT_TRUE(std::holds_alternative<RedrawChainPanel>(effects[1]));
    EXPECT_TRUE(std::holds_alternative<LogLine>(effects[2]));
    EXPECT_TRUE(std::holds_alternative<ShowStatus>(effects[3]));
    EXPECT_TRUE(std::holds_alternative<LogLine>(effects[4]));
    EXPECT_TRUE(std::holds_alternative<ShowEffectiveBits>(effects[5]));
    EXPECT_TRUE(std::holds_alternative<ShowChainText>(effects[6]));
    EXPECT_TRUE(std::holds_alternative<NoteBusyDevice>(effects[7]));
    EXPECT_TRUE(std::holds_alternative<LogLine>(effects[8]));
}

} // namespace
