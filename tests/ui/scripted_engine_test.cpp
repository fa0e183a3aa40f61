// The window, its sessions of both kinds, and an engine at the other end that does what a track's name says.
#include "playback_fixture.h"

#include "engine/engine_library.h"

#include <QFile>

using namespace Qt::StringLiterals;

class ScriptedEngine : public PlaybackTest, public testing::WithParamInterface<bool>
{
protected:
    void SetUp() override
    {
        PlaybackTest::SetUp();
        // These engines are real: on a busy machine their ends take time, which is not to be taken for a
        // hang.
        m_times.stop = m_times.rebuild = m_times.replace = kelp_test::patienceMs;
        m_record = m_root.filePath(u"record"_s);
        qputenv("KELP_TEST_RECORD", QFile::encodeName(m_record));
        qputenv("KELP_GUI_INPROC", GetParam() ? "1" : "0");
        qputenv("KELP_PLAYER_BIN", KELP_TEST_ENGINE_PROGRAM);
        m_makeSession = [](QObject *parent, const SessionOptions &asked) {
            static kelp::EngineLibrary library({QString::fromUtf8(KELP_TEST_ENGINE_LIBRARY)});
            SessionOptions options = asked;
            options.library = &library;
            return makeSession(parent, options);
        };
    }
    void TearDown() override
    {
        for (const QString &path : m_hanging)
            touch(path + u".release"_s);
        PlaybackTest::TearDown();
        qunsetenv("KELP_TEST_RECORD");
    }
    static void touch(const QString &path)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    void list(const QStringList &names)
    {
        makeWindow();
        for (const QString &name : names) {
            const QString path = m_root.filePath(name);
            touch(path);
            m_window->appendFile(path);
            if (name.contains(u".hang."_s))
                m_hanging.append(path);
        }
        takeLog();
    }
    /// What the engine was told.
    QStringList told() const
    {
        QFile file(m_record);
        QStringList lines;
        if (file.open(QIODevice::ReadOnly)) {
            const QStringList read = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
            for (const QString &line : read)
                lines.append(line.section(u'\t', 1));
        }
        return lines;
    }
    qsizetype starts() const { return told().count(u"start"_s); }
    bool waitLog(const QString &text)
    {
        return eventually([&] { return logHas(text); });
    }
    bool waitIdle()
    {
        return eventually([this] { return !start().uiPlaying && !m_window->sessionRuns(); });
    }

private:
    QString m_record;
    QStringList m_hanging;
};
INSTANTIATE_TEST_SUITE_P(Kinds, ScriptedEngine, testing::Bool(), kindName);

TEST_P(ScriptedEngine, AListIsOneSession)
{
    list({u"a.at50.done.wav"_s, u"b.at50.done.wav"_s, u"c.at50.done.wav"_s});
    m_window->startPlayback(0);
    ASSERT_TRUE(waitLog(u"播放列表结束（顺序 · 不循环）"_s));
    EXPECT_EQ(told().filter(QRegularExpression(u"^(start|load )"_s)),
              (QStringList{u"start"_s, load(0), load(1), load(2)}));
    EXPECT_TRUE(m_window->sessionRuns()) << "the session idles";
}

TEST_P(ScriptedEngine, EndsBeforeTheEndStopTheList)
{
    list({u"a.at94_9.exit0.wav"_s, u"b.wav"_s});
    m_window->startPlayback(0);
    ASSERT_TRUE(waitLog(u"未到结尾就结束（94.9%）"_s));
    EXPECT_TRUE(waitIdle());
    EXPECT_EQ(starts(), 1);
    EXPECT_EQ(start().currentRow, 0);
}

TEST_P(ScriptedEngine, EachCodeAtEachPositionEndsAsItShould)
{
    struct Case
    {
        const char *script;
        const char *said;
        bool goesOn;
    };
    const Case cases[] = {
        {"exit0", "未到结尾就结束（0.0%）", false},
        {"exit1", "播放器异常退出，代码: 1", false},
        {"exit3", "播放已停止", false},
        {"at50.exit0", "未到结尾就结束（50.0%）", false},
        {"at50.exit1", "播放器异常退出，代码: 1", false},
        {"at50.exit3", "播放已停止", false},
        {"at94_9.exit0", "未到结尾就结束（94.9%）", false},
        {"at94_9.exit1", "播放器异常退出，代码: 1", false},
        {"at94_9.exit3", "播放已停止", false},
        {"at95.exit0", "播放完成", true},
        {"at95.exit1", "播放完成", true},
        {"at95.exit3", "播放已停止", false},
        {"at100.exit0", "播放完成", true},
        {"at100.exit1", "播放完成", true},
        {"at100.exit3", "播放已停止", false},
    };
    QStringList names;
    for (const Case &each : cases)
        names << u"t%1.%2.wav"_s.arg(names.size(), 2, 10, QChar(u'0')).arg(QLatin1StringView(each.script))
              << u"next%1.at12.wav"_s.arg(names.size());
    list(names);
    int row = 0;
    for (const Case &each : cases) {
        takeLog();
        QString log;
        m_window->startPlayback(row);
        ASSERT_TRUE(eventually([&] {
            log += takeLog();
            return log.contains(QString::fromUtf8(each.said));
        })) << each.script;
        if (each.goesOn) {
            EXPECT_TRUE(eventually([&] { return progress().progressPercent == 12.; })) << each.script;
            m_window->stopPlayback();
        }
        EXPECT_TRUE(waitIdle()) << each.script;
        EXPECT_EQ(start().currentRow, row + (each.goesOn ? 1 : 0)) << each.script;
        row += 2;
    }
}

TEST_P(ScriptedEngine, AStopInTheMiddleEndsIdleAndTheNextStartIsANewSession)
{
    list({u"a.at50.wav"_s, u"b.at30.wav"_s});
    m_window->startPlayback(0);
    ASSERT_TRUE(eventually([this] { return progress().progressPercent == 50.; }));
    m_window->stopPlayback();
    ASSERT_TRUE(waitIdle());
    EXPECT_TRUE(waitLog(u"播放已停止"_s));
    EXPECT_EQ(readUserSetting(settings::resumeSec), 50.);
    m_window->startPlayback(1);
    ASSERT_TRUE(eventually([this] { return progress().progressPercent == 30.; }));
    EXPECT_EQ(starts(), 2);
}

TEST_P(ScriptedEngine, ADoubleClickWhileLoadingEndsWithTheLastOneChosen)
{
    list({u"a.at50.wav"_s, u"b.at40.wav"_s, u"c.at30.wav"_s});
    m_window->startPlayback(0);
    m_window->startPlayback(2);
    m_window->startPlayback(1);
    ASSERT_TRUE(eventually([this] { return progress().progressPercent == 40.; }));
    EXPECT_EQ(told().filter(QRegularExpression(u"^load "_s)), (QStringList{load(0), load(2), load(1)}));
    EXPECT_EQ(starts(), 1);
    EXPECT_EQ(start().playingRow, 1);
    EXPECT_TRUE(start().uiPlaying);
}

TEST_P(ScriptedEngine, ADeviceChangedWhileATrackStartsIsOpenedForTheNext)
{
    list({u"a.at50.wav"_s, u"b.at30.wav"_s});
    m_window->startPlayback(0);
    ui().device->setCurrentIndex(2);
    m_window->startPlayback(1);
    ASSERT_TRUE(eventually([this] { return progress().progressPercent == 30.; }));
    EXPECT_EQ(starts(), 2);
    EXPECT_EQ(start().playingRow, 1);
    EXPECT_TRUE(start().uiPlaying);
    EXPECT_FALSE(start().sessionClosing);
    EXPECT_TRUE(logHas(u"设备或布局有变"_s));
    EXPECT_FALSE(logHas(u"强制结束它"_s));
}

TEST_P(ScriptedEngine, AFileDeletedWhileItPlaysIsPlayedToItsEndAndSkippedNextTime)
{
    list({u"a.at50.wav"_s, u"b.at30.wav"_s});
    m_window->startPlayback(0);
    ASSERT_TRUE(eventually([this] { return progress().progressPercent == 50.; }));
    ASSERT_TRUE(QFile::remove(fileAt(0)));
    EXPECT_TRUE(start().uiPlaying);
    m_window->startPlayback(0);
    ASSERT_TRUE(eventually([this] { return progress().progressPercent == 30.; }));
    EXPECT_TRUE(logHas(u"跳过（文件不存在）: "_s + fileAt(0)));
    EXPECT_EQ(start().playingRow, 1);
    EXPECT_EQ(starts(), 1);
}

TEST_P(ScriptedEngine, ATotalThatJumpsIsTheTrackThatWasHandedOver)
{
    list({u"a.of2.at0_9.wav"_s, u"b.of180.at0_95.done.wav"_s});
    m_window->startPlayback(0);
    ASSERT_TRUE(waitLog(u"自动换曲（无缝/交叉淡化）: 第 2/2 首"_s));
    ASSERT_TRUE(waitLog(u"播放列表结束"_s));
    EXPECT_EQ(start().playingRow, 1);
}

TEST_P(ScriptedEngine, APositionThatRunsBackALittleIsTheSameTrack)
{
    list({u"a.at99.at98_5.at12.wav"_s, u"b.wav"_s});
    m_window->engineControls().gapless->setChecked(false);
    m_window->startPlayback(0);
    ASSERT_TRUE(eventually([this] { return progress().progressPercent == 12.; }));
    EXPECT_EQ(start().playingRow, 0) << "nothing was handed over, so nothing can have begun";
    EXPECT_FALSE(logHas(u"自动换曲"_s));
}

TEST_P(ScriptedEngine, ACodeOfOneBehindTheLastSecondsGoesOn)
{
    list({u"a.at96.exit1.wav"_s, u"b.at50.wav"_s});
    m_window->startPlayback(0);
    ASSERT_TRUE(eventually([this] { return progress().progressPercent == 50.; }));
    EXPECT_EQ(start().playingRow, 1);
    EXPECT_EQ(starts(), 2);
}

TEST_P(ScriptedEngine, ACodeOfThreeIsAStop)
{
    list({u"a.at50.exit3.wav"_s, u"b.wav"_s});
    m_window->startPlayback(0);
    ASSERT_TRUE(waitLog(u"播放已停止"_s));
    EXPECT_TRUE(waitIdle());
    EXPECT_EQ(start().currentRow, 0);
}

TEST_P(ScriptedEngine, TheNextTrackIsHandedOverAndFollowed)
{
    list({u"a.at99.wav"_s, u"b.at0_2.done.wav"_s});
    m_window->startPlayback(0);
    ASSERT_TRUE(waitLog(u"自动换曲（无缝/交叉淡化）: 第 2/2 首"_s));
    ASSERT_TRUE(waitLog(u"播放列表结束"_s));
    EXPECT_EQ(told().filter(QRegularExpression(u"^load "_s)), (QStringList{load(0), load(1)}));
}

TEST_P(ScriptedEngine, ACrashIsToldWithItsLastLineAndEndsIdle)
{
    if (GetParam())
        GTEST_SKIP() << "a crash of an engine inside this process ends the process";
    list({u"a.at50.crash.wav"_s, u"b.at96.crash.wav"_s, u"c.at30.wav"_s});
    m_window->startPlayback(0);
    ASSERT_TRUE(waitLog(u"播放器异常退出"_s));
    EXPECT_TRUE(waitIdle());
    m_window->startPlayback(1);
    ASSERT_TRUE(eventually([this] { return progress().progressPercent == 30.; }));
    EXPECT_EQ(start().playingRow, 2) << "a crash at the very end goes on";
}

TEST_P(ScriptedEngine, AHangAtStopIsEnforcedAsFarAsTheKindAllows)
{
    m_times.stop = 50;
    list({u"a.at50.hang.wav"_s, u"b.at50.wav"_s});
    m_window->startPlayback(0);
    ASSERT_TRUE(waitLog(u"HANGING"_s));
    m_window->stopPlayback();
    EXPECT_FALSE(start().uiPlaying) << "at once";
    if (!GetParam()) {
        ASSERT_TRUE(waitIdle());
        EXPECT_TRUE(logHas(u"强制结束。"_s));
        EXPECT_TRUE(logHas(u"停止时强杀"_s));
        m_window->startPlayback(1);
        ASSERT_TRUE(eventually([this] { return progress().progressPercent == 50.; }));
        return;
    }
    ASSERT_TRUE(waitLog(u"进程内会话无法强杀"_s));
    EXPECT_TRUE(m_window->sessionRuns());
    touch(fileAt(0) + u".release"_s);
    ASSERT_TRUE(waitIdle());
    m_window->startPlayback(1);
    ASSERT_TRUE(eventually([this] { return progress().progressPercent == 50.; }));
}

TEST_P(ScriptedEngine, AHangAtAChangeOfDeviceIsWaitedForAndEnforced)
{
    m_times.rebuild = 50;
    m_times.replace = 50;
    list({u"a.at50.hang.wav"_s, u"b.at50.wav"_s});
    m_window->startPlayback(0);
    ASSERT_TRUE(waitLog(u"HANGING"_s));
    ui().device->setCurrentIndex(2);
    m_window->startPlayback(1);
    EXPECT_TRUE(logHas(u"旧会话 10 秒内没有退出"_s));
    if (!GetParam()) {
        ASSERT_TRUE(eventually([this] { return progress().progressPercent == 50.; }));
        EXPECT_EQ(start().playingRow, 1);
        return;
    }
    // It cannot be ended, so there is no second session beside it: the window is idle and says why.
    EXPECT_FALSE(start().uiPlaying);
    EXPECT_TRUE(logHas(u"播放器启动失败"_s));
}

TEST_P(ScriptedEngine, TwentyStepsArriveInTheirOrder)
{
    QStringList names;
    for (int i = 0; i < 22; ++i)
        names.append(u"t%1.wav"_s.arg(i));
    names[20] = u"t20.at50.wav"_s;
    list(names);
    m_window->startPlayback(0);
    for (int i = 0; i < 20; ++i)
        m_window->stepRow(1);
    ASSERT_TRUE(eventually([this] { return progress().progressPercent == 50.; }));
    QStringList expected;
    for (int row = 0; row <= 20; ++row)
        expected.append(load(row));
    EXPECT_EQ(told().filter(QRegularExpression(u"^load "_s)), expected);
    EXPECT_EQ(starts(), 1);
    EXPECT_EQ(start().playingRow, 20);
}
