#include "engine/proc_session.h"

#include "engine/session_support.h"

#include "tests/support/process_count.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <thread>

using namespace Qt::StringLiterals;
using namespace session_support;

namespace {

class ProcSessionTest : public testing::Test
{
protected:
    int start(const QString &mode, const QString &operand = {})
    {
        return session.start(engineProgramPath(), {u"-test"_s, mode, operand});
    }
    bool waitForEnd()
    {
        return eventually([this] { return !heard.ends.isEmpty(); });
    }

    QObject window;
    ProcSession session{&window};
    Heard heard{session};
    bool flushed = false;
};

TEST_F(ProcSessionTest, TellsWhatItIs)
{
    EXPECT_FALSE(session.isInProcess());
    EXPECT_FALSE(session.isQueuedWrite());
    EXPECT_TRUE(session.canBeKilled());
    EXPECT_FALSE(session.isRunning());
    EXPECT_TRUE(session.lastError().isEmpty());
    EXPECT_TRUE(session.waitFinished(0));
    EXPECT_EQ(session.writeLine(u"x"_s, flushed), -1);
}

TEST_F(ProcSessionTest, EchoesLinesAndStops)
{
    ASSERT_EQ(start(u"echo"_s), 0);
    EXPECT_TRUE(session.isRunning());
    EXPECT_EQ(session.writeLine(u"load /音乐/a.flac"_s, flushed), 20);
    EXPECT_TRUE(flushed);
    EXPECT_TRUE(eventually([this] { return heard.hasLine(u"[echo] load /音乐/a.flac\n"_s); }));
    EXPECT_EQ(session.stop(patienceMs), 3);
    EXPECT_FALSE(session.isRunning());
    ASSERT_EQ(heard.ends.size(), 1);
    EXPECT_EQ(heard.ends[0].code, 3);
    EXPECT_FALSE(heard.ends[0].crashed);
    session.poll();
    EXPECT_EQ(heard.ends.size(), 1);
}

TEST_F(ProcSessionTest, ALineWithABreakInItIsNotSentAsTwo)
{
    ASSERT_EQ(start(u"echo"_s), 0);
    EXPECT_EQ(session.writeLine(u"load /a\nstop"_s, flushed), 0);
    EXPECT_GT(session.writeLine(u"report"_s, flushed), 0);
    EXPECT_TRUE(eventually([this] { return heard.hasLine(u"[echo] report\n"_s); }));
    EXPECT_TRUE(session.isRunning());
    EXPECT_FALSE(heard.hasLine(u"[echo] load /a\n"_s));
}

TEST_F(ProcSessionTest, KeepsTheStreamsApart)
{
    ASSERT_EQ(start(u"both"_s), 0);
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(heard.hasLine(u"to stdout\n"_s, false));
    EXPECT_TRUE(heard.hasLine(u"to stderr\n"_s, true));
}

TEST_F(ProcSessionTest, AMissingProgramCannotBeStartedAndReportsNoEnd)
{
    EXPECT_EQ(session.start(u"/nowhere/engine"_s, {}), -3);
    session.poll();
    EXPECT_TRUE(heard.ends.isEmpty());
    EXPECT_FALSE(session.isRunning());
}

TEST_F(ProcSessionTest, ASecondStartIsRefused)
{
    ASSERT_EQ(start(u"echo"_s), 0);
    EXPECT_EQ(start(u"echo"_s), -2);
    EXPECT_EQ(session.stop(patienceMs), 3);
    EXPECT_EQ(heard.ends.size(), 1);
}

TEST_F(ProcSessionTest, ReportsOneEndForEachStart)
{
    for (int i = 1; i <= 3; ++i) {
        ASSERT_EQ(start(u"exit"_s, QString::number(i)), 0);
        ASSERT_TRUE(eventually([&] { return heard.ends.size() == i; }));
        session.poll();
        EXPECT_EQ(heard.ends.size(), i);
        EXPECT_EQ(heard.ends.last().code, i);
    }
}

TEST_F(ProcSessionTest, ACrashIsToldAsOne)
{
    ASSERT_EQ(start(u"crash"_s), 0);
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(heard.ends[0].crashed);
    EXPECT_TRUE(heard.hasLine(u"about to crash\n"_s));
    EXPECT_EQ(heard.ends.size(), 1);
}

TEST_F(ProcSessionTest, AThrownExceptionIsACrashOfTheChild)
{
    ASSERT_EQ(start(u"throw"_s, u"std"_s), 0);
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(heard.ends[0].crashed);
}

TEST_F(ProcSessionTest, ALateEngineGetsTheLinesSentBeforeItListened)
{
    ASSERT_EQ(start(u"late"_s, u"100"_s), 0);
    EXPECT_EQ(session.writeLine(u"load a"_s, flushed), 7);
    EXPECT_EQ(session.stop(patienceMs), 3);
    EXPECT_TRUE(heard.hasLine(u"[echo] load a\n"_s));
}

TEST_F(ProcSessionTest, AnEngineThatReadsInSmallBitesGetsWholeLines)
{
    ASSERT_EQ(start(u"tiny"_s), 0);
    session.writeLine(u"a line of more than eight bytes"_s, flushed);
    EXPECT_EQ(session.stop(patienceMs), 3);
    EXPECT_TRUE(heard.hasLine(u"[echo] a line of more than eight bytes\n"_s));
}

TEST_F(ProcSessionTest, AThousandStartsLeaveNoDescriptorBehind)
{
    ASSERT_EQ(start(u"exit"_s, u"1"_s), 0);
    ASSERT_TRUE(session.waitFinished(patienceMs));
    const int before = kelp_test::openDescriptors();
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(start(u"exit"_s, u"1"_s), 0);
        ASSERT_TRUE(session.waitFinished(patienceMs));
    }
    EXPECT_EQ(heard.ends.size(), 1001);
    EXPECT_LE(kelp_test::fallsTo(before, kelp_test::openDescriptors), before);
}

TEST_F(ProcSessionTest, AFloodArrivesWholeAndInOrder)
{
    ASSERT_EQ(start(u"flood"_s, u"100000"_s), 0);
    ASSERT_TRUE(waitForEnd());
    const QStringList lines = heard.lines();
    ASSERT_EQ(lines.size(), 100000);
    for (int i = 0; i < 100000; ++i)
        ASSERT_EQ(lines[i], u"line %1\n"_s.arg(i, 6, 10, QChar(u'0')));
}

TEST_F(ProcSessionTest, GarbageArrivesAsTextAndAnUnfinishedTailStays)
{
    ASSERT_EQ(start(u"garbage"_s), 0);
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(heard.hasLine(u"nul "_s + QChar(u'\0') + u" inside\n"_s));
    EXPECT_TRUE(heard.hasLine(u"carriage\rreturn\r\n"_s));
    EXPECT_TRUE(heard.hasLine(u"after\n"_s));
    EXPECT_FALSE(heard.hasLine(u"a tail without an end"_s));
    EXPECT_EQ(heard.lines().join(QString()).count(u'x'), 70000);
}

TEST_F(ProcSessionTest, AHangingEngineTimesOutAndCanBeKilled)
{
    ASSERT_EQ(start(u"hang"_s, u"/nowhere/release"_s), 0);
    EXPECT_EQ(session.stop(50), -1000);
    EXPECT_TRUE(session.isRunning());
    session.kill();
    EXPECT_TRUE(session.waitFinished(patienceMs));
    EXPECT_EQ(heard.ends.size(), 1);
    EXPECT_TRUE(heard.ends[0].crashed);
}

TEST_F(ProcSessionTest, TerminateAsksTheProcessToEnd)
{
    ASSERT_EQ(start(u"hang"_s, u"/nowhere/release"_s), 0);
    session.terminate();
    EXPECT_TRUE(session.waitFinished(patienceMs));
}

TEST_F(ProcSessionTest, AnEngineThatDoesNotReadIsToldAsNotFlushedAndClosingDoesNotHang)
{
    ASSERT_EQ(start(u"hang"_s, u"/nowhere/release"_s), 0);
    const QString line(1 << 20, u'x');
    EXPECT_EQ(session.writeLine(line, flushed), (1 << 20) + 1);
    EXPECT_FALSE(flushed);
    session.close();
    EXPECT_TRUE(session.waitFinished(patienceMs));
    EXPECT_FALSE(session.isRunning());
}

TEST_F(ProcSessionTest, StartsAgainAfterAClose)
{
    ASSERT_EQ(start(u"echo"_s), 0);
    session.close();
    ASSERT_EQ(start(u"exit"_s, u"5"_s), 0);
    ASSERT_TRUE(eventually([this] { return heard.ends.size() == 2; }));
    EXPECT_EQ(heard.ends.last().code, 5);
}

TEST_F(ProcSessionTest, AnotherThreadMayWrite)
{
    ASSERT_EQ(start(u"echo"_s), 0);
    std::atomic<int> bytes{0};
    std::thread worker([&] {
        bool workerFlushed = false;
        bytes = session.writeLine(u"fx eq on"_s, workerFlushed);
    });
    EXPECT_TRUE(eventually([this] { return heard.hasLine(u"[echo] fx eq on\n"_s); }));
    worker.join();
    EXPECT_EQ(bytes, 9);
    EXPECT_EQ(session.stop(patienceMs), 3);
}

TEST(ProcSession, TheProcessDiesWithItsSession)
{
    QObject window;
    qint64 pid = 0;
    {
        ProcSession session(&window);
        Heard heard(session);
        ASSERT_EQ(session.start(engineProgramPath(), {u"-test"_s, u"hang"_s, u"/nowhere/release"_s}), 0);
        pid = window.findChild<QProcess *>()->processId();
    }
    EXPECT_EQ(window.findChild<QProcess *>(), nullptr);
    EXPECT_FALSE(QFile::exists(u"/proc/%1"_s.arg(pid)));
}

TEST(ProcSession, OutlivesItsWindowQuietly)
{
    auto window = std::make_unique<QObject>();
    ProcSession session(window.get());
    Heard heard(session);
    ASSERT_EQ(session.start(engineProgramPath(), {u"-test"_s, u"echo"_s}), 0);
    // The process object says that it dies with its process running; here that is the point.
    const QtMessageHandler former =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    window.reset();
    qInstallMessageHandler(former);
    bool flushed = false;
    EXPECT_EQ(session.writeLine(u"x"_s, flushed), -1);
    session.poll();
    session.terminate();
    session.kill();
    session.close();
    EXPECT_TRUE(session.waitFinished(0));
    EXPECT_EQ(session.start(engineProgramPath(), {}), -3);
}

} // namespace
