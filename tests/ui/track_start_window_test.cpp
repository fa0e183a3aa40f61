// From a row to a session that plays it, and what comes after.
#include "window_fixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QThread>

using namespace Qt::StringLiterals;

class Playback : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        m_deviceList = u"[default] One\n[2] Two"_s;
        makeWindow();
        addFiles(3);
        takeLog();
    }
    TrackStartState &start() { return WindowInspector::start(*m_window); }
    void say(const QString &line)
    {
        m_engine.current->say(line);
        settle();
    }
    QString lastLine() const
    {
        return m_engine.lines().isEmpty() ? QString() : m_engine.lines().last().mid(6);
    }
};

TEST_F(Playback, AFirstTrackStartsASessionAndLoads)
{
    m_window->startPlayback(1);
    EXPECT_EQ(m_engine.created, 1);
    ASSERT_EQ(m_engine.startArgs.size(), 1);
    EXPECT_EQ(m_engine.startArgs.first().first(), u"-stream"_s);
    EXPECT_EQ(lastLine(), u"load "_s + fileAt(1));
    EXPECT_TRUE(start().sessionLive);
    EXPECT_TRUE(start().uiPlaying);
    EXPECT_EQ(start().playingRow, 1);
}

TEST_F(Playback, TheNextTrackReusesTheSession)
{
    m_window->startPlayback(0);
    m_window->stepRow(1);
    EXPECT_EQ(m_engine.startArgs.size(), 1);
    EXPECT_EQ(lastLine(), u"load "_s + fileAt(1));
    EXPECT_TRUE(logHas(u"复用当前会话"_s));
}

TEST_F(Playback, AnotherDeviceRebuildsTheSession)
{
    m_window->startPlayback(0);
    m_window->widgets().device->setCurrentIndex(2);
    m_window->jumpToRow(1);
    EXPECT_TRUE(m_engine.did(u"write stop"_s));
    EXPECT_TRUE(m_engine.did(u"wait 10000"_s));
    ASSERT_EQ(m_engine.startArgs.size(), 2);
    EXPECT_TRUE(m_engine.startArgs.last().contains(u"Two"_s));
    EXPECT_FALSE(m_engine.did(u"kill"_s));
    takeLog();
    settle();
    EXPECT_TRUE(takeLog().contains(u"忽略上一个会话的结束事件"_s))
        << "the old session's end is no end of the new one";
    EXPECT_TRUE(start().uiPlaying);
}

TEST_F(Playback, ASessionThatDoesNotEndIsKilledForARebuild)
{
    m_engine.inProcess = false;
    m_window->startPlayback(0);
    m_engine.endsOnStop = false;
    m_window->widgets().device->setCurrentIndex(2);
    m_window->jumpToRow(1);
    const QStringList order = m_engine.calls.filter(QRegularExpression(u"^(wait|kill|close|write stop)"_s));
    EXPECT_EQ(order, (QStringList{u"write stop"_s, u"wait 10000"_s, u"kill"_s, u"wait 1500"_s, u"close"_s}));
}

TEST_F(Playback, ChangedEffectsRebuildOnlyWhenTheAnswerChanges)
{
    m_window->startPlayback(0);
    m_window->engineControls().denoiseTier->setCurrentIndex(1);
    m_window->jumpToRow(1);
    EXPECT_EQ(m_engine.startArgs.size(), 2);
    m_window->engineControls().denoiseTier->setCurrentIndex(3);
    m_window->jumpToRow(2);
    EXPECT_EQ(m_engine.startArgs.size(), 2);
    EXPECT_TRUE(m_engine.did(u"write fx denoise deep"_s)) << "the running session is told the difference";
}

TEST_F(Playback, MissingFilesAreSkippedToTheEnd)
{
    for (int row = 0; row < 3; ++row)
        QFile::remove(fileAt(row));
    m_window->startPlayback(0);
    EXPECT_EQ(m_engine.created, 0);
    EXPECT_EQ(start().currentRow, 3);
    EXPECT_EQ(takeLog().count(u"跳过（文件不存在）"_s), 3);
    EXPECT_FALSE(start().uiPlaying);
}

TEST_F(Playback, AStartThatFailsLeavesTheWindowIdle)
{
    m_engine.startCode = session_code::couldNotStart;
    m_window->startPlayback(0);
    EXPECT_TRUE(logHas(u"会话 start 返回 -3"_s));
    EXPECT_FALSE(start().uiPlaying);
    EXPECT_FALSE(start().sessionLive);
}

TEST_F(Playback, AListPlaysToItsEnd)
{
    m_window->startPlayback(1);
    say(u"SRC 44100 16 2 wav 0 10"_s);
    EXPECT_TRUE(m_window->trackAnnounced());
    say(u"DONE b.wav"_s);
    EXPECT_EQ(lastLine(), u"load "_s + fileAt(2));
    EXPECT_EQ(start().playingRow, 2);
    say(u"DONE c.wav"_s);
    EXPECT_FALSE(start().uiPlaying);
    EXPECT_TRUE(m_engine.current->isRunning()) << "the session idles";
    m_window->widgets().playlist->setCurrentRow(0);
    m_window->togglePause();
    EXPECT_EQ(lastLine(), u"load "_s + fileAt(0)) << "the start button begins anew, with the chosen row";
}

TEST_F(Playback, StopIsAStop)
{
    m_window->startPlayback(0);
    m_window->stopPlayback();
    settle();
    EXPECT_FALSE(start().uiPlaying);
    EXPECT_EQ(m_engine.lines().last(), u"write stop"_s);
    EXPECT_TRUE(logHas(u"播放已停止"_s));
    m_window->startPlayback(2);
    EXPECT_EQ(lastLine(), u"load "_s + fileAt(2));
    EXPECT_EQ(m_engine.startArgs.size(), 2);
}

TEST_F(Playback, ALeftoverSessionBlocksANewStart)
{
    m_window->startPlayback(0);
    m_engine.endsOnStop = false;
    m_window->stopPlayback();
    m_window->startPlayback(1);
    EXPECT_TRUE(m_engine.did(u"wait 2000"_s));
    EXPECT_TRUE(m_engine.did(u"terminate"_s));
    EXPECT_TRUE(m_engine.did(u"wait 1000"_s));
    EXPECT_TRUE(logHas(u"旧会话仍未退出"_s));
    EXPECT_EQ(m_engine.startArgs.size(), 1);
    m_engine.endsOnStop = true;
}

TEST_F(Playback, GaplessHandsOverTheNextTrackOnceAndFollows)
{
    m_window->startPlayback(0);
    say(u"PG 85 8.6 10"_s);
    EXPECT_EQ(lastLine(), u"load "_s + fileAt(1));
    const qsizetype count = m_engine.lines().size();
    say(u"PG 90 9.0 10"_s);
    EXPECT_EQ(m_engine.lines().size(), count);
    say(u"PG 0 0.1 10"_s);
    EXPECT_EQ(start().playingRow, 1);
    EXPECT_EQ(start().currentRow, 1);
    EXPECT_TRUE(logHas(u"自动换曲（无缝/交叉淡化）"_s));
}

TEST_F(Playback, AMovedNextTrackIsFoundByItsFile)
{
    m_window->startPlayback(0);
    const QString next = fileAt(1);
    say(u"PG 85 8.6 10"_s);
    ASSERT_TRUE(m_window->moveRow(1, 2));
    say(u"PG 0 0.1 10"_s);
    EXPECT_EQ(fileAt(start().playingRow), next);
    EXPECT_TRUE(logHas(u"按文件对回"_s));
}

TEST_F(Playback, WhatTheEndedTrackLeftInTheMailboxIsNotNewsOfTheNext)
{
    m_window->startPlayback(0);
    m_engine.current->say(u"DONE a.wav"_s);
    m_engine.current->say(u"PG 100 10 10"_s);
    settle();
    EXPECT_EQ(start().currentRow, 1);
    EXPECT_EQ(WindowInspector::progress(*m_window).progressPercent, 0.);
}

TEST_F(Playback, AnEndTooEarlyStopsTheList)
{
    m_window->startPlayback(0);
    say(u"PG 50 5 10"_s);
    m_engine.current->endWith(0);
    settle();
    EXPECT_FALSE(start().uiPlaying);
    EXPECT_EQ(start().currentRow, 0);
    EXPECT_TRUE(logHas(u"50.0%"_s));
}

TEST_F(Playback, ACrashAtTheVeryEndGoesOn)
{
    m_window->startPlayback(0);
    say(u"PG 96 9.6 10"_s);
    m_engine.current->endWith(1, true);
    settle();
    EXPECT_EQ(start().currentRow, 1);
    EXPECT_EQ(m_engine.startArgs.size(), 2) << "a fresh run of the session";
}

TEST_F(Playback, ARefusedExclusiveDeviceIsTriedOnceByTheLadder)
{
    m_window->engineControls().outputPath->setCurrentText(u"exclusive"_s);
    m_window->startPlayback(0);
    EXPECT_TRUE(m_engine.startArgs.last().contains(u"exclusive"_s));
    m_engine.current->endWith(1);
    settle();
    QCoreApplication::processEvents();
    ASSERT_EQ(m_engine.startArgs.size(), 2);
    EXPECT_FALSE(m_engine.startArgs.last().contains(u"exclusive"_s));
    EXPECT_EQ(start().exclusiveFallbackRow, 0);
}

TEST_F(Playback, PauseAndResumeAreOneButton)
{
    m_window->startPlayback(0);
    m_window->togglePause();
    EXPECT_EQ(lastLine(), u"pause"_s);
    m_window->togglePause();
    EXPECT_EQ(lastLine(), u"resume"_s);
}

TEST_F(Playback, TheSameRowAfterADeviceChangeGoesOnWhereItWas)
{
    m_window->startPlayback(0);
    say(u"PG 50 65.5 131"_s);
    m_window->widgets().device->setCurrentIndex(1);
    m_window->jumpToRow(0);
    EXPECT_EQ(lastLine(), u"loadat 65.500 "_s + fileAt(0));
}

TEST_F(Playback, DebugAutoplayAppendsAndChoosesTheDevice)
{
    m_window->debugAutoplay(fileAt(0), u"Two"_s);
    EXPECT_EQ(m_window->widgets().playlist->count(), 4);
    EXPECT_EQ(start().playingRow, 3);
    EXPECT_EQ(m_window->currentDeviceName(), u"Two"_s);
}

TEST_F(Playback, RowsMoveAndThePlayingRowFollows)
{
    m_window->startPlayback(0);
    EXPECT_TRUE(m_window->moveRow(0, 2));
    EXPECT_EQ(start().playingRow, 2);
    EXPECT_TRUE(m_window->moveRow(1, 1));
    EXPECT_FALSE(m_window->moveRow(0, 3));
    EXPECT_TRUE(logHas(u"from=0 to=3"_s));
}

TEST_F(Playback, TheStageIsNamedWhileTheTrackIsHandedOver)
{
    QString stage;
    m_engine.answer = [&](FakeSession &, const QString &) {
        stage = m_window->markStage(u"asked"_s);
        m_window->markStage(stage);
    };
    m_window->startPlayback(0);
    EXPECT_EQ(stage, u"下发 load"_s);
    EXPECT_TRUE(m_window->markStage(QString()).isEmpty()) << "and no longer afterwards";
}

TEST_F(Playback, ASlowStageIsInTheLog)
{
    m_engine.answer = [](FakeSession &, const QString &) { QThread::msleep(60); };
    m_window->startPlayback(0);
    EXPECT_TRUE(logHas(u"[耗时] load "_s));
}

TEST_F(Playback, AnExceptionInTheStartIsCaughtAndEndsIdle)
{
    m_engine.answer = [](FakeSession &, const QString &) { throw std::runtime_error("broken inside"); };
    m_window->startPlayback(0);
    EXPECT_TRUE(logHas(u"playCurrent"_s));
    EXPECT_TRUE(logHas(u"broken inside"_s));
    EXPECT_FALSE(start().uiPlaying);
    m_engine.answer = [](FakeSession &, const QString &) { throw 42; };
    m_window->startPlayback(1);
    EXPECT_FALSE(start().uiPlaying);
    m_engine.answer = {};
    m_window->startPlayback(2);
    EXPECT_TRUE(start().uiPlaying) << "nothing is left broken";
}

class WithoutAnEngine : public Playback
{
protected:
    void SetUp() override
    {
        // Neither the variable nor the program's folder nor the one it is started in has one.
        m_folder = QDir::currentPath();
        Playback::SetUp();
        QDir::setCurrent(m_root.path());
        qputenv("KELP_PLAYER_BIN", "/nowhere/engine");
        WindowInspector::link(*m_window).playerBin.clear();
    }
    void TearDown() override
    {
        Playback::TearDown();
        QDir::setCurrent(m_folder);
    }

private:
    QString m_folder;
};

TEST_F(WithoutAnEngine, AChildProcessCannotBeStarted)
{
    qputenv("KELP_GUI_INPROC", "0");
    m_window->startPlayback(0);
    EXPECT_TRUE(logHas(u"错误: 找不到播放引擎 KelpPlayerEngine"_s));
    EXPECT_EQ(m_engine.created, 0);
    EXPECT_FALSE(start().uiPlaying);
}

TEST_F(WithoutAnEngine, ASessionInsideThisProcessNeedsNoProgram)
{
    qputenv("KELP_GUI_INPROC", "1");
    m_window->startPlayback(0);
    EXPECT_TRUE(m_engine.did(u"start KelpPlayer"_s));
    EXPECT_TRUE(start().uiPlaying);
}
