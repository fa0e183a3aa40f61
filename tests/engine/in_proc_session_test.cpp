#include "engine/in_proc_session.h"

#include "engine/session_support.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace session_support;

namespace {

QStringList args(const QString &mode, const QString &operand = {})
{
    return {u"-test"_s, mode, operand};
}

TEST(InProcSession, TellsWhatItIs)
{
    InProcSession session(engineLibrary(), {});
    EXPECT_TRUE(session.isInProcess());
    EXPECT_TRUE(session.isQueuedWrite());
    EXPECT_FALSE(session.canBeKilled());
    EXPECT_FALSE(session.isRunning());
    session.terminate();
    session.kill();
    session.close();
    session.poll();
    EXPECT_TRUE(session.waitFinished(0));
    EXPECT_EQ(session.stop(0), -1);
}

TEST(InProcSession, CountsBytesAndDeliversLines)
{
    InProcSession session(engineLibrary(), {});
    Heard heard(session);
    bool flushed = false;
    EXPECT_EQ(session.writeLine(u"pause"_s, flushed), -1);
    EXPECT_TRUE(flushed);
    ASSERT_EQ(session.start(u"KelpPlayer"_s, args(u"echo"_s)), 0);
    EXPECT_TRUE(session.isRunning());
    EXPECT_EQ(session.writeLine(u"load /音乐/a.flac"_s, flushed), 20);
    EXPECT_TRUE(flushed);
    EXPECT_TRUE(eventually([&] { return heard.hasLine(u"[echo] load /音乐/a.flac\n"_s); }));
    EXPECT_EQ(session.stop(patienceMs), 3);
    EXPECT_TRUE(heard.ends.isEmpty()) << "the end is reported by poll()";
    session.poll();
    session.poll();
    ASSERT_EQ(heard.ends.size(), 1);
    EXPECT_EQ(heard.ends[0].code, 3);
    EXPECT_FALSE(heard.ends[0].crashed);
}

TEST(InProcSession, AnEntryThatReturnsAtOnceIsReportedByTheNextPoll)
{
    InProcSession session(engineLibrary(), {});
    Heard heard(session);
    ASSERT_EQ(session.start(u"KelpPlayer"_s, args(u"exit"_s, u"7"_s)), 0);
    ASSERT_TRUE(eventually([&] { return !session.isRunning(); }));
    session.poll();
    ASSERT_EQ(heard.ends.size(), 1);
    EXPECT_EQ(heard.ends[0].code, 7);
    EXPECT_TRUE(heard.hasLine(u"[inproc] engine entry returned rc=7 (args=9)\n"_s));
}

TEST(InProcSession, ReportsOneEndForEachStart)
{
    InProcSession session(engineLibrary(), {});
    Heard heard(session);
    for (int i = 1; i <= 5; ++i) {
        ASSERT_EQ(session.start(u"KelpPlayer"_s, args(u"exit"_s, QString::number(i))), 0);
        ASSERT_TRUE(eventuallyPolling(session, [&] { return heard.ends.size() == i; }));
        session.poll();
        EXPECT_EQ(heard.ends.size(), i);
        EXPECT_EQ(heard.ends.last().code, i);
    }
}

TEST(InProcSession, ASecondStartIsRefusedAndTheFirstStillReportsItsEnd)
{
    InProcSession session(engineLibrary(), {});
    Heard heard(session);
    ASSERT_EQ(session.start(u"KelpPlayer"_s, args(u"echo"_s)), 0);
    EXPECT_EQ(session.start(u"KelpPlayer"_s, args(u"echo"_s)), -2);
    EXPECT_EQ(session.stop(patienceMs), 3);
    session.poll();
    EXPECT_EQ(heard.ends.size(), 1);
}

TEST(InProcSession, AThrowingEngineEndsWithMinusOneWithoutACrash)
{
    InProcSession session(engineLibrary(), {});
    Heard heard(session);
    ASSERT_EQ(session.start(u"KelpPlayer"_s, args(u"throw"_s, u"std"_s)), 0);
    ASSERT_TRUE(eventuallyPolling(session, [&] { return !heard.ends.isEmpty(); }));
    EXPECT_EQ(heard.ends[0].code, -1);
    EXPECT_FALSE(heard.ends[0].crashed);
    EXPECT_TRUE(heard.hasLine(u"[inproc] the engine threw an exception: a thrown sentence\n"_s));
}

TEST(InProcSession, AHangingEngineTimesOut)
{
    const QTemporaryDir scratch;
    InProcSession session(engineLibrary(), {});
    Heard heard(session);
    ASSERT_EQ(session.start(u"KelpPlayer"_s, args(u"hang"_s, scratch.filePath(u"release"_s))), 0);
    EXPECT_FALSE(session.waitFinished(20));
    EXPECT_EQ(session.stop(20), -1000);
    session.poll();
    EXPECT_TRUE(heard.ends.isEmpty());
    QFile release(scratch.filePath(u"release"_s));
    ASSERT_TRUE(release.open(QIODevice::WriteOnly));
    EXPECT_TRUE(session.waitFinished(patienceMs));
    session.poll();
    EXPECT_EQ(heard.ends.size(), 1);
}

TEST(InProcSession, GarbageReachesTheSinkAsText)
{
    InProcSession session(engineLibrary(), {});
    Heard heard(session);
    ASSERT_EQ(session.start(u"KelpPlayer"_s, args(u"garbage"_s)), 0);
    ASSERT_TRUE(eventuallyPolling(session, [&] { return !heard.ends.isEmpty(); }));
    const QString nul = u"nul "_s + QChar(u'\0') + u" inside\n"_s;
    EXPECT_TRUE(heard.hasLine(nul));
    EXPECT_TRUE(heard.hasLine(u"carriage\rreturn\r\n"_s));
    EXPECT_TRUE(heard.hasLine(u"a tail without an end"_s));
    EXPECT_EQ(heard.lines().join(QString()).count(u'x'), 70000);
}

TEST(InProcSession, NamesTheStageForTheLengthOfAWrite)
{
    QString stage = u"before"_s;
    QStringList history;
    const auto exchange = [&](const QString &label) {
        history.append(label);
        return std::exchange(stage, label);
    };
    InProcSession session(engineLibrary(), exchange);
    ASSERT_EQ(session.start(u"KelpPlayer"_s, args(u"echo"_s)), 0);
    bool flushed = false;
    session.writeLine(u"load a b"_s, flushed);
    session.writeLine(QString(50, u'w') + u" x"_s, flushed);
    EXPECT_EQ(history, (QStringList{u"sendCmd(load)"_s, u"before"_s, u"sendCmd("_s + QString(40, u'w') + u')',
                                    u"before"_s}));
    EXPECT_EQ(session.stop(patienceMs), 3);
}

TEST(InProcSession, ARefusedLineCountsZeroAndTellsWhy)
{
    const QTemporaryDir scratch;
    InProcSession session(engineLibrary(), {});
    ASSERT_EQ(session.start(u"KelpPlayer"_s, args(u"deaf"_s, scratch.filePath(u"wake"_s))), 0);
    bool flushed = false;
    for (int i = 0; i < 4096; ++i)
        ASSERT_EQ(session.writeLine(u"v"_s, flushed), 2);
    EXPECT_EQ(session.writeLine(u"v"_s, flushed), 0);
    EXPECT_FALSE(session.lastError().isEmpty());
    EXPECT_EQ(session.writeLine(u"stop"_s, flushed), 5);
    QFile wake(scratch.filePath(u"wake"_s));
    ASSERT_TRUE(wake.open(QIODevice::WriteOnly));
    EXPECT_TRUE(session.waitFinished(patienceMs));
}

TEST(InProcSession, WithoutALibraryTheStartIsRefusedWithASentence)
{
    kelp::EngineLibrary missing({u"/nowhere/libengine.so"_s});
    InProcSession session(missing, {});
    EXPECT_EQ(session.start(u"KelpPlayer"_s, {}), -1);
    EXPECT_TRUE(session.lastError().contains(u"/nowhere/libengine.so"_s));
    EXPECT_FALSE(session.isRunning());
}

} // namespace
