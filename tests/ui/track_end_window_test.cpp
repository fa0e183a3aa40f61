// The end of a track and of a session, of either kind.
#include "playback_fixture.h"

#include <QFile>

using namespace Qt::StringLiterals;

class TrackEnd : public BothKinds
{
};
INSTANTIATE_TEST_SUITE_P(Kinds, TrackEnd, testing::Bool(), kindName);

TEST_P(TrackEnd, DoneGoesOnInTheSameSession)
{
    m_window->startPlayback(0);
    takeLines();
    say(u"DONE a.wav"_s);
    EXPECT_EQ(takeLines(), QStringList{load(1)});
    EXPECT_EQ(m_engine.startArgs.size(), 1);
    EXPECT_TRUE(logHas(u"播放完成"_s));
}

TEST_P(TrackEnd, DoneOfTheLastTrackLeavesTheWindowIdleAndNamesTheOrder)
{
    m_window->startPlayback(2);
    takeLines();
    say(u"DONE c.wav"_s);
    EXPECT_TRUE(takeLines().isEmpty());
    EXPECT_FALSE(start().uiPlaying);
    EXPECT_TRUE(logHas(u"播放列表结束（顺序 · 不循环）"_s));
}

/// Tracks of one length, announced by their session.
const QString announcement = u"SRC 44100 16 2 wav 0 100"_s;

TEST_P(TrackEnd, AnEndThatMeetsAChoiceIsNotTheEndOfTheChosenTrack)
{
    m_window->startPlayback(0);
    say(announcement);
    at(99.9);
    m_window->stepRow(1);
    takeLines();
    say(u"DONE a.wav"_s);
    EXPECT_TRUE(takeLines().isEmpty());
    EXPECT_EQ(start().currentRow, 1);
    EXPECT_TRUE(logHas(u"不算作新选这一首的结束"_s));
    say(announcement);
    say(u"DONE b.wav"_s);
    EXPECT_EQ(takeLines(), QStringList{load(2)});
}

TEST_P(TrackEnd, AnEndThatMeetsTheSameTrackChosenAnewLeavesItPlaying)
{
    m_window->startPlayback(0);
    say(announcement);
    at(99.9);
    m_window->startPlayback(0);
    takeLines();
    say(u"DONE a.wav"_s);
    EXPECT_TRUE(takeLines().isEmpty());
    EXPECT_EQ(start().currentRow, 0);
}

TEST_P(TrackEnd, DoneAfterAStopStartsNothing)
{
    m_engine.endsOnStop = false;
    m_window->startPlayback(0);
    m_window->stopPlayback();
    takeLines();
    say(u"DONE a.wav"_s);
    EXPECT_TRUE(takeLines().isEmpty());
    EXPECT_EQ(start().currentRow, 0);
    end(3);
    EXPECT_TRUE(logHas(u"播放已停止"_s));
}

struct EndCase
{
    double percent;
    int code;
    bool crashed;
    bool goesOn;
    const char *said;
};

class SessionEnd : public PlaybackTest, public testing::WithParamInterface<std::tuple<bool, EndCase>>
{
};

TEST_P(SessionEnd, Decides)
{
    const auto &[inProcess, expected] = GetParam();
    m_engine.inProcess = inProcess;
    open();
    m_window->startPlayback(0);
    if (expected.percent > 0.)
        at(expected.percent);
    say(u"the engine's last words"_s);
    takeLog();
    end(expected.code, expected.crashed);
    const QString log = takeLog();
    EXPECT_TRUE(log.contains(QString::fromUtf8(expected.said))) << qPrintable(log);
    EXPECT_EQ(start().currentRow, expected.goesOn ? 1 : 0);
    EXPECT_EQ(start().uiPlaying, expected.goesOn);
    EXPECT_EQ(m_engine.startArgs.size(), expected.goesOn ? 2 : 1);
    EXPECT_EQ(log.contains(u"the engine's last words"_s), !expected.goesOn && expected.code == 1);
}

constexpr EndCase endCases[] = {
    {0., 0, false, false, "未到结尾就结束（0.0%）"},
    {0., 1, false, false, "播放器异常退出，代码: 1"},
    {0., 3, false, false, "播放已停止"},
    {50., 3, false, false, "播放已停止"},
    {50., 1, true, false, "播放器异常退出，代码: 1"},
    {94.9, 0, false, false, "未到结尾就结束（94.9%）"},
    {94.9, 1, false, false, "播放器异常退出，代码: 1"},
    {94.9, 3, false, false, "播放已停止"},
    {95., 0, false, true, "播放完成"},
    {95., 1, false, true, "播放完成"},
    {95., 3, false, false, "播放已停止"},
    {96., 0, false, true, "播放完成"},
    {96., 1, false, true, "播放完成"},
    {96., 1, true, true, "播放完成"},
    {96., 3, false, false, "播放已停止"},
};
INSTANTIATE_TEST_SUITE_P(Codes, SessionEnd, testing::Combine(testing::Bool(), testing::ValuesIn(endCases)));

TEST_P(TrackEnd, ADeliberateRestartGoesOnWithTheSameRow)
{
    m_window->startPlayback(1);
    at(40.);
    start().restartPending = true;
    takeLines();
    end(3);
    EXPECT_FALSE(start().restartPending);
    EXPECT_EQ(takeLines(), QStringList{u"loadat 40.000 "_s + fileAt(1)});
}

TEST_P(TrackEnd, ACloseOnPurposeEndsIdle)
{
    m_window->startPlayback(0);
    start().sessionClosing = true;
    end(0);
    EXPECT_FALSE(start().sessionClosing);
    EXPECT_FALSE(start().uiPlaying);
    EXPECT_TRUE(logHas(u"会话已关闭（设备/布局变更）"_s));
}

TEST_P(TrackEnd, OnlyASessionInsideThisProcessIsTriedWithoutExclusive)
{
    m_window->engineControls().outputPath->setCurrentText(u"exclusive"_s);
    m_window->startPlayback(0);
    end(1);
    EXPECT_EQ(logHas(u"独占端点打不开"_s), GetParam());
    EXPECT_EQ(m_engine.created, GetParam() ? 2 : 1);
}

class ExclusiveFallback : public PlaybackTest
{
protected:
    void SetUp() override
    {
        PlaybackTest::SetUp();
        m_times.ignoreAfterFallback = 0;
    }
    void startExclusive()
    {
        open();
        m_window->engineControls().outputPath->setCurrentText(u"exclusive"_s);
        m_window->startPlayback(0);
    }
    void endAndRetry()
    {
        end(1);
        QCoreApplication::processEvents();
    }
};

TEST_F(ExclusiveFallback, FiresOnceForARowAndAgainForAnother)
{
    startExclusive();
    endAndRetry();
    EXPECT_EQ(m_engine.startArgs.size(), 2);
    takeLog();
    endAndRetry();
    EXPECT_TRUE(takeLog().contains(u"播放器异常退出"_s)) << "not twice for one row";
    EXPECT_FALSE(start().uiPlaying);
    m_window->startPlayback(1);
    takeLog();
    endAndRetry();
    EXPECT_TRUE(takeLog().contains(u"独占端点打不开"_s));
    EXPECT_EQ(start().exclusiveFallbackRow, 1);
    EXPECT_TRUE(start().uiPlaying);
}

TEST_F(ExclusiveFallback, AStaleEndWithinItsTimeIsIgnored)
{
    m_times.ignoreAfterFallback = 2000;
    startExclusive();
    const auto stale = m_engine.current->doneSink;
    endAndRetry();
    takeLog();
    stale(1, false);
    settle();
    EXPECT_TRUE(takeLog().contains(u"忽略上一个会话的结束事件"_s));
    EXPECT_TRUE(start().uiPlaying) << "the new session plays on";
}

TEST_F(ExclusiveFallback, AnIgnoredEndLeavesNoControlThatClaimsToPlay)
{
    m_times.ignoreAfterFallback = 60000;
    startExclusive();
    endAndRetry();
    end(1);
    EXPECT_FALSE(start().uiPlaying);
    m_window->togglePause();
    EXPECT_TRUE(start().uiPlaying) << "the start button starts";
}

TEST_F(ExclusiveFallback, AnOldSessionThatDoesNotEndLeavesTheWindowIdle)
{
    startExclusive();
    m_engine.endsOnStop = false;
    m_engine.calls.clear();
    m_engine.current->doneSink(1, false);
    settle();
    EXPECT_EQ(m_engine.calls, (QStringList{u"close"_s, u"stop 1500"_s, u"wait 1000"_s}));
    EXPECT_TRUE(logHas(u"上一个播放会话还没收尾"_s));
    EXPECT_FALSE(start().uiPlaying);
    EXPECT_FALSE(start().sessionClosing);
    EXPECT_EQ(m_engine.created, 1);
    m_engine.endsOnStop = true;
}

TEST_F(ExclusiveFallback, NotOnceSomethingWasHeard)
{
    startExclusive();
    at(10.);
    endAndRetry();
    EXPECT_EQ(m_engine.startArgs.size(), 1);
    EXPECT_TRUE(logHas(u"播放器异常退出"_s));
}

TEST_F(ExclusiveFallback, NotAfterAStop)
{
    startExclusive();
    m_engine.stopAnswer = 1;
    m_window->stopPlayback();
    settle();
    EXPECT_EQ(m_engine.startArgs.size(), 1);
    EXPECT_TRUE(logHas(u"播放已停止"_s));
}

// ── the next track, handed over early ──

class Preloading : public BothKinds
{
};
INSTANTIATE_TEST_SUITE_P(Kinds, Preloading, testing::Bool(), kindName);

TEST_P(Preloading, HappensOnceWithinItsWindow)
{
    m_window->startPlayback(0);
    takeLines();
    at(98.4);
    EXPECT_TRUE(takeLines().isEmpty()) << "1.6 s are left";
    at(98.51);
    EXPECT_EQ(takeLines(), QStringList{load(1)});
    at(98.6);
    at(99.);
    EXPECT_TRUE(takeLines().isEmpty());
    EXPECT_TRUE(logHas(u"无缝: 曲尾前 1.5 s"_s));
}

TEST_P(Preloading, WithAHundredthOfASecondLeftTheTrackEndsNormally)
{
    m_window->startPlayback(0);
    takeLines();
    at(99.99);
    EXPECT_TRUE(takeLines().isEmpty());
    say(u"DONE a.wav"_s);
    EXPECT_EQ(takeLines(), QStringList{load(1)});
}

TEST_P(Preloading, ACrossfadeIsItsOwnWindow)
{
    m_window->engineControls().crossfadeSec->setValue(6.);
    m_window->startPlayback(0);
    takeLines();
    at(93.9);
    EXPECT_TRUE(takeLines().isEmpty());
    at(94.1);
    EXPECT_EQ(takeLines(), QStringList{load(1)});
    EXPECT_TRUE(logHas(u"交叉淡化: 距曲尾 5.9 s"_s));
}

TEST_P(Preloading, WithoutGaplessNothingIsHandedOver)
{
    m_window->engineControls().gapless->setChecked(false);
    m_window->startPlayback(0);
    takeLines();
    at(99.);
    EXPECT_TRUE(takeLines().isEmpty());
    EXPECT_TRUE(logHas(u"曲尾检查: 剩余 1.0 s, 预载窗口 0.0 s (交叉淡化 0.0 / 无缝 off), 下一首=1"_s));
}

TEST_P(Preloading, ARepeatedTrackIsNotPreloaded)
{
    m_window->setRepeatAxis(2);
    m_window->startPlayback(0);
    takeLines();
    at(99.);
    EXPECT_TRUE(takeLines().isEmpty());
    say(u"DONE a.wav"_s);
    EXPECT_EQ(takeLines(), QStringList{load(0)}) << "from its beginning";
}

TEST_P(Preloading, APositionThatRunsBackwardIsTheNextTrack)
{
    m_window->startPlayback(0);
    at(99.);
    at(98.5);
    EXPECT_EQ(start().currentRow, 0) << "half a second back is a jitter";
    at(0.2);
    EXPECT_EQ(start().currentRow, 1);
    EXPECT_EQ(start().lastStartedRow, 1);
    EXPECT_EQ(progress().lastPosRow, 1);
    EXPECT_EQ(progress().lastPosSec, 0.2);
}

TEST_P(Preloading, ATotalThatJumpsIsTheNextTrack)
{
    m_window->startPlayback(0);
    say(u"PG 45 0.9 2"_s);
    EXPECT_EQ(start().currentRow, 0);
    say(u"PG 0.5 0.95 180"_s);
    EXPECT_EQ(start().currentRow, 1);
    EXPECT_TRUE(logHas(u"自动换曲（无缝/交叉淡化）: 第 2/3 首"_s));
}

TEST_P(Preloading, DoneWithAPreloadGoesOnWithoutALoad)
{
    m_window->startPlayback(0);
    at(99.);
    takeLines();
    say(u"DONE a.wav"_s);
    EXPECT_TRUE(takeLines().isEmpty()) << "the engine has it already";
    EXPECT_EQ(start().currentRow, 1);
    EXPECT_TRUE(start().uiPlaying);
}

TEST_P(Preloading, TracksOfTwoSecondsFollowEachOther)
{
    m_window->startPlayback(0);
    takeLines();
    for (int row = 0; row < 2; ++row) {
        say(u"PG 30 0.6 2"_s);
        EXPECT_EQ(takeLines(), QStringList{load(row + 1)});
        say(u"PG 95 1.9 2"_s);
        say(u"PG 2 0.05 2"_s);
        EXPECT_EQ(start().currentRow, row + 1);
    }
}

TEST_P(Preloading, ATrackTooShortToBeNoticedIsFollowedAtItsEnd)
{
    m_window->startPlayback(0);
    say(u"PG 30 0.2 0.6"_s);
    takeLines();
    say(u"PG 40 0.25 0.6"_s);
    say(u"DONE "_s + fileAt(1));
    EXPECT_EQ(start().currentRow, 2) << "the second has ended as well";
    EXPECT_EQ(takeLines(), QStringList{load(2)}) << "the engine does not wait for ever";
}

TEST_P(Preloading, AStopBetweenHandOverAndChangeStaysAStop)
{
    m_engine.endsOnStop = false;
    m_window->startPlayback(0);
    at(99.);
    m_window->stopPlayback();
    at(0.1);
    EXPECT_EQ(start().currentRow, 0);
    EXPECT_FALSE(start().uiPlaying);
    end(3);
    EXPECT_FALSE(start().uiPlaying);
}

TEST_P(Preloading, ADoubleClickTakesThePlaceOfWhatWasHandedOver)
{
    m_window->startPlayback(0);
    at(99.);
    m_window->startPlayback(2);
    EXPECT_FALSE(WindowInspector::preload(*m_window).pending);
    at(0.1);
    EXPECT_EQ(start().currentRow, 2);
}

TEST_P(Preloading, WhatIsStillToldOfTheTrackThatWasLeftHandsNothingOver)
{
    m_window->startPlayback(0);
    say(announcement);
    at(99.);
    EXPECT_EQ(takeLines().last(), load(1)) << "handed over";
    m_window->stepRow(1);
    EXPECT_EQ(takeLines(), QStringList{load(1)}) << "chosen";
    at(99.1);
    at(99.9);
    EXPECT_TRUE(takeLines().isEmpty()) << "the next one is still being opened";
    say(announcement);
    at(0.1);
    EXPECT_TRUE(takeLines().isEmpty());
    EXPECT_EQ(start().currentRow, 1);
    at(99.);
    EXPECT_EQ(takeLines(), QStringList{load(2)}) << "its own end is followed as ever";
}

TEST_P(Preloading, RandomOrderHandsOverWhatItThenPlays)
{
    open(12);
    m_window->setOrderAxis(1);
    m_window->startPlayback(0);
    QSet<int> heard{0};
    for (int i = 1; i < 12; ++i) {
        takeLines();
        at(99.);
        const QStringList lines = takeLines();
        ASSERT_EQ(lines.size(), 1);
        at(0.1);
        EXPECT_EQ(lines.first(), load(start().currentRow));
        heard.insert(start().currentRow);
    }
    EXPECT_EQ(heard.size(), 12) << "each once";
    EXPECT_FALSE(logHas(u"按文件对回"_s));
    takeLines();
    at(99.);
    EXPECT_TRUE(takeLines().isEmpty());
    say(u"DONE x.wav"_s);
    EXPECT_TRUE(logHas(u"播放列表结束（随机 · 不循环）"_s));
}

TEST_P(Preloading, AListThatChangedUnderRandomOrderIsMatchedByFile)
{
    open(8);
    m_window->setOrderAxis(1);
    m_window->startPlayback(0);
    at(99.);
    const QString handed = takeLines().last().mid(5);
    const int row = ui().playlist->rowOfPath(handed);
    ASSERT_TRUE(m_window->moveRow(row, row == 7 ? 1 : 7));
    at(0.1);
    EXPECT_EQ(fileAt(start().currentRow), handed);
    EXPECT_TRUE(logHas(u"按文件对回"_s));
}

TEST_P(Preloading, OnlyTheNextTrackOfASheetIsHandedOver)
{
    PlaylistEntry entry;
    entry.path = fileAt(0);
    entry.cuePath = m_root.filePath(u"a.cue"_s);
    for (const int track : {1, 2, 4}) {
        entry.track = track;
        entry.text = u"%1. Song"_s.arg(track);
        ui().playlist->appendEntry(entry);
    }
    m_window->startPlayback(3);
    takeLines();
    at(99.);
    EXPECT_EQ(takeLines(), QStringList{u"load "_s + entry.path}) << "the engine takes it for track 2";
    at(0.1);
    EXPECT_EQ(start().currentRow, 4) << "and not the plain row of the same path";
    EXPECT_FALSE(logHas(u"按文件对回"_s));

    at(99.);
    at(99.1);
    EXPECT_TRUE(takeLines().isEmpty()) << "the engine would take it for track 3";
    EXPECT_EQ(takeLog().count(u"不提前装载下一首 (4. Song)"_s), 1);
    say(u"DONE a.wav"_s);
    EXPECT_EQ(takeLines(), QStringList{u"load-cue 4 "_s + entry.cuePath});
    EXPECT_EQ(start().currentRow, 5);
}

TEST_P(Preloading, RandomOrderPlaysTheTracksOfAnImageThatItShows)
{
    open(1);
    m_window->clearPlaylist();
    addFiles(1);
    PlaylistEntry entry = ui().playlist->entryAt(0);
    m_window->clearPlaylist();
    entry.isoPath = entry.path;
    for (entry.track = 1; entry.track <= 8; ++entry.track)
        ui().playlist->appendEntry(entry);
    m_window->setOrderAxis(1);
    m_window->startPlayback(0);
    int sounding = 1;
    for (int i = 1; i < 8; ++i) {
        takeLines();
        at(99.);
        if (const QStringList handed = takeLines(); !handed.isEmpty()) {
            EXPECT_EQ(handed, QStringList{u"load "_s + entry.path});
            ++sounding; // what an engine makes of the image's path
            at(0.1);
        } else {
            say(u"DONE a.iso"_s);
            const QString line = takeLines().value(0);
            ASSERT_TRUE(line.startsWith(u"load-iso "_s)) << qPrintable(line);
            sounding = line.section(u' ', 1, 1).toInt();
        }
        EXPECT_EQ(ui().playlist->entryAt(start().playingRow).track, sounding);
    }
}

TEST_P(Preloading, ASheetsTrackThatMovedIsFoundByItsNumber)
{
    appendSheet(3);
    m_window->startPlayback(3);
    at(99.);
    ASSERT_TRUE(m_window->moveRow(4, 5)) << "track 2 behind track 3";
    at(0.1);
    EXPECT_EQ(start().currentRow, 5);
    EXPECT_EQ(ui().playlist->entryAt(start().playingRow).track, 2);
    EXPECT_TRUE(logHas(u"按文件对回第 6/6 首"_s));
}

TEST_P(Preloading, ATrackThatWasHandedOverIsTheLastPlayed)
{
    m_window->startPlayback(0);
    at(99.);
    at(0.1);
    const QString path = fileAt(1);
    EXPECT_TRUE(eventually([&] { return readUserSetting(settings::lastPlayed) == path; }));
    EXPECT_EQ(readUserSetting(settings::lastPlayedKey), rowKey(ui().playlist->entryAt(1)));
}

// ── nothing is heard ──

class NoAudio : public BothKinds
{
};
INSTANTIATE_TEST_SUITE_P(Kinds, NoAudio, testing::Bool(), kindName);

TEST_P(NoAudio, AnOpenDeviceThatStaysSilentIsAnError)
{
    m_window->startPlayback(0);
    say(u"OPENED hw:0 44100"_s);
    EXPECT_TRUE(
        eventually([this] { return logHas(u"仍没有音频样本 —— 引擎最后一行: OPENED hw:0 44100"_s); }));
    EXPECT_TRUE(logHas(u"按顺序查"_s));
    EXPECT_TRUE(m_engine.current->isRunning()) << "nothing else happens";
    EXPECT_TRUE(start().uiPlaying);
}

TEST_P(NoAudio, ADeviceThatWasNeverOpenedIsNamed)
{
    m_window->startPlayback(0);
    EXPECT_TRUE(eventually([this] { return logHas(u"**设备从未打开**"_s); }));
    EXPECT_TRUE(logHas(u"(没有任何输出)"_s));
}

TEST_P(NoAudio, LevelsEndTheWaiting)
{
    m_window->startPlayback(0);
    say(u"LVL -10 -10"_s);
    QTest::qWait(60);
    EXPECT_FALSE(logHas(u"按顺序查"_s));
}

TEST_P(NoAudio, APauseIsNoSilence)
{
    m_window->startPlayback(0);
    m_window->togglePause();
    QTest::qWait(60);
    EXPECT_FALSE(logHas(u"按顺序查"_s));
}

// ── inside a container ──

TEST_P(TrackEnd, ASegmentIsTheLastPlayedRow)
{
    const PlaylistEntry entry = appendSheet(2);
    m_window->startPlayback(3);
    say(u"SEG 0 100 2"_s);
    EXPECT_EQ(start().lastPlayedKey, rowKey(entry));
    EXPECT_EQ(readUserSetting(settings::lastPlayedKey), rowKey(entry));
    EXPECT_EQ(m_window->lastPlayedRow(), 4);
    say(u"SEG 0 100 0"_s);
    EXPECT_EQ(start().lastPlayedKey, rowKey(entry));
}
