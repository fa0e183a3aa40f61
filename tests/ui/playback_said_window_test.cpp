// What is said while tracks start, stop and end, and which of it is an error.
#include "playback_fixture.h"

#include "playback/container_listing.h"
#include "ui/dock_bar.h"

#include <QDir>
#include <QFile>
#include <QLabel>

using namespace Qt::StringLiterals;

class Said : public BothKinds
{
protected:
    /// Whether the last line that holds the text was said as an error; empty when none holds it.
    std::optional<bool> asError(const QString &text)
    {
        const QList<LogEntry> &entries = WindowInspector::log(*m_window).unread;
        for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
            if (entry->text.contains(text))
                return entry->isError;
        }
        return std::nullopt;
    }
    QString message() { return ui().message->text(); }
};
INSTANTIATE_TEST_SUITE_P(Kinds, Said, testing::Bool(), kindName);

TEST_P(Said, AStartIsAnnouncedInTheWordsOfItsKind)
{
    writeUserSetting(settings::engineInproc, GetParam());
    m_window->startPlayback(0);
    EXPECT_EQ(asError(GetParam() ? u"[进程内 DLL] 会话参数: -stream "_s : u"播放命令: /bin/true -stream "_s),
              false);
    EXPECT_EQ(asError(GetParam() ? u"播放命令"_s : u"会话参数"_s), std::nullopt);
    m_window->stepRow(1);
    EXPECT_EQ(asError(u"复用当前会话（换曲只发 load，不重发参数）: "_s + fileAt(1)), false);
}

TEST_P(Said, TheEnginesLogIsNamedAndWhetherItIsKept)
{
    m_window->startPlayback(0);
    EXPECT_EQ(asError(u"引擎日志（本次会话，退出时删除）: "_s), false);
    m_window->stopPlayback();
    settle();
    writeUserSetting(settings::keepEngineLog, true);
    m_window->startPlayback(0);
    EXPECT_EQ(asError(u"引擎日志（保留，退出时不删）: "_s), false);
}

TEST_P(Said, AMissingFileIsAnErrorAndTheEndOfTheListIsNone)
{
    for (int row = 0; row < 3; ++row)
        QFile::remove(fileAt(row));
    m_window->startPlayback(0);
    EXPECT_EQ(asError(u"跳过（文件不存在）: "_s + fileAt(2)), true);
    EXPECT_EQ(asError(u"播放列表结束"_s), false);
    EXPECT_EQ(start().currentRow, 3) << "one past the end";
    EXPECT_TRUE(m_engine.calls.isEmpty()) << "and nothing else happens";
}

TEST_P(Said, AFolderIsNoFileAndIsSkipped)
{
    const QString path = m_root.filePath(u"folder.wav"_s);
    ASSERT_TRUE(QDir().mkpath(path));
    PlaylistEntry entry;
    entry.path = path;
    ui().playlist->appendEntry(entry);
    m_window->appendFile(fileAt(0));
    m_window->startPlayback(3);
    EXPECT_EQ(start().playingRow, 4);
    EXPECT_EQ(asError(u"跳过（文件不存在）: "_s + path), true);
}

TEST_P(Said, ASessionThatDoesNotStartIsAnError)
{
    m_engine.startCode = session_code::couldNotStart;
    m_engine.lastError = u"no such program"_s;
    m_window->startPlayback(0);
    EXPECT_EQ(asError(u"播放器启动失败（会话 start 返回 -3）⇒ 回到未播放状态"_s), true);
    EXPECT_EQ(asError(u"no such program"_s), true) << "with the reason that is known";
}

TEST_P(Said, AnOldSessionIsDisconnectedFirstAndGivenUpWithAnError)
{
    m_window->startPlayback(0);
    m_engine.endsOnStop = false;
    m_window->stopPlayback();
    m_engine.calls.clear();
    m_window->startPlayback(1);
    EXPECT_EQ(asError(u"旧会话还没退出 ⇒ 先断开它再起播"_s), true);
    EXPECT_EQ(asError(u"旧会话仍未退出，无法开始新的播放"_s), true);
    EXPECT_EQ(m_engine.calls, (QStringList{u"close"_s, u"wait 2000"_s, u"terminate"_s, u"wait 1000"_s}));
    EXPECT_EQ(start().currentRow, 0) << "the row is not taken";
    end(3);
    m_window->startPlayback(1);
    EXPECT_TRUE(start().uiPlaying) << "once it has gone, the next start is like any other";
    m_engine.endsOnStop = true;
}

TEST_P(Said, ARebuildIsReportedAndAForcedOneIsAnError)
{
    m_window->startPlayback(0);
    ui().device->setCurrentIndex(2);
    m_window->startPlayback(1);
    EXPECT_EQ(asError(u"设备或布局有变 -> 关闭当前会话（释放设备）"_s), false);
    EXPECT_EQ(asError(u"旧会话 10 秒内没有退出"_s), std::nullopt);
    m_engine.endsOnStop = false;
    ui().device->setCurrentIndex(1);
    m_window->startPlayback(2);
    EXPECT_EQ(asError(u"旧会话 10 秒内没有退出 —— 强制结束它（设备可能要再等一会儿才释放）"_s), true);
    m_engine.endsOnStop = true;
}

TEST_P(Said, AStopSaysThatItHasBegunAndThatItHasEnded)
{
    m_window->startPlayback(0);
    m_window->stopPlayback();
    settle();
    EXPECT_EQ(asError(u"正在停止播放器..."_s), false);
    EXPECT_EQ(asError(u"停止信号已发送"_s), false);
    EXPECT_EQ(asError(u"播放已停止"_s), false);
    m_window->stopPlayback();
    EXPECT_EQ(asError(u"没有正在运行的播放任务"_s), false);
}

TEST_P(Said, EachEndOfASessionIsAnErrorOrNone)
{
    struct Case
    {
        double percent;
        int code;
        const char *said;
        bool isError;
    };
    for (const Case &each :
         {Case{50., 0, "未到结尾就结束（50.0%），已停止，不继续下一首", true},
          Case{50., 1, "播放器异常退出，代码: 1", true}, Case{50., 1, "  引擎最后一行: the last words", true},
          Case{50., 3, "播放已停止", false}, Case{97., 0, "播放完成", false},
          Case{97., 0, "播放列表结束（顺序 · 不循环）", false}}) {
        open();
        m_window->startPlayback(2);
        at(each.percent);
        say(u"the last words"_s);
        end(each.code);
        EXPECT_EQ(asError(QString::fromUtf8(each.said)), each.isError) << each.said;
    }
}

TEST_P(Said, AStepOutOfTheListIsAnError)
{
    m_window->startPlayback(0);
    m_window->stepRow(-1);
    EXPECT_EQ(asError(u"已经是第一首"_s), true);
    m_window->startPlayback(2);
    m_window->stepRow(1);
    EXPECT_EQ(asError(u"已经是最后一首"_s), true);
    m_window->moveRow(0, 9);
    EXPECT_EQ(asError(u"移动失败: 行号越界 (from=0 to=9, 列表共 3 项)"_s), true);
    m_window->clearPlaylist();
    EXPECT_EQ(asError(u"播放列表已清空"_s), false);
    m_window->stepRow(1);
    EXPECT_EQ(asError(u"播放列表是空的"_s), true);
    m_window->startPlayback();
    EXPECT_EQ(asError(u"错误: 请先添加音频文件"_s), true);
}

TEST_P(Said, WhatIsMatchedBackByItsFileIsAnError)
{
    m_window->startPlayback(0);
    at(99.);
    ASSERT_TRUE(m_window->moveRow(1, 2));
    at(0.1);
    EXPECT_EQ(asError(u"自动换曲: 曲尾时列表/顺序变了，按文件对回第 3/3 首"_s), true);
    EXPECT_EQ(asError(u"自动换曲（无缝/交叉淡化）: 第 3/3 首: b.wav"_s), false);
}

TEST_P(Said, SilenceAfterAnOpenedDeviceIsAnErrorAndADeviceThatIsNotOpenIsNone)
{
    m_window->startPlayback(0);
    ASSERT_TRUE(eventually([this] { return asError(u"按顺序查"_s).has_value(); }));
    EXPECT_EQ(asError(u"**设备从未打开**"_s), false);
    EXPECT_EQ(asError(u"  按顺序查: (1)"_s), true);
    m_window->stepRow(1);
    say(u"shared mode 48000"_s);
    ASSERT_TRUE(eventually([this] { return asError(u"起播 5 秒仍没有音频样本"_s).has_value(); }));
    EXPECT_EQ(asError(u"起播 5 秒仍没有音频样本 —— 引擎最后一行: shared mode 48000"_s), true);
}

TEST_P(Said, ALoopThatCannotBeIsAnErrorAndOneThatBeginsIsNone)
{
    m_window->startPlayback(0);
    at(10.);
    m_window->markA();
    m_window->markB();
    EXPECT_EQ(asError(u"B 点必须在 A 点之后"_s), true);
    at(20.);
    m_window->markB();
    EXPECT_EQ(asError(u"已开始（单曲循环"_s), false);
    m_window->stepRow(1);
    EXPECT_EQ(asError(u"为上一首设的 A/B 点已作废"_s), false);
}

TEST_P(Said, ASegmentIsShownAsTheTrackThatPlays)
{
    appendSheet(2);
    m_window->startPlayback(3);
    say(u"SEG 0 100 2"_s);
    EXPECT_EQ(message(), u"正在播放… 5/5"_s);
    say(u"SEG 0 100 7"_s);
    EXPECT_EQ(message(), u"正在播放… 5/5"_s) << "a track that is not listed has no row to show";
}

TEST_P(Said, AClosedProgramTellsWhatItWaitsFor)
{
    testing::internal::CaptureStderr();
    m_window->killProc(false);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "[gui] killProc: no player process running, exiting\n");
    m_window->startPlayback(0);
    settle();
    testing::internal::CaptureStderr();
    m_window->killProc(true);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "[gui] killProc: sent stop, waiting up to 5000 ms to finish\n");
    EXPECT_EQ(asError(u"播放已停止"_s), std::nullopt) << "quiet";
    settle();
    m_window->startPlayback(0);
    m_window->killProc(false);
    EXPECT_EQ(asError(u"播放已停止"_s), false);
    EXPECT_TRUE(start().userStopped);
}

// ── what a running session is told late ──

TEST_P(Said, KeptHarmonicsAreSentToARunningSessionOnlyWithATier)
{
    EngineControls &engine = m_window->engineControls();
    engine.denoiseTier->setCurrentIndex(2);
    m_window->startPlayback(0);
    takeLines();
    engine.keepHarmonics->setChecked(true);
    m_window->stepRow(1);
    EXPECT_EQ(takeLines(), (QStringList{load(1), u"fx harmonics on"_s}));
    m_window->stepRow(1);
    EXPECT_EQ(takeLines(), QStringList{load(2)}) << "told once";
    engine.denoiseTier->setCurrentIndex(3);
    m_window->startPlayback(0);
    EXPECT_EQ(takeLines(), (QStringList{load(0), u"fx denoise deep"_s}));
    EXPECT_EQ(asError(u"向运行中的会话补发降噪档: deep（复用会话不会重读命令行参数）"_s), false);
    open();
    m_window->startPlayback(0);
    start().sessionHarmonics = !start().sessionHarmonics;
    m_window->engineControls().denoiseTier->setCurrentIndex(0);
    takeLines();
    m_window->startPlayback(0);
    EXPECT_TRUE(takeLines().filter(u"harmonics"_s).isEmpty());
}

// ── the next track ──

TEST_P(Said, TheOnlyTrackOfARepeatedListIsNotHandedOverToItself)
{
    open(1);
    m_window->setRepeatAxis(1);
    m_window->startPlayback(0);
    takeLines();
    at(99.);
    EXPECT_TRUE(takeLines().isEmpty());
    say(u"DONE a.wav"_s);
    EXPECT_EQ(takeLines(), QStringList{load(0)});
}

TEST_P(Said, AHandedOverRowThatWasRemovedIsNotFollowedAndItsEndGoesOn)
{
    open(4);
    m_window->startPlayback(0);
    at(99.);
    const QString removed = fileAt(1);
    ui().playlist->setCurrentRow(1, QItemSelectionModel::ClearAndSelect);
    m_window->removeSelectedRows();
    at(0.1);
    EXPECT_EQ(start().playingRow, 0);
    takeLines();
    say(u"DONE "_s + removed);
    EXPECT_EQ(takeLines(), QStringList{load(1)}) << "what stands behind the row that is shown";
    EXPECT_EQ(start().playingRow, 1);
}

TEST_P(Said, AListThatWasClearedAfterTheHandOverEndsWithTheSound)
{
    m_window->startPlayback(0);
    at(99.);
    const QString handed = fileAt(1);
    m_window->clearPlaylist();
    at(0.1);
    EXPECT_TRUE(start().uiPlaying);
    say(u"DONE "_s + handed);
    EXPECT_FALSE(start().uiPlaying);
    EXPECT_EQ(asError(u"播放列表结束（顺序 · 不循环）"_s), false);
}

// ── pause and silence ──

TEST_P(Said, TheStartButtonStartsWhereNoSessionRuns)
{
    ui().playlist->setCurrentRow(1);
    m_window->togglePause();
    EXPECT_EQ(start().playingRow, 1);
    EXPECT_FALSE(start().paused);
}

TEST_P(Said, ASpectrumEndsTheWaitingForSound)
{
    m_window->startPlayback(0);
    ASSERT_TRUE(WindowInspector::link(*m_window).noAudioTimer->isActive());
    say(u"SPC 1 2 3 4"_s);
    EXPECT_FALSE(WindowInspector::link(*m_window).noAudioTimer->isActive());
}

TEST_P(Said, AResumedSessionIsWaitedForAnew)
{
    m_window->startPlayback(0);
    say(u"LVL -10 -10"_s);
    m_window->togglePause();
    EXPECT_FALSE(WindowInspector::link(*m_window).noAudioTimer->isActive());
    m_window->togglePause();
    EXPECT_TRUE(WindowInspector::link(*m_window).noAudioTimer->isActive());
}

TEST_P(Said, TheVolumeStandsInPercentBesideItsSlider)
{
    ui().dock->volume->setValue(37);
    QStringList texts;
    for (const QLabel *label : ui().dock->findChildren<QLabel *>())
        texts.append(label->text());
    EXPECT_TRUE(texts.contains(u"37%"_s));
}

// ── sheets ──

TEST_P(Said, ASheetAddedTwiceIsStoppedWhileItsListingIsOutAndListedTwiceAfterwards)
{
    const QString sheet = m_root.filePath(u"a.cue"_s);
    QFile file(sheet);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const QString audio = fileAt(0);
    m_probe = [audio](const QStringList &) {
        return PlayerProbeResult{0, u"CUE\tAlbum\tWer\nTRACK\t1\t0\t60\tEins\t\t%1\n"_s.arg(audio)};
    };
    open();
    int done = 0;
    m_window->addPaths({sheet, sheet}, [&done] { ++done; });
    m_window->addPaths({sheet}, [&done] { ++done; });
    ASSERT_TRUE(eventually([&done] { return done == 2; }));
    EXPECT_EQ(ui().playlist->count(), 4) << "one set";
    EXPECT_EQ(asError(u"CUE: Album — Wer"_s), false);
    m_window->addPaths({sheet}, [&done] { ++done; });
    ASSERT_TRUE(eventually([&done] { return done == 3; }));
    EXPECT_EQ(ui().playlist->count(), 5) << "two sets";
}

TEST_P(Said, AListingThatFailsIsAnErrorOfItsContainer)
{
    for (const auto &[name, said] :
         {std::pair(u"a.cue"_s, u"CUE 解析失败"_s), std::pair(u"d.iso"_s, u"ISO 解析失败"_s)}) {
        QFile file(m_root.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        m_probe = [](const QStringList &) { return PlayerProbeResult{-4, {}}; };
        open();
        bool done = false;
        m_window->addPaths({m_root.filePath(name)}, [&done] { done = true; });
        ASSERT_TRUE(eventually([&done] { return done; }));
        EXPECT_EQ(asError(u"(rc=-4)"_s), true);
    }
}
