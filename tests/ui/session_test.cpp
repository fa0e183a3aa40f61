// The session's making and the account of its control lines.
#include "window_fixture.h"

#include <QFile>
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
