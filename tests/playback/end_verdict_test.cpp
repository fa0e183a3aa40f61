#include "playback/end_verdict.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Kind = SessionEndVerdict::Kind;

namespace {

SessionEndFacts endedAt(double percent, int exitCode)
{
    SessionEndFacts facts;
    facts.progressPercent = percent;
    facts.exitCode = exitCode;
    facts.audioHasStarted = true;
    facts.currentRow = 2;
    facts.nowMs = 100000;
    return facts;
}

SessionEndFacts refusedExclusive()
{
    SessionEndFacts facts = endedAt(0., 1);
    facts.inProcess = true;
    facts.audioHasStarted = false;
    facts.outputPathExclusive = true;
    return facts;
}

} // namespace

struct CodeCase
{
    double percent;
    int exitCode;
    Kind kind;
};

class EndVerdictByCode : public testing::TestWithParam<CodeCase>
{
};

TEST_P(EndVerdictByCode, Decides)
{
    EXPECT_EQ(sessionEndVerdict(endedAt(GetParam().percent, GetParam().exitCode)).kind, GetParam().kind);
}

INSTANTIATE_TEST_SUITE_P(Codes, EndVerdictByCode,
                         testing::Values(CodeCase{50., 3, Kind::Stopped}, CodeCase{96., 1, Kind::Finished},
                                         CodeCase{94.9, 0, Kind::Failed}, CodeCase{95., 0, Kind::Finished},
                                         CodeCase{94.9, 1, Kind::Failed}, CodeCase{100., 0, Kind::Finished},
                                         CodeCase{0., -1, Kind::Failed}, CodeCase{99., 3, Kind::Stopped}));

TEST(EndVerdict, EachCodeAtEachPositionInBothKinds)
{
    for (const bool inProcess : {false, true}) {
        for (const bool crashed : {false, true}) {
            for (const double percent : {0., 1., 50., 94.9, 94.999, 95., 96., 100.}) {
                for (const int code : {0, 1, 3, -1, 139}) {
                    SessionEndFacts facts = endedAt(percent, code);
                    facts.inProcess = inProcess;
                    facts.crashed = crashed;
                    const Kind expected = code == 3       ? Kind::Stopped
                                          : percent < 95. ? Kind::Failed
                                                          : Kind::Finished;
                    const SessionEndVerdict verdict = sessionEndVerdict(facts);
                    EXPECT_EQ(verdict.kind, expected) << percent << " %, code " << code;
                    EXPECT_EQ(verdict.lines.first().isError, expected == Kind::Failed);
                }
            }
        }
    }
}

TEST(EndVerdict, ACrashWithCodeZeroIsNoCleanEnd)
{
    SessionEndFacts facts = endedAt(50., 0);
    facts.crashed = true;
    EXPECT_TRUE(sessionEndVerdict(facts).lines.first().text.contains(u"播放器异常退出"_s));
    facts.crashed = false;
    EXPECT_TRUE(sessionEndVerdict(facts).lines.first().text.contains(u"未到结尾就结束（50.0%）"_s));
}

TEST(EndVerdict, ACrashTellsTheEnginesLastLine)
{
    SessionEndFacts facts = endedAt(10., 139);
    facts.crashed = true;
    facts.lastEngineLine = QString(500, u'x');
    const SessionEndVerdict verdict = sessionEndVerdict(facts);
    EXPECT_EQ(verdict.kind, Kind::Failed);
    ASSERT_EQ(verdict.lines.size(), 2);
    EXPECT_TRUE(verdict.lines.first().text.contains(u"139"_s));
    EXPECT_EQ(verdict.lines.last().text.count(u'x'), 200);
    EXPECT_TRUE(verdict.lines.last().isError);
}

TEST(EndVerdict, AnEarlyCleanEndNamesThePlace)
{
    const SessionEndVerdict verdict = sessionEndVerdict(endedAt(12.34, 0));
    ASSERT_EQ(verdict.lines.size(), 1);
    EXPECT_TRUE(verdict.lines.first().text.contains(u"12.3%"_s)) << qPrintable(verdict.lines.first().text);
}

TEST(EndVerdict, TheUsersStopWinsOverTheCode)
{
    SessionEndFacts facts = endedAt(50., 1);
    facts.userStopped = true;
    EXPECT_EQ(sessionEndVerdict(facts).kind, Kind::Stopped);
}

TEST(EndVerdict, AStaleEndIsIgnoredForItsTime)
{
    SessionEndFacts facts = endedAt(0., 1);
    facts.ignoreDoneUntilMs = facts.nowMs + 1;
    EXPECT_EQ(sessionEndVerdict(facts).kind, Kind::Ignored);
    EXPECT_FALSE(sessionEndVerdict(facts).ignoreTimePassed);
    facts.ignoreDoneUntilMs = facts.nowMs;
    EXPECT_EQ(sessionEndVerdict(facts).kind, Kind::Failed);
    EXPECT_TRUE(sessionEndVerdict(facts).ignoreTimePassed);
}

TEST(EndVerdict, TheEndOfAReplacedSessionIsIgnored)
{
    SessionEndFacts facts = endedAt(50., 3);
    facts.supersededSession = true;
    EXPECT_EQ(sessionEndVerdict(facts).kind, Kind::Ignored);
}

TEST(EndVerdict, ARefusedExclusiveDeviceGetsOneSecondChanceARow)
{
    SessionEndFacts facts = refusedExclusive();
    EXPECT_EQ(sessionEndVerdict(facts).kind, Kind::ExclusiveFallback);
    facts.exclusiveFallbackRow = facts.currentRow;
    EXPECT_EQ(sessionEndVerdict(facts).kind, Kind::Failed);
    facts.currentRow = 3;
    EXPECT_EQ(sessionEndVerdict(facts).kind, Kind::ExclusiveFallback);
}

TEST(EndVerdict, NoSecondChanceForOtherReasons)
{
    for (const auto spoil : {+[](SessionEndFacts &f) { f.inProcess = false; },
                             +[](SessionEndFacts &f) { f.audioHasStarted = true; },
                             +[](SessionEndFacts &f) { f.userStopped = true; },
                             +[](SessionEndFacts &f) { f.restartPending = true; },
                             +[](SessionEndFacts &f) { f.sessionClosing = true; },
                             +[](SessionEndFacts &f) { f.outputPathExclusive = false; }}) {
        SessionEndFacts facts = refusedExclusive();
        spoil(facts);
        EXPECT_NE(sessionEndVerdict(facts).kind, Kind::ExclusiveFallback);
    }
}

TEST(EndVerdict, ClosingAndRestartGoOnTheirWay)
{
    SessionEndFacts facts = endedAt(50., 1);
    facts.restartPending = true;
    EXPECT_EQ(sessionEndVerdict(facts).kind, Kind::Restart);
    facts.sessionClosing = true;
    EXPECT_EQ(sessionEndVerdict(facts).kind, Kind::Closed);
}

TEST(EndVerdict, AFailureIsOfTheRowWhosePathItNames)
{
    PlaylistEntry file;
    file.path = QStringLiteral("/m/a: b.flac");
    EXPECT_TRUE(namesRow(u"FAILED cannot decode: /m/a: b.flac", file));
    EXPECT_TRUE(namesRow(u"FAILED cannot decode: a: b.flac", file));
    EXPECT_FALSE(namesRow(u"FAILED cannot decode: /m/c.flac", file));
    EXPECT_FALSE(namesRow(u"FAILED cannot decode: /m/a: b.flac.cue", file));
    PlaylistEntry track;
    track.path = QStringLiteral("/m/album.wav");
    track.cuePath = QStringLiteral("/m/album.cue");
    EXPECT_TRUE(namesRow(u"FAILED no such track: /m/album.cue", track));
    EXPECT_FALSE(namesRow(u"FAILED : ", PlaylistEntry()));
}
