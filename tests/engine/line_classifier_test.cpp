// What is kept of every line, and the order of the steps.
#include "engine/line_support.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace line_effect;
using namespace line_support;

namespace {

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

struct Unreadable
{
    QString line;
    bool ends; ///< the form takes its line whether or not it parses
};

TEST(Classify, ALineThatDoesNotParseIsDroppedAndStillRemembered)
{
    const Unreadable lines[] = {{u"SCAN a b c"_s, true},
                                {u"SRC 44100 16 2 wav"_s, false},
                                {u"x LVL -1"_s, false},
                                {u"x output latency: soon"_s, false},
                                {u"WVF 44100 300 00"_s, true},
                                {u"x SPC 44100 0 00"_s, true},
                                {u"[player] PG half 1 2"_s, true},
                                {u"SEG 0 1 last"_s, true},
                                {u"Progress: half"_s, true}};
    for (const auto &[line, ends] : lines) {
        Engine engine;
        const auto effects = engine.say(line);
        EXPECT_EQ(engine.state.lastEngineLine, line);
        EXPECT_EQ(logged(effects), ends ? QStringList() : QStringList{line});
        EXPECT_EQ(effects.size(), all<LogFileOnly>(effects).size() + (ends ? 0U : 1U)) << qPrintable(line);
    }
}

TEST(Classify, AnEmptyLineGoesToTheHostCopyAndNowhereElseButTheLog)
{
    Engine engine;
    engine.context.hostCopyOpen = true;
    const auto effects = engine.say(u" \r\n"_s);
    ASSERT_EQ(effects.size(), 2U);
    EXPECT_EQ(all<WriteHostCopy>(effects).at(0).line, u" \r\n"_s);
    EXPECT_TRUE(engine.state.lastEngineLine.isEmpty());
}

TEST(Classify, ATrackStartResetsItsOwnFlagsAndNothingElse)
{
    Engine engine;
    for (const QString &line :
         {u"SRC 96000 24 2 flac 0 61"_s, u"PG 1 1 61"_s, u"WVF 44100 1 00ff"_s, u"output latency: 20"_s,
          u"volume: on a 24 bit device"_s, u"SIGNAL CHAIN BEGIN"_s, u"chain: clean"_s})
        engine.say(line);
    EXPECT_TRUE(engine.state.firstPgSeen);
    EXPECT_TRUE(engine.state.firstScopeFrameSeen);
    engine.state.resetForTrack();
    EXPECT_FALSE(engine.state.firstPgSeen);
    EXPECT_FALSE(engine.state.firstScopeFrameSeen);
    EXPECT_EQ(engine.state.telemetryCount.value(u"PG"_s), 1);
    EXPECT_EQ(engine.state.chain.chainBuffer, QStringList{u"chain: clean"_s});
    EXPECT_EQ(engine.state.chain.chainLabels.value(u"chain:"_s), u"clean"_s);
    EXPECT_EQ(engine.state.lastEngineLine, u"chain: clean"_s);
    EXPECT_EQ(engine.state.outputLatencyMs, 20.);
    EXPECT_EQ(engine.state.deviceBits, 24);
}

TEST(Classify, ErrorOutputIsCountedAsTelemetryBeforeItEnds)
{
    Engine engine;
    const auto effects = engine.say(u"LVL -1 -1"_s, true);
    EXPECT_TRUE(has<StopNoAudioTimer>(effects));
    EXPECT_FALSE(has<ShowLevels>(effects));
    EXPECT_EQ(engine.state.telemetryCount.value(u"LVL"_s), 1);
    EXPECT_EQ(logged(effects), QStringList{u"!LVL -1 -1"_s});
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

TEST(TrackForms, SegmentAndDoneStandAtTheStart)
{
    Engine engine;
    EXPECT_EQ(all<ChangeSegment>(engine.say(u"SEG 0 1 7"_s)).at(0).number, 7);
    EXPECT_EQ(all<FinishTrack>(engine.say(u"DONE a b.flac"_s)).at(0).file, u"a b.flac"_s);
    EXPECT_FALSE(has<FinishTrack>(engine.say(u"DONE"_s)));
    const LineEffects failed = engine.say(u"[player] FAILED cannot decode: /m/a.flac"_s);
    ASSERT_EQ(all<FailTrack>(failed).size(), 1);
    EXPECT_EQ(all<FailTrack>(failed).at(0).text, u"FAILED cannot decode: /m/a.flac"_s);
    EXPECT_TRUE(all<LogLine>(failed).at(0).isError);
    EXPECT_FALSE(has<FailTrack>(engine.say(u"Nothing FAILED here"_s)));
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
