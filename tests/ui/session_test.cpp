// The session's making and the account of its control lines.
#include "window_fixture.h"

#include "app/settings_store.h"
#include "engine/session_factory.h"
#include "platform/settings_table.h"

#include "tests/support/patience.h"

#include <QFile>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

class Session : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        makeWindow();
    }
    int timers() const
    {
        return static_cast<int>(m_window->findChildren<QTimer *>(Qt::FindDirectChildrenOnly).size());
    }
    void writeEngineLog(int received)
    {
        QFile file(m_root.filePath(u"engine.log"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Append));
        for (int i = 0; i < received; ++i)
            file.write("[ctl] recv vol 1\n");
    }
    void closureOf(int queued, int received)
    {
        WindowInspector::link(*m_window).logPath = m_root.filePath(u"engine.log"_s);
        WindowInspector::link(*m_window).queuedCtlCount = queued;
        writeEngineLog(received);
        m_window->checkControlClosure();
    }
};

TEST_F(Session, EachSessionPollsAndAddsAStallReporter)
{
    const int before = timers();
    m_window->ensureSession();
    EXPECT_EQ(timers(), before + 2);
    ASSERT_NE(WindowInspector::link(*m_window).pollTimer, nullptr);
    EXPECT_EQ(WindowInspector::link(*m_window).pollTimer->interval(), 50);
    m_window->ensureSession();
    EXPECT_EQ(timers(), before + 3) << "the poll timer is replaced, the reporter stays";
    EXPECT_EQ(m_engine.created, 2);
    EXPECT_EQ(m_engine.destroyed, 1);
}

TEST_F(Session, AnInProcessSessionIsStoppedBeforeItIsReplaced)
{
    m_window->ensureSession();
    m_engine.current->start(u"x"_s, {});
    m_engine.endsOnStop = false;
    takeLog();
    m_window->ensureSession();
    EXPECT_TRUE(m_engine.did(u"stop 2000"_s));
    EXPECT_TRUE(takeLog().contains(u"2 秒内没有收尾"_s));
    EXPECT_EQ(m_engine.destroyed, 1) << "in any case";
}

TEST_F(Session, AChildProcessIsReplacedWithoutAStop)
{
    m_engine.inProcess = false;
    m_window->ensureSession();
    m_engine.current->start(u"x"_s, {});
    m_window->ensureSession();
    EXPECT_FALSE(m_engine.did(u"stop 2000"_s));
    EXPECT_TRUE(logHas(u"[gui] 播放会话: 独立进程"_s));
}

TEST_F(Session, TheClosureCheckToleratesEightOrATenth)
{
    closureOf(10, 2);
    EXPECT_TRUE(logHas(u"queued=10 recv=2 diff=8 —— 通过"_s));
    closureOf(10, 1);
    EXPECT_TRUE(logHas(u"queued=10 recv=1 diff=9 —— 超差(差 9 > 容差 8)"_s))
        << "lines counted once stay counted";
    EXPECT_TRUE(logHas(u"engine.log"_s));
    EXPECT_EQ(WindowInspector::link(*m_window).queuedCtlCount, 0);
}

TEST_F(Session, WithoutALogTheEndsCannotBeReconciled)
{
    WindowInspector::link(*m_window).queuedCtlCount = 3;
    m_window->checkControlClosure();
    EXPECT_TRUE(logHas(u"无法对账"_s));
}

TEST_F(Session, AReplacedSessionIsNoLongerHeard)
{
    m_window->ensureSession();
    const PlayerSession::LineSink oldSink = m_engine.current->lineSink;
    m_window->ensureSession();
    oldSink(u"a late word of the old engine\n"_s, false);
    settle();
    EXPECT_FALSE(logHas(u"a late word"_s));
    const PlayerSession::LineSink lastSink = m_engine.current->lineSink;
    m_window.reset();
    lastSink(u"to nobody\n"_s, false);
    settle();
}

TEST_F(Session, IsPolledWhileItExists)
{
    m_window->ensureSession();
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_engine.polls > 2; }, kelp_test::patienceMs));
}

TEST_F(Session, ItsKindIsAskedForAfreshEachTimeAndNeverForced)
{
    m_window.reset();
    QList<SessionOptions> asked;
    m_makeSession = [&](QObject *, const SessionOptions &options) {
        asked.append(options);
        return std::make_unique<FakeSession>(m_engine);
    };
    makeWindow();
    writeUserSetting(settings::engineInproc, true);
    m_window->ensureSession();
    writeUserSetting(settings::engineInproc, false);
    m_window->ensureSession();
    ASSERT_EQ(asked.size(), 2);
    EXPECT_TRUE(asked[0].kind.inprocSetting);
    EXPECT_FALSE(asked[1].kind.inprocSetting);
    EXPECT_FALSE(asked[0].forceChildProcess);
    EXPECT_FALSE(asked[1].forceChildProcess);
}

TEST_F(Session, ItsEndArrivesThroughTheEventLoopAndDrawsUpTheAccount)
{
    addFiles(1);
    m_window->startPlayback(0);
    takeLog();
    m_engine.current->endWith(0);
    EXPECT_TRUE(WindowInspector::start(*m_window).uiPlaying) << "not from within the session's own call";
    EXPECT_FALSE(logHas(u"闭合: queued=1"_s));
    settle();
    EXPECT_FALSE(WindowInspector::start(*m_window).uiPlaying);
    EXPECT_TRUE(logHas(u"闭合: queued=1"_s));
}

TEST_F(Session, TheAccountIsDrawnUpAtTheEndOfTheProgram)
{
    WindowInspector::link(*m_window).logPath = m_root.filePath(u"engine.log"_s);
    writeEngineLog(3);
    m_window->ensureSession();
    m_engine.current->start(u"x"_s, {});
    for (int i = 0; i < 3; ++i)
        m_window->sendCmd(u"vol 1"_s);
    m_window->shutdown();
    EXPECT_TRUE(logHas(u"recv=3"_s));
    EXPECT_EQ(WindowInspector::link(*m_window).queuedCtlCount, 0);
    EXPECT_FALSE(WindowInspector::link(*m_window).hostCopy);
}

TEST_F(Session, TheLagSelfTestFreezesTheWindowAndIsReported)
{
    qputenv("KELP_GUI_LAG_TEST", "1");
    m_window->ensureSession();
    qunsetenv("KELP_GUI_LAG_TEST");
    EXPECT_TRUE(QTest::qWaitFor([this] { return logHas(u"[stall] "_s); }, kelp_test::patienceMs));
}

TEST_F(Session, AChangeOfItsKindTakesEffectAtTheNextStart)
{
    m_window.reset();
    m_makeSession = [this](QObject *, const SessionOptions &options) {
        m_engine.inProcess = factoryWantsInProcess(options.kind);
        return std::make_unique<FakeSession>(m_engine);
    };
    makeWindow();
    addFiles(2);
    m_window->startPlayback(0);
    EXPECT_TRUE(logHas(u"[gui] 播放会话: 进程内 (GUI 直接调播放器核)\n"_s));
    writeUserSetting(settings::engineInproc, false);
    m_window->stepRow(1);
    EXPECT_EQ(m_engine.created, 1) << "a running session stays";
    m_window->stopPlayback();
    settle();
    takeLog();
    m_window->startPlayback(0);
    EXPECT_EQ(m_engine.created, 2);
    EXPECT_EQ(m_engine.destroyed, 1);
    const QString log = takeLog();
    EXPECT_TRUE(log.contains(u"独立进程 (KelpPlayerEngine.exe; 设置 engine/inproc=0 或设备降级时)\n"_s));
    EXPECT_TRUE(log.contains(u"播放命令: "_s)) << "the line is announced as the new kind's";
    m_window->stopPlayback();
    settle();
    m_window->startPlayback(1);
    EXPECT_EQ(m_engine.created, 2) << "the same kind is used again";
    EXPECT_TRUE(WindowInspector::start(*m_window).uiPlaying);
}

class HostCopy : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        makeWindow();
        addFiles(2);
    }
    QByteArray engineLog()
    {
        QFile file(m_root.filePath(u"engine.log"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(HostCopy, HoldsEveryLineOfASessionInThisProcessBehindItsHeader)
{
    m_window->startPlayback(0);
    EXPECT_EQ(engineLog(), "=== host-side copy (in-process session) ===\n");
    m_window->onEngineLine(u"LVL -1 -2\r\n"_s, false);
    m_window->onEngineLine(u"  no end"_s, true);
    EXPECT_EQ(engineLog(), "=== host-side copy (in-process session) ===\nLVL -1 -2\r\n  no end\n")
        << "as they came, and at once";
    EXPECT_EQ(WindowInspector::link(*m_window).hostLineCount, 2);
}

TEST_F(HostCopy, TheLogTellsWhetherTheEnginesLogIsKept)
{
    m_window->startPlayback(0);
    EXPECT_TRUE(logHas(u"引擎日志（本次会话，退出时删除）: "_s + m_root.filePath(u"engine.log"_s)));
    m_engine.current->endWith(3);
    settle();
    writeUserSetting(settings::keepEngineLog, true);
    m_window->startPlayback(1);
    EXPECT_TRUE(logHas(u"引擎日志（保留，退出时不删）: "_s + m_root.filePath(u"engine.log"_s)));
}

TEST_F(HostCopy, AFreshStartAppendsToTheSameFile)
{
    m_window->startPlayback(0);
    m_engine.current->say(u"of the first"_s);
    settle();
    m_engine.current->endWith(3);
    settle();
    m_window->startPlayback(1);
    EXPECT_EQ(WindowInspector::link(*m_window).hostLineCount, 0);
    EXPECT_EQ(engineLog().count("=== host-side copy"), 2);
    EXPECT_TRUE(engineLog().contains("of the first\n"));
}

TEST_F(HostCopy, AChildProcessHasNone)
{
    m_engine.inProcess = false;
    m_window->startPlayback(0);
    m_engine.current->say(u"a line"_s);
    settle();
    EXPECT_TRUE(engineLog().isEmpty()) << "its engine writes the file by itself";
}

TEST_F(HostCopy, ThatCannotBeOpenedIsDroppedInSilence)
{
    qputenv("KELP_ENGINE_LOG", QFile::encodeName(m_root.path()));
    m_window->startPlayback(0);
    m_engine.current->say(u"a line"_s);
    settle();
    EXPECT_FALSE(WindowInspector::link(*m_window).hostCopy);
    EXPECT_TRUE(WindowInspector::start(*m_window).uiPlaying);
    EXPECT_TRUE(logHas(u"a line"_s));
}
