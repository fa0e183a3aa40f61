// The one door for control lines.
#include "playback_fixture.h"

#include "dsp/effects_worker.h"
#include "ui/dock_bar.h"

#include "tests/support/patience.h"

#include <QThread>
#include <atomic>

using namespace Qt::StringLiterals;

class SendCmd : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        makeWindow();
    }
    void startSession()
    {
        m_window->ensureSession();
        m_engine.current->start(u"x"_s, {});
    }
    EngineLinkState &link() { return WindowInspector::link(*m_window); }
};

TEST_F(SendCmd, WithoutASessionTheLineIsDroppedAndTheWatchdogArmed)
{
    EXPECT_FALSE(m_window->sendCmd(u"load /a"_s));
    ASSERT_NE(link().noAudioTimer, nullptr);
    EXPECT_TRUE(link().noAudioTimer->isActive());
    EXPECT_EQ(link().noAudioTimer->interval(), 5000);
    EXPECT_TRUE(logHas(u"load /a -> noproc"_s));
    EXPECT_EQ(link().queuedCtlCount, 0);
}

TEST_F(SendCmd, OnlyEffectsWithANameAreRemembered)
{
    m_window->sendCmd(u"fx"_s);
    m_window->sendCmd(u"fx eq on"_s);
    m_window->sendCmd(u"fx eq off"_s);
    EXPECT_EQ(link().fxLast.keys(), QStringList{u"eq"_s});
    EXPECT_EQ(link().fxLast.value(u"eq"_s), u"fx eq off"_s);
    EXPECT_EQ(link().noAudioTimer, nullptr);
}

TEST_F(SendCmd, QueuedLinesAreCounted)
{
    startSession();
    EXPECT_TRUE(m_window->sendCmd(u"vol 3"_s));
    EXPECT_EQ(link().queuedCtlCount, 1);
    EXPECT_TRUE(logHas(u"vol 3 -> queued 6B"_s));
    m_engine.takesLines = false;
    m_engine.lastError = u"full"_s;
    EXPECT_FALSE(m_window->sendCmd(u"vol 4"_s));
    EXPECT_EQ(link().queuedCtlCount, 2) << "a refused line of zero bytes counts";
    EXPECT_TRUE(logHas(u"vol 4 -> queued 0B [full]"_s));
}

TEST_F(SendCmd, AChildProcessHasNoAccount)
{
    m_engine.inProcess = false;
    startSession();
    EXPECT_TRUE(m_window->sendCmd(u"vol 3"_s));
    EXPECT_EQ(link().queuedCtlCount, 0);
    EXPECT_TRUE(logHas(u"vol 3 -> 6B"_s));
}

TEST_F(SendCmd, LevelsStopTheWatchdog)
{
    startSession();
    m_window->sendCmd(u"resume"_s);
    ASSERT_TRUE(link().noAudioTimer->isActive());
    m_window->onEngineLine(u"PG 1 1 9"_s, false);
    EXPECT_TRUE(link().noAudioTimer->isActive());
    m_window->onEngineLine(u"LVL -3 -3"_s, false);
    EXPECT_FALSE(link().noAudioTimer->isActive());
}

TEST_F(SendCmd, ALineThatExpectsSoundReplacesTheRunningCount)
{
    startSession();
    m_window->sendCmd(u"load /a"_s);
    link().noAudioTimer->start(100000);
    m_window->sendCmd(u"pause"_s);
    EXPECT_GT(link().noAudioTimer->remainingTime(), 50000) << "other lines leave it alone";
    m_window->sendCmd(u"play"_s);
    EXPECT_EQ(link().noAudioTimer->interval(), 5000);
    EXPECT_LT(link().noAudioTimer->remainingTime(), 10000);
    EXPECT_GT(link().noAudioTimer->remainingTime(), 0);
    EXPECT_TRUE(link().noAudioTimer->isSingleShot());
}

TEST_F(SendCmd, ASessionThatHasEndedReadsLikeNone)
{
    startSession();
    m_engine.current->endWith(0);
    settle();
    ASSERT_TRUE(link().session);
    EXPECT_FALSE(m_window->sendCmd(u"vol 7"_s));
    EXPECT_TRUE(logHas(u"vol 7 -> noproc"_s));
    EXPECT_EQ(link().queuedCtlCount, 0);
}

TEST_F(SendCmd, ALineThatTakesLongIsCalledOut)
{
    startSession();
    m_engine.answer = [](FakeSession &, const QString &line) {
        if (line.startsWith(u"fx"_s))
            QThread::msleep(60);
    };
    // A busy machine may hold one of them up, but not each.
    int complaints = 0;
    for (int volume = 1; volume <= 20; ++volume) {
        m_window->sendCmd(u"vol %1"_s.arg(volume));
        complaints += logHas(u"发送 vol %1 用了"_s.arg(volume));
    }
    EXPECT_LT(complaints, 20);
    m_window->sendCmd(u"fx eq on"_s);
    const QString log = takeLog();
    const qsizetype complaint = log.indexOf(u"发送 fx eq on 用了"_s);
    EXPECT_GE(complaint, 0);
    EXPECT_GT(log.indexOf(u"fx eq on -> queued 9B"_s), complaint) << "the line itself follows";
}

TEST_F(SendCmd, EffectsLinesComeFromTheirWorkerInOrder)
{
    startSession();
    EffectsWorker worker;
    QStringList expected;
    std::atomic<int> taken{0};
    for (int i = 0; i < 100; ++i) {
        expected.append(u"write fx width %1"_s.arg(i));
        worker.push([this, &taken](const QString &line) { taken += m_window->sendCmd(line); },
                    expected.last().mid(6));
    }
    ASSERT_TRUE(worker.waitUntilIdle(kelp_test::patience));
    EXPECT_EQ(taken, 100);
    EXPECT_EQ(m_engine.lines(), expected);
    EXPECT_TRUE(link().fxLast.isEmpty()) << "the window's memory is touched on its own thread only";
    EXPECT_EQ(link().queuedCtlCount, 0);
    settle();
    EXPECT_EQ(link().fxLast.value(u"width"_s), u"fx width 99"_s);
    EXPECT_EQ(link().queuedCtlCount, 100);
    EXPECT_EQ(takeLog().count(u" -> queued "_s), 100);
}

class ControlLines : public PlaybackTest
{
protected:
    void SetUp() override
    {
        PlaybackTest::SetUp();
        m_times.noAudio = 5000;
        open();
        m_window->startPlayback(0);
        takeLines();
    }
};

TEST_F(ControlLines, EachControlHasItsOwn)
{
    struct Case
    {
        std::function<void()> use;
        QStringList lines;
    };
    PlayerGuiWindow &window = *m_window;
    const Case cases[] = {
        {[&] { window.togglePause(); }, {u"pause"_s}},
        {[&] { window.togglePause(); }, {u"resume"_s}},
        {[&] { ui().dock->volume->setValue(42); }, {u"vol 42"_s}},
        {[&] { window.setSpeed(1.25); }, {u"speed 1.25"_s}},
        {[&] { window.setSpeed(1.); }, {u"speed 1.00"_s}},
        {[&] { window.engineControls().peakGuard->setChecked(true); }, {u"guard on"_s}},
        {[&] { window.engineControls().peakGuard->setChecked(false); }, {u"guard off"_s}},
        {[&] {
             at(10.5);
             window.markA();
             at(20.25);
             window.markB();
         },
         {u"ab 10.500 20.250"_s}},
        {[&] { window.clearAbLoop(); }, {u"ab off"_s}},
        {[&] { window.openChainReport(); }, {u"report"_s}},
        {[&] { window.startBitPerfectCheck(); }, {u"verify"_s}},
        {[&] { window.stepRow(1); }, {load(1)}},
        {[&] { window.stopPlayback(); }, {u"stop"_s}},
    };
    for (const Case &one : cases) {
        one.use();
        EXPECT_EQ(takeLines(), one.lines);
    }
}

TEST_F(ControlLines, TheHighestDenoiseTierIsDeepHereAndStrongOnTheCommandLine)
{
    QComboBox *tier = m_window->engineControls().denoiseTier;
    const auto restartWith = [&](int index) {
        tier->setCurrentIndex(index);
        m_window->jumpToRow(1);
        settle();
        takeLines();
    };
    const auto lineFor = [&](int index) {
        tier->setCurrentIndex(index);
        m_window->jumpToRow(m_window->widgets().playlist->currentRow() == 1 ? 2 : 1);
        return takeLines().filter(u"fx denoise"_s);
    };
    restartWith(3);
    EXPECT_TRUE(m_engine.startArgs.last().contains(u"strong"_s));
    EXPECT_EQ(lineFor(1), QStringList{u"fx denoise light"_s});
    EXPECT_EQ(lineFor(2), QStringList{u"fx denoise standard"_s});
    EXPECT_EQ(lineFor(3), QStringList{u"fx denoise deep"_s});
    EXPECT_TRUE(lineFor(3).isEmpty()) << "what the session knows is not sent again";
    EXPECT_EQ(m_engine.startArgs.size(), 2);
}
