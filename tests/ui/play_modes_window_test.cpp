// Order, repeat, A/B loop, speed, volume and sleep, in the window.
#include "playback_fixture.h"

#include "playback/play_speed.h"
#include "tests/support/settings_on_disk.h"
#include "ui/dock_bar.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

class PlayModes : public PlaybackTest
{
protected:
    void SetUp() override
    {
        PlaybackTest::SetUp();
        open();
    }
    /// Plays row 0 with a loop from 10 to 20 seconds.
    void loopTenToTwenty()
    {
        m_window->startPlayback(0);
        at(10.);
        m_window->markA();
        at(20.);
        takeLines();
        m_window->markB();
    }
    RepeatAxis repeat() { return transport().order.repeat; }
};

TEST_F(PlayModes, AnAxisIsStoredAndLoggedAndShown)
{
    const QSignalSpy shown(m_window.get(), &PlayerGuiWindow::playOrderShown);
    m_window->setOrderAxis(1);
    EXPECT_EQ(readUserSetting(settings::orderAxis), 1);
    EXPECT_TRUE(logHas(u"播放顺序: 随机 · 不循环"_s));
    m_window->setRepeatAxis(1);
    EXPECT_EQ(readUserSetting(settings::repeatAxis), 1);
    EXPECT_TRUE(logHas(u"播放顺序: 随机 · 列表循环"_s));
    ASSERT_EQ(shown.size(), 2);
    EXPECT_EQ(shown.last(), (QVariantList{1, 1, u"随机 · 列表循环"_s}));
    open();
    EXPECT_EQ(transport().order.order, OrderAxis::Random) << "kept over a restart";
    EXPECT_EQ(repeat(), RepeatAxis::List);
}

TEST_F(PlayModes, CyclingGoesThroughAllAndBeginsAgain)
{
    QList<int> orders, repeats;
    for (int i = 0; i < 3; ++i) {
        m_window->cycleOrder();
        orders.append(static_cast<int>(transport().order.order));
        m_window->cycleRepeat();
        repeats.append(static_cast<int>(repeat()));
    }
    EXPECT_EQ(orders, (QList{1, 0, 1}));
    EXPECT_EQ(repeats, (QList{1, 2, 0}));
}

TEST_F(PlayModes, TheFormerSingleKeySetsBothAxes)
{
    struct Case
    {
        int stored, order, repeat;
    };
    for (const Case &each : {Case{0, 0, 0}, Case{1, 1, 0}, Case{2, 0, 1}, Case{3, 0, 2}, Case{4, 0, 0}}) {
        m_window.reset();
        SettingsOnDisk().clear();
        writeUserSetting(settings::playOrder, each.stored);
        open();
        EXPECT_EQ(static_cast<int>(transport().order.order), each.order) << each.stored;
        EXPECT_EQ(static_cast<int>(repeat()), each.repeat) << each.stored;
    }
}

TEST_F(PlayModes, SavingKeepsTheAxes)
{
    m_window->setOrderAxis(1);
    m_window->setRepeatAxis(2);
    m_window->saveParams();
    EXPECT_EQ(readUserSetting(settings::orderAxis), 1);
    EXPECT_EQ(readUserSetting(settings::repeatAxis), 2);
}

TEST_F(PlayModes, AStartByHandBeginsTheRandomRoundAnew)
{
    m_window->setOrderAxis(1);
    m_window->startPlayback(0);
    say(u"DONE a.wav"_s);
    EXPECT_FALSE(transport().order.playedBits.empty());
    m_window->startPlayback(1);
    EXPECT_TRUE(transport().order.playedBits.empty());
    say(u"DONE b.wav"_s);
    say(u"DONE x.wav"_s);
    EXPECT_TRUE(start().uiPlaying) << "two more have played";
    say(u"DONE x.wav"_s);
    EXPECT_FALSE(start().uiPlaying);
}

TEST_F(PlayModes, ARepeatedListGoesOnWithItsFirstRow)
{
    m_window->setRepeatAxis(1);
    m_window->startPlayback(2);
    takeLines();
    say(u"DONE c.wav"_s);
    EXPECT_EQ(takeLines(), QStringList{load(0)});
}

// ── the A/B loop ──

TEST_F(PlayModes, TheSecondMarkStartsTheLoopAndForcesTheRepeat)
{
    m_window->setRepeatAxis(1);
    const QSignalSpy shown(m_window.get(), &PlayerGuiWindow::abLoopShown);
    loopTenToTwenty();
    EXPECT_EQ(takeLines(), QStringList{u"ab 10.000 20.000"_s});
    EXPECT_EQ(repeat(), RepeatAxis::Track);
    EXPECT_TRUE(logHas(u"A/B 循环: 10.000s → 20.000s 已开始"_s));
    EXPECT_EQ(shown.last(), (QVariantList{10., 20.}));
    EXPECT_EQ(readUserSetting(settings::repeatAxis), 1) << "what is forced was not chosen";
    m_window->saveParams();
    EXPECT_EQ(readUserSetting(settings::repeatAxis), 1);
}

TEST_F(PlayModes, ClearingTheLoopBringsTheOrderBack)
{
    m_window->setRepeatAxis(1);
    loopTenToTwenty();
    takeLines();
    m_window->clearAbLoop();
    EXPECT_EQ(takeLines(), QStringList{u"ab off"_s});
    EXPECT_EQ(repeat(), RepeatAxis::List);
    EXPECT_TRUE(logHas(u"播放顺序恢复为 顺序 · 列表循环"_s));
    EXPECT_FALSE(transport().abLoop.isMarked());
    EXPECT_EQ(transport().abLoop.row, -1);
    m_window->clearAbLoop();
    EXPECT_TRUE(takeLog().trimmed().endsWith(u"A/B 循环: 已清除"_s));
}

TEST_F(PlayModes, AnEndEqualToTheBeginningIsRefused)
{
    m_window->startPlayback(0);
    at(10.);
    m_window->markA();
    takeLines();
    m_window->markB();
    EXPECT_TRUE(takeLines().isEmpty());
    EXPECT_TRUE(logHas(u"B 点必须在 A 点之后（A=10.000s, B=10.000s）"_s));
    EXPECT_EQ(repeat(), RepeatAxis::None);
    at(15.);
    m_window->markB();
    EXPECT_EQ(takeLines(), QStringList{u"ab 10.000 15.000"_s}) << "a second try";
}

TEST_F(PlayModes, AnotherEndMovesTheLoopAndKeepsWhatWasSaved)
{
    m_window->setRepeatAxis(1);
    loopTenToTwenty();
    at(18.);
    takeLines();
    m_window->markB();
    EXPECT_EQ(takeLines(), QStringList{u"ab 10.000 18.000"_s});
    m_window->clearAbLoop();
    EXPECT_EQ(repeat(), RepeatAxis::List);
}

TEST_F(PlayModes, AnotherTrackDiscardsTheLoop)
{
    loopTenToTwenty();
    takeLines();
    m_window->stepRow(1);
    EXPECT_EQ(takeLines(), (QStringList{u"ab off"_s, load(1)}));
    EXPECT_TRUE(logHas(u"为上一首设的 A/B 点已作废"_s));
    EXPECT_EQ(repeat(), RepeatAxis::None) << "the next track is not repeated";
    EXPECT_FALSE(transport().abLoop.isMarked());
}

TEST_F(PlayModes, OneMarkIsDiscardedAsWell)
{
    m_window->startPlayback(0);
    at(10.);
    m_window->markA();
    m_window->stepRow(1);
    EXPECT_TRUE(logHas(u"A/B 点已作废"_s));
    at(20.);
    takeLines();
    m_window->markB();
    EXPECT_TRUE(takeLines().isEmpty());
}

TEST_F(PlayModes, APreloadedTrackDiscardsTheLoop)
{
    m_window->startPlayback(0);
    at(10.);
    m_window->markA();
    at(99.);
    at(0.1);
    EXPECT_EQ(start().currentRow, 1);
    EXPECT_TRUE(logHas(u"A/B 点已作废"_s));
}

TEST_F(PlayModes, ALoopClosedAfterTheHandOverKeepsItsTrack)
{
    m_window->startPlayback(0);
    at(10.);
    m_window->markA();
    at(99.);
    EXPECT_TRUE(WindowInspector::preload(*m_window).pending);
    m_window->markB();
    takeLines();
    at(10.1);
    at(98.9);
    at(10.1);
    EXPECT_EQ(start().currentRow, 0) << "the loop jumps back; the engine has not gone on";
    EXPECT_TRUE(takeLines().isEmpty());
    EXPECT_FALSE(logHas(u"A/B 点已作废"_s));
    at(0.1);
    EXPECT_EQ(start().currentRow, 1) << "before point A it has";
}

TEST_F(PlayModes, ALoopMarkedWhileIdleWaitsForItsTrack)
{
    m_window->startPlayback(0);
    at(10.);
    m_window->markA();
    at(20.);
    m_window->stopPlayback();
    settle();
    m_window->markB();
    EXPECT_TRUE(logHas(u"A/B 循环: 已标记，开始播放时生效"_s));
    takeLines();
    const QSignalSpy shown(m_window.get(), &PlayerGuiWindow::abLoopShown);
    m_window->startPlayback(0);
    EXPECT_EQ(takeLines(), (QStringList{u"loadat 20.000 "_s + fileAt(0), u"ab 10.000 20.000"_s}))
        << "behind the track that it belongs to";
    EXPECT_EQ(shown.last(), (QVariantList{10., 20.}));
}

TEST_F(PlayModes, ALoopComesBackAfterARebuildOfItsOwnTrack)
{
    loopTenToTwenty();
    takeLines();
    ui().device->setCurrentIndex(2);
    m_window->startPlayback(0);
    EXPECT_EQ(takeLines(), (QStringList{u"stop"_s, u"loadat 20.000 "_s + fileAt(0), u"ab 10.000 20.000"_s}));
}

TEST_F(PlayModes, AStopClearsWhatIsShownOfTheLoop)
{
    loopTenToTwenty();
    const QSignalSpy shown(m_window.get(), &PlayerGuiWindow::abLoopShown);
    m_window->stopPlayback();
    EXPECT_EQ(shown.last(), (QVariantList{-1., -1.}));
}

TEST_F(PlayModes, ARepeatChosenByHandOutlastsTheLoop)
{
    loopTenToTwenty();
    m_window->setRepeatAxis(1);
    m_window->clearAbLoop();
    EXPECT_EQ(repeat(), RepeatAxis::List);
}

TEST_F(PlayModes, WithoutATrackThereIsNothingToMark)
{
    m_window->markA();
    EXPECT_FALSE(transport().abLoop.isMarked());
    EXPECT_TRUE(logHas(u"无处可标"_s));
}

TEST_F(PlayModes, AMarkBeforeThePositionIsToldIsTheBeginning)
{
    m_window->startPlayback(0);
    at(50.);
    m_window->stepRow(1);
    m_window->markA();
    EXPECT_EQ(transport().abLoop.pointA, 0.) << "50 s are the other track's";
}

// ── speed ──

TEST_F(PlayModes, SpeedIsClampedStoredAndSent)
{
    m_window->startPlayback(0);
    takeLines();
    m_window->setSpeed(3.5);
    EXPECT_EQ(readUserSetting(settings::speedRatio), 3.);
    EXPECT_EQ(m_window->engineControls().speedRatio->value(), 3.);
    m_window->setSpeed(0.4);
    EXPECT_EQ(readUserSetting(settings::speedRatio), .5);
    m_window->setSpeed(1.);
    EXPECT_EQ(takeLines(), (QStringList{u"speed 3.00"_s, u"speed 0.50"_s, u"speed 1.00"_s}))
        << "normal speed is sent as well";
    EXPECT_TRUE(logHas(speedText(.5, true)));
}

TEST_F(PlayModes, SpeedWithoutASessionIsKeptForTheNextOne)
{
    m_window->setSpeed(1.25);
    EXPECT_TRUE(takeLines().isEmpty());
    EXPECT_TRUE(logHas(speedText(1.25, false)));
    m_window->startPlayback(0);
    const QStringList args = m_engine.startArgs.last();
    EXPECT_EQ(args.value(args.indexOf(u"-speed"_s) + 1), u"1.25"_s);
}

TEST_F(PlayModes, AQuietChangeOfSpeedIsNotLogged)
{
    const QSignalSpy shown(m_window.get(), &PlayerGuiWindow::speedShown);
    m_window->setSpeed(1.5, true);
    EXPECT_FALSE(logHas(u"播放速度"_s));
    EXPECT_EQ(shown.last(), QVariantList{1.5});
    m_window->engineControls().speedRatio->setValue(2.);
    EXPECT_TRUE(logHas(speedText(2., false))) << "the control says it";
}

// ── volume ──

TEST_F(PlayModes, AMovedVolumeIsSentAndRemembersThatItWasMoved)
{
    m_window->startPlayback(0);
    EXPECT_FALSE(WindowInspector::volumeTouched(*m_window));
    takeLines();
    ui().dock->volume->setValue(37);
    EXPECT_EQ(takeLines(), QStringList{u"vol 37"_s});
    EXPECT_TRUE(WindowInspector::volumeTouched(*m_window));
}

// ── sleep ──

class Sleep : public PlayModes
{
protected:
    void SetUp() override
    {
        PlayModes::SetUp();
        ui().dock->volume->setValue(40);
    }
    void playAndSleep()
    {
        m_window->startPlayback(0);
        takeLines();
        takeLog();
        m_window->setSleepTimer(3);
    }
};

TEST_F(Sleep, FadesInTwentyStepsAndPutsTheVolumeBack)
{
    QList<int> seen;
    QObject::connect(ui().dock->volume, &QSlider::valueChanged, m_window.get(),
                     [&seen](int value) { seen.append(value); });
    playAndSleep();
    ASSERT_TRUE(eventually([this] { return logHas(u"睡眠定时: 已淡出并停止播放"_s); }));
    QStringList expected;
    for (int volume = 38; volume >= 2; volume -= 2)
        expected.append(u"vol %1"_s.arg(volume));
    expected.append(u"stop"_s);
    EXPECT_EQ(takeLines(), expected) << "and no louder line behind the stop";
    EXPECT_EQ(seen.size(), 19);
    EXPECT_EQ(ui().dock->volume->value(), 40);
    EXPECT_TRUE(logHas(u"睡眠定时: 开始淡出(10 秒后停止)"_s));
    EXPECT_FALSE(start().uiPlaying);
    EXPECT_EQ(transport().sleep.minutes, 0);
}

TEST_F(Sleep, TheLabelShowsMinutesAndThenOff)
{
    const QSignalSpy shown(m_window.get(), &PlayerGuiWindow::sleepTimerShown);
    playAndSleep();
    EXPECT_EQ(shown.last().value(0), 3);
    ASSERT_TRUE(eventually([this] { return logHas(u"已淡出并停止播放"_s); }));
    EXPECT_EQ(shown.last(), (QVariantList{0, sleepTimerText(0)}));
    m_window->setSleepTimer(20);
    m_window->setSleepTimer(0);
    EXPECT_EQ(shown.last().value(0), 0);
    QTest::qWait(60);
    EXPECT_EQ(takeLog().count(u"没有正在运行的播放任务"_s), 0) << "switched off";
}

TEST_F(Sleep, WithoutASessionItOnlyStops)
{
    m_window->setSleepTimer(1);
    EXPECT_TRUE(eventually([this] { return logHas(u"没有正在运行的播放任务"_s); }));
    EXPECT_FALSE(logHas(u"开始淡出"_s));
}

TEST_F(Sleep, AtNoVolumeThereIsNothingToFade)
{
    ui().dock->volume->setValue(0);
    playAndSleep();
    EXPECT_TRUE(eventually([this] { return m_engine.did(u"write stop"_s); }));
    EXPECT_FALSE(logHas(u"开始淡出"_s));
}

TEST_F(Sleep, AnotherTimeDuringTheFadeBringsTheVolumeBack)
{
    m_times.sleepFadeStep = 50;
    open();
    ui().dock->volume->setValue(40);
    playAndSleep();
    ASSERT_TRUE(eventually([this] { return ui().dock->volume->value() < 40; }));
    m_window->saveParams();
    EXPECT_EQ(readUserSetting(settings::volume), 40) << "a fading volume was not chosen";
    m_window->setSleepTimer(0);
    EXPECT_EQ(ui().dock->volume->value(), 40);
    EXPECT_EQ(takeLines().last(), u"vol 40"_s) << "who is awake hears it again";
    QTest::qWait(150);
    EXPECT_EQ(ui().dock->volume->value(), 40);
    EXPECT_TRUE(start().uiPlaying);
}

TEST_F(Sleep, AStopByHandDuringTheFadeEndsIt)
{
    m_times.sleepFadeStep = 50;
    open();
    ui().dock->volume->setValue(40);
    playAndSleep();
    ASSERT_TRUE(eventually([this] { return ui().dock->volume->value() < 40; }));
    m_window->stopPlayback();
    settle();
    EXPECT_TRUE(eventually([this] { return ui().dock->volume->value() == 40; }));
    EXPECT_EQ(m_engine.lines().count(u"write stop"_s), 1);
    EXPECT_EQ(takeLines().last(), u"stop"_s);
}
