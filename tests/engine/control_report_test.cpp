#include "engine/control_report.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

ControlSendFacts sent(int bytes)
{
    ControlSendFacts facts;
    facts.line = u"load /a"_s;
    facts.hasSession = true;
    facts.bytes = bytes;
    return facts;
}

} // namespace

TEST(ControlReport, WithoutASessionTheLineIsDropped)
{
    ControlSendFacts facts = sent(-1);
    facts.hasSession = false;
    const ControlSendReport report = controlSendReport(facts);
    EXPECT_FALSE(report.taken);
    EXPECT_FALSE(report.counts);
    EXPECT_TRUE(report.logText.endsWith(u"load /a -> noproc"_s)) << qPrintable(report.logText);
}

TEST(ControlReport, ASessionThatHasEndedReadsLikeNone)
{
    ControlSendFacts facts = sent(-1);
    facts.queues = true;
    ControlSendReport report = controlSendReport(facts);
    EXPECT_FALSE(report.taken);
    EXPECT_FALSE(report.counts);
    EXPECT_TRUE(report.logText.endsWith(u"load /a -> noproc"_s)) << qPrintable(report.logText);
    facts.sessionError = u"torn down"_s;
    report = controlSendReport(facts);
    EXPECT_TRUE(report.logText.endsWith(u"load /a -> noproc [torn down]"_s)) << qPrintable(report.logText);
}

TEST(ControlReport, AnErrorThatIsOverIsNotRepeatedBehindALineThatWasTaken)
{
    ControlSendFacts facts = sent(8);
    facts.sessionError = u"of an earlier line"_s;
    EXPECT_TRUE(controlSendReport(facts).logText.endsWith(u" -> 8B"_s));
}

TEST(ControlReport, AQueueingSessionJoinsTheAccount)
{
    ControlSendFacts facts = sent(8);
    facts.queues = true;
    EXPECT_TRUE(controlSendReport(facts).taken);
    EXPECT_TRUE(controlSendReport(facts).counts);
    EXPECT_TRUE(controlSendReport(facts).logText.endsWith(u" -> queued 8B"_s));
    facts.bytes = 0;
    facts.sessionError = u"control queue closed"_s;
    EXPECT_FALSE(controlSendReport(facts).taken);
    EXPECT_TRUE(controlSendReport(facts).counts);
    EXPECT_TRUE(controlSendReport(facts).logText.endsWith(u" -> queued 0B [control queue closed]"_s));
}

TEST(ControlReport, AChildProcessTellsWhetherTheLineHasLeft)
{
    ControlSendFacts facts = sent(8);
    EXPECT_TRUE(controlSendReport(facts).logText.endsWith(u" -> 8B"_s));
    EXPECT_FALSE(controlSendReport(facts).counts);
    facts.flushed = false;
    EXPECT_TRUE(controlSendReport(facts).logText.endsWith(u" -> 8B(not flushed)"_s));
}

TEST(ControlReport, OnlyASlowLineIsCalledOut)
{
    ControlSendFacts facts = sent(8);
    facts.tookMs = 50;
    EXPECT_TRUE(controlSendReport(facts).slowComplaint.isEmpty());
    facts.tookMs = 51;
    EXPECT_TRUE(controlSendReport(facts).slowComplaint.contains(u"51"_s));
}

TEST(ControlReport, EffectsAreRememberedByTheirName)
{
    EXPECT_EQ(effectNameOf(u"fx eq on"_s), u"eq"_s);
    EXPECT_EQ(effectNameOf(u"fx  tone 1 2"_s), u"tone"_s);
    EXPECT_EQ(effectNameOf(u"fx"_s), std::nullopt);
    EXPECT_EQ(effectNameOf(u"fx "_s), std::nullopt);
    EXPECT_EQ(effectNameOf(u"load fx eq"_s), std::nullopt);
}

TEST(ControlReport, LinesThatStartSoundArmTheWatchdog)
{
    for (const QString &line :
         {u"play"_s, u"play now"_s, u"load /a"_s, u"loadat 1 /a"_s, u"load-cue 1 /a"_s, u"resume"_s})
        EXPECT_TRUE(expectsSound(line)) << qPrintable(line);
    for (const QString &line : {u"pause"_s, u"stop"_s, u"vol 3"_s})
        EXPECT_FALSE(expectsSound(line)) << qPrintable(line);
}
