// Starting, stopping and stepping, whatever comes in between; positions that are remembered.
#include "playback_fixture.h"

#include "ui/dock_bar.h"

#include <QFile>

using namespace Qt::StringLiterals;

class Transport : public BothKinds
{
};
INSTANTIATE_TEST_SUITE_P(Kinds, Transport, testing::Bool(), kindName);

TEST_P(Transport, AStopInTheMiddleEndsStoppedAndRemembersThePlace)
{
    m_window->startPlayback(1);
    at(42.);
    m_window->stopPlayback();
    settle();
    EXPECT_FALSE(start().uiPlaying);
    EXPECT_FALSE(m_engine.current->isRunning());
    EXPECT_EQ(readUserSetting(settings::resumePath), fileAt(1));
    EXPECT_EQ(readUserSetting(settings::resumeSec), 42.);
    takeLines();
    m_window->startPlayback(1);
    EXPECT_EQ(takeLines(), QStringList{u"loadat 42.000 "_s + fileAt(1)});
}

TEST_P(Transport, AStopWhileLoadingEndsStopped)
{
    m_window->startPlayback(1);
    m_window->stopPlayback();
    settle();
    EXPECT_FALSE(start().uiPlaying);
    EXPECT_EQ(start().currentRow, 1);
    EXPECT_TRUE(readUserSetting(settings::resumePath).isEmpty()) << "no position was told";
}

TEST_P(Transport, AStopWithNothingToStopSaysSo)
{
    m_window->stopPlayback();
    EXPECT_TRUE(logHas(u"没有正在运行的播放任务"_s));
}

TEST_P(Transport, AStopThatIsNotHeardIsEnforcedInTwoSteps)
{
    m_engine.endsOnStop = false;
    m_window->startPlayback(0);
    m_engine.calls.clear();
    m_window->stopPlayback();
    ASSERT_TRUE(eventually([this] { return m_engine.did(u"kill"_s); }));
    EXPECT_EQ(m_engine.calls, (QStringList{u"write stop"_s, u"terminate"_s, u"kill"_s}))
        << "no wait of the GUI thread";
    EXPECT_GE(m_engine.toldAt(u"terminate"_s), m_engine.toldAt(u"write stop"_s) + m_times.stop - 1);
    EXPECT_GE(m_engine.toldAt(u"kill"_s), m_engine.toldAt(u"terminate"_s) + m_times.stopKill - 1);
    settle();
    EXPECT_FALSE(start().uiPlaying);
    if (GetParam()) {
        EXPECT_TRUE(logHas(u"进程内会话无法强杀"_s));
        EXPECT_FALSE(logHas(u"-reset-device"_s));
    } else {
        EXPECT_TRUE(logHas(u"强制结束。"_s));
        EXPECT_TRUE(logHas(u"停止时强杀 ⇒ -reset-device rc=0 (设备已清)"_s));
        EXPECT_FALSE(m_engine.current->isRunning());
    }
    m_engine.endsOnStop = true;
}

TEST_P(Transport, AStopThatWasOvertakenByAStartEnforcesNothing)
{
    m_window->startPlayback(0);
    m_window->stopPlayback();
    settle();
    m_window->startPlayback(1);
    QTest::qWait(5 * (m_times.stop + m_times.stopKill));
    EXPECT_FALSE(m_engine.did(u"terminate"_s));
    EXPECT_TRUE(m_engine.current->isRunning());
    EXPECT_TRUE(start().uiPlaying);
}

TEST_P(Transport, ADoubleClickWhileLoadingPlaysTheLastOneChosen)
{
    m_window->startPlayback(0);
    m_window->startPlayback(2);
    EXPECT_EQ(takeLines(), (QStringList{load(0), load(2)}));
    EXPECT_EQ(m_engine.startArgs.size(), 1);
    at(1.);
    EXPECT_EQ(start().playingRow, 2);
    EXPECT_TRUE(start().uiPlaying);
}

TEST_P(Transport, TwentyStepsInARowLoadTwentyTracksInOneSession)
{
    open(26);
    m_window->startPlayback(0);
    takeLines();
    for (int i = 0; i < 20; ++i)
        m_window->stepRow(1);
    QStringList expected;
    for (int row = 1; row <= 20; ++row)
        expected.append(load(row));
    EXPECT_EQ(takeLines(), expected);
    EXPECT_EQ(start().playingRow, 20);
    EXPECT_EQ(m_engine.startArgs.size(), 1) << "the device is not touched";
    EXPECT_FALSE(m_engine.calls.join(u' ').contains(u"wait"_s)) << "and nothing is waited for";
}

TEST_P(Transport, ADeviceChangedWhileATrackStartsServesTheNextOne)
{
    m_window->startPlayback(0);
    ui().device->setCurrentIndex(2);
    EXPECT_EQ(m_engine.startArgs.size(), 1) << "what has been started goes on";
    EXPECT_TRUE(start().uiPlaying);
    say(u"DONE a.wav"_s);
    settle();
    ASSERT_EQ(m_engine.startArgs.size(), 2);
    EXPECT_TRUE(m_engine.startArgs.last().contains(u"Two"_s));
    EXPECT_EQ(start().playingRow, 1);
    EXPECT_TRUE(start().uiPlaying) << "the old session's end has changed nothing";
    EXPECT_FALSE(start().sessionClosing);
}

TEST_P(Transport, ADeviceChangedWithNoSessionRunningNeedsNoStop)
{
    m_window->startPlayback(0);
    at(96.);
    m_engine.current->endWith(3);
    settle();
    ui().device->setCurrentIndex(2);
    takeLines();
    m_window->startPlayback(1);
    EXPECT_EQ(takeLines(), QStringList{load(1)});
    EXPECT_EQ(m_engine.startArgs.size(), 2);
    EXPECT_FALSE(m_engine.calls.join(u' ').contains(u"wait"_s));
}

TEST_P(Transport, AFileDeletedWhileItPlaysPlaysOnAndIsSkippedAfterwards)
{
    m_window->startPlayback(0);
    at(20.);
    ASSERT_TRUE(QFile::remove(fileAt(0)));
    at(30.);
    EXPECT_TRUE(start().uiPlaying);
    say(u"DONE a.wav"_s);
    EXPECT_EQ(start().playingRow, 1);
    m_window->startPlayback(0);
    EXPECT_TRUE(logHas(u"跳过（文件不存在）: "_s + fileAt(0)));
    EXPECT_EQ(start().playingRow, 1);
}

TEST_P(Transport, AFileThatVanishedBeforeItsTurnIsSkipped)
{
    m_window->startPlayback(0);
    at(99.);
    ASSERT_TRUE(QFile::remove(fileAt(1)));
    say(u"DONE a.wav"_s);
    EXPECT_EQ(start().playingRow, 1) << "the engine was told before";
    say(u"DONE b.wav"_s);
    EXPECT_EQ(start().playingRow, 2);
}

TEST_P(Transport, AChoiceWithoutAFileLeavesWhatSoundsAndTheMeansToStopIt)
{
    m_window->startPlayback(0);
    at(10.);
    QFile::remove(fileAt(2));
    takeLines();
    m_window->startPlayback(2);
    EXPECT_TRUE(takeLines().isEmpty());
    EXPECT_TRUE(logHas(u"播放列表结束"_s));
    EXPECT_EQ(start().currentRow, 3);
    EXPECT_TRUE(start().uiPlaying) << "the first track still sounds";
    EXPECT_TRUE(ui().dock->stop->isEnabled());
    say(u"DONE a.wav"_s);
    EXPECT_FALSE(start().uiPlaying) << "and ends the list";
    EXPECT_TRUE(takeLines().isEmpty());
}

TEST_P(Transport, APathThatNoControlLineCanCarryIsSkippedWithAWord)
{
    const QString broken = m_root.filePath(u"a\nstop.wav"_s);
    QFile file(broken);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    m_window->appendFile(broken);
    m_window->startPlayback(2);
    takeLines();
    at(99.);
    const bool queued = GetParam();
    EXPECT_EQ(takeLines(), queued ? QStringList{u"load "_s + broken} : QStringList());
    m_window->startPlayback(3);
    EXPECT_EQ(takeLines(), queued ? QStringList{u"load "_s + broken} : QStringList());
    EXPECT_EQ(logHas(u"跳过（路径里有换行"_s), !queued);
    EXPECT_TRUE(m_window->sessionRuns());
}

TEST_P(Transport, TwoRowsOfOneSheetAreOneSession)
{
    const PlaylistEntry entry = appendSheet(2);
    m_window->startPlayback(3);
    EXPECT_TRUE(takeLines().isEmpty()) << "the command line names the track";
    EXPECT_TRUE(m_engine.startArgs.last().contains(entry.cuePath));
    say(u"DONE a.wav"_s);
    EXPECT_EQ(takeLines(), QStringList{u"load-cue 2 "_s + entry.cuePath});
    EXPECT_EQ(m_engine.startArgs.size(), 1);
}

TEST_P(Transport, AFirstPlayOfAnImageIsNamedOnTheCommandLineAlone)
{
    PlaylistEntry entry;
    entry.path = entry.isoPath = fileAt(0);
    entry.track = 5;
    ui().playlist->appendEntry(entry);
    m_window->startPlayback(3);
    const QStringList args = m_engine.startArgs.last();
    EXPECT_EQ(args.value(args.indexOf(u"-iso"_s) + 1), entry.isoPath);
    EXPECT_EQ(args.value(args.indexOf(u"-track"_s) + 1), u"5"_s);
    EXPECT_TRUE(takeLines().isEmpty());
    EXPECT_TRUE(start().sessionLive);
}

TEST_P(Transport, WhatARunningSessionWasNotToldIsSentWithTheNextTrack)
{
    m_window->startPlayback(0);
    takeLines();
    start().sessionGuard = !m_window->engineControls().peakGuard->isChecked();
    m_window->stepRow(1);
    EXPECT_EQ(takeLines(),
              (QStringList{load(1), m_window->engineControls().peakGuard->isChecked() ? u"guard on"_s
                                                                                      : u"guard off"_s}));
    EXPECT_TRUE(logHas(u"向运行中的会话补发峰值保护"_s));
    m_window->stepRow(1);
    EXPECT_EQ(takeLines(), QStringList{load(2)}) << "told once";
}

TEST_P(Transport, AnEmptyListAsksForFiles)
{
    m_window->widgets().playlist->clear();
    m_window->startPlayback();
    EXPECT_TRUE(logHas(u"错误: 请先添加音频文件"_s));
    EXPECT_EQ(m_engine.created, 0);
}

// ── positions that are remembered ──

class ResumeWindow : public BothKinds
{
protected:
    void store(const QString &path, double seconds)
    {
        writeUserSetting(settings::resumePath, path);
        writeUserSetting(settings::resumeSec, seconds);
    }
    /// As a restored list leaves it: this row is the position to play from.
    void reopen(int row)
    {
        open();
        start().currentRow = start().lastStartedRow = row;
        takeLines();
    }
};
INSTANTIATE_TEST_SUITE_P(Kinds, ResumeWindow, testing::Bool(), kindName);

TEST_P(ResumeWindow, TheFirstStartAfterARestartGoesOnWhereItStopped)
{
    store(fileAt(1), 65.);
    reopen(1);
    m_window->startPlayback(1);
    EXPECT_EQ(takeLines(), QStringList{u"loadat 65.000 "_s + fileAt(1)});
    EXPECT_TRUE(logHas(u"从 1:05 继续"_s));
}

TEST_P(ResumeWindow, AnotherRowBeginsAtItsBeginning)
{
    store(fileAt(1), 65.);
    reopen(1);
    m_window->startPlayback(2);
    EXPECT_EQ(takeLines(), QStringList{load(2)});
}

TEST_P(ResumeWindow, ExactlyOneSecondDoesNotResume)
{
    store(fileAt(1), 1.);
    reopen(1);
    m_window->startPlayback(1);
    EXPECT_EQ(takeLines(), QStringList{load(1)});
}

TEST_P(ResumeWindow, ANegativePositionCountsAsNone)
{
    store(fileAt(1), -20.);
    reopen(1);
    EXPECT_EQ(start().resumePosSec, 0.);
    EXPECT_TRUE(start().resumeEnabled);
    m_window->startPlayback(1);
    EXPECT_EQ(takeLines(), QStringList{load(1)});
}

TEST_P(ResumeWindow, WithoutAStoredPathNothingIsResumed)
{
    EXPECT_FALSE(start().resumeEnabled);
    m_window->startPlayback(0);
    at(6.);
    EXPECT_TRUE(start().resumeEnabled) << "a position was saved";
}

TEST_P(ResumeWindow, APositionIsSavedWhenItHasMovedFiveSeconds)
{
    m_window->startPlayback(0);
    at(4.9);
    EXPECT_TRUE(readUserSetting(settings::resumePath).isEmpty());
    at(5.);
    EXPECT_EQ(readUserSetting(settings::resumeSec), 5.);
    at(9.9);
    EXPECT_EQ(readUserSetting(settings::resumeSec), 5.);
    at(10.);
    EXPECT_EQ(readUserSetting(settings::resumeSec), 10.);
}

TEST_P(ResumeWindow, ThePositionOfTheTrackThatWasLeftIsNotThatOfTheNext)
{
    m_window->startPlayback(0);
    say(u"SRC 44100 16 2 wav 0 100"_s);
    at(50.);
    m_window->stepRow(1);
    at(60.);
    m_window->stopPlayback();
    EXPECT_EQ(readUserSetting(settings::resumePath), fileAt(0));
    EXPECT_EQ(readUserSetting(settings::resumeSec), 50.);
}

TEST_P(ResumeWindow, APauseSavesAPositionPastHalfASecond)
{
    m_window->startPlayback(0);
    at(0.5);
    m_window->togglePause();
    EXPECT_TRUE(readUserSetting(settings::resumePath).isEmpty());
    m_window->togglePause();
    at(0.6);
    m_window->togglePause();
    EXPECT_EQ(readUserSetting(settings::resumeSec), 0.6);
    at(2.);
    m_window->togglePause();
    EXPECT_EQ(readUserSetting(settings::resumeSec), 0.6) << "going on saves nothing";
}

TEST_P(ResumeWindow, AFinishedTrackIsForgottenAndStartsAtItsBeginning)
{
    m_window->startPlayback(2);
    at(98.);
    ASSERT_EQ(readUserSetting(settings::resumePath), fileAt(2));
    say(u"DONE c.wav"_s);
    EXPECT_TRUE(readUserSetting(settings::resumePath).isEmpty());
    EXPECT_FALSE(start().resumeEnabled);
    ui().device->setCurrentIndex(2);
    takeLines();
    m_window->startPlayback(2);
    EXPECT_EQ(takeLines(), (QStringList{u"stop"_s, load(2)})) << "in a new session, and not at 98 s";
}

TEST_P(ResumeWindow, ASessionThatEndsBehindTheLastSecondsHasFinishedItsTrack)
{
    m_window->startPlayback(2);
    at(97.);
    end(1, true);
    EXPECT_TRUE(readUserSetting(settings::resumePath).isEmpty());
    takeLines();
    m_window->startPlayback(2);
    EXPECT_EQ(takeLines(), QStringList{load(2)});
}

TEST_P(ResumeWindow, ATrackThatHandedOverToTheNextIsForgotten)
{
    m_window->startPlayback(0);
    at(98.6);
    ASSERT_EQ(readUserSetting(settings::resumePath), fileAt(0));
    at(0.1);
    EXPECT_TRUE(readUserSetting(settings::resumePath).isEmpty());
}

TEST_P(ResumeWindow, ATrackRemovedWhileItPlaysKeepsItsOwnPosition)
{
    const QString removed = fileAt(1);
    m_window->startPlayback(1);
    at(20.);
    ui().playlist->setCurrentRow(1, QItemSelectionModel::ClearAndSelect);
    m_window->removeSelectedRows();
    at(30.);
    EXPECT_EQ(readUserSetting(settings::resumePath), removed) << "and not the row in its place";
    EXPECT_EQ(readUserSetting(settings::resumeSec), 30.);
    EXPECT_EQ(progress().lastPosRow, -1);
    at(33.);
    m_window->stopPlayback();
    EXPECT_EQ(readUserSetting(settings::resumePath), removed);
    EXPECT_EQ(readUserSetting(settings::resumeSec), 33.);
    takeLines();
    m_window->startPlayback(0);
    EXPECT_EQ(takeLines(), QStringList{load(0)}) << "another track begins at its beginning";
}

TEST_P(ResumeWindow, ARemovedTrackThatEndsIsForgottenAndNoOther)
{
    const QString removed = fileAt(1);
    m_window->startPlayback(1);
    at(20.);
    ui().playlist->setCurrentRow(1, QItemSelectionModel::ClearAndSelect);
    m_window->removeSelectedRows();
    ASSERT_EQ(readUserSetting(settings::resumePath), removed);
    takeLines();
    say(u"DONE b.wav"_s);
    EXPECT_TRUE(readUserSetting(settings::resumePath).isEmpty());
    EXPECT_EQ(takeLines(), QStringList{load(1)}) << "the row that followed it";
}

TEST_P(ResumeWindow, ATrackOfASheetIsNotRemembered)
{
    PlaylistEntry entry;
    entry.path = fileAt(0);
    entry.cuePath = m_root.filePath(u"a.cue"_s);
    entry.track = 1;
    ui().playlist->appendEntry(entry);
    m_window->startPlayback(3);
    at(50.);
    m_window->stopPlayback();
    EXPECT_TRUE(readUserSetting(settings::resumePath).isEmpty());
}
