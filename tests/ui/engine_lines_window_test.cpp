// What the engine's lines do to the window, and in which order.
#include "window_fixture.h"

#include "tests/support/patience.h"
#include "ui/bits_led.h"
#include "ui/instrument_panel.h"

#include <QLabel>
#include <QTest>
#include <thread>

using namespace Qt::StringLiterals;

class EngineLines : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        m_deviceList = u"[default] One\n[2] Two"_s;
        makeWindow();
        addFiles(2);
        m_window->startPlayback(0);
        takeLog();
    }
    void say(const QString &line)
    {
        m_engine.current->say(line);
        settle();
    }
    EngineLineState &lines() { return WindowInspector::lines(*m_window); }
    InstrumentState &instruments() { return WindowInspector::instruments(*m_window); }
};

TEST_F(EngineLines, OfTelemetryOnlyTheNewestReachesTheWindow)
{
    for (int i = 1; i <= 100; ++i) {
        m_engine.current->say(u"LVL -%1 -%1"_s.arg(i));
        m_engine.current->say(u"PG %1 %1 200"_s.arg(i / 2.));
        m_engine.current->say(u"SPC 44100 1 %1"_s.arg(i, 2, 16, QChar(u'0')));
    }
    settle();
    EXPECT_EQ(lines().telemetryCount.value(u"LVL"_s), 1);
    EXPECT_EQ(lines().telemetryCount.value(u"PG"_s), 1);
    EXPECT_EQ(lines().telemetryCount.value(u"SPC"_s), 1);
    EXPECT_EQ(instruments().levels.leftDb, -100.);
    ASSERT_TRUE(instruments().spectrum);
    EXPECT_NEAR(instruments().spectrum->main.front(), 100. / 255. * 96. - 96., 1e-9);
    EXPECT_EQ(WindowInspector::progress(*m_window).progressPercent, 50.);
    EXPECT_EQ(WindowInspector::link(*m_window).mailbox->countOf(0), 100);
}

TEST_F(EngineLines, OtherLinesReachTheLogOneByOneInTheirOrder)
{
    std::thread engine([this] {
        for (int i = 0; i < 200; ++i) {
            m_engine.current->say(u"line number %1"_s.arg(i));
            m_engine.current->say(u"LVL -1 -1"_s);
        }
    });
    engine.join();
    settle();
    QStringList seen;
    for (const QString &line : takeLog().split(u'\n')) {
        if (line.startsWith(u"line number "_s))
            seen.append(line);
    }
    ASSERT_EQ(seen.size(), 200);
    for (int i = 0; i < 200; ++i)
        EXPECT_EQ(seen.at(i), u"line number %1"_s.arg(i));
}

TEST_F(EngineLines, ErrorOutputIsAnErrorLineAndNothingElse)
{
    m_engine.current->lineSink(u"PG 50 5 10\n"_s, true);
    settle();
    EXPECT_TRUE(logHas(u"PG 50 5 10"_s));
    EXPECT_EQ(WindowInspector::progress(*m_window).progressPercent, 0.);
}

TEST_F(EngineLines, WithLatencyTheInstrumentsWait)
{
    say(u"output latency: 60.0 ms"_s);
    say(u"LVL -7 -8"_s);
    say(u"SPC 44100 2 ffff"_s);
    EXPECT_EQ(instruments().levelQueue.size(), 1U);
    EXPECT_EQ(instruments().spectrumQueue.size(), 1U);
    EXPECT_TRUE(instruments().levelRelease->isActive());
    EXPECT_FALSE(instruments().spectrum);
    ASSERT_TRUE(
        QTest::qWaitFor([this] { return instruments().spectrum && instruments().levels.leftDb == -7.; },
                        kelp_test::patienceMs));
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return !instruments().levelRelease->isActive(); }, kelp_test::patienceMs));
    EXPECT_FALSE(instruments().spectrumRelease->isActive());
}

TEST_F(EngineLines, WhatWaitsIsDroppedWhenTheSessionEnds)
{
    say(u"output latency: 4000 ms"_s);
    for (int i = 0; i < 300; ++i) {
        m_window->onEngineLine(u"LVL -7 -8"_s, false);
        m_window->onEngineLine(u"SPC 44100 2 ffff"_s, false);
    }
    EXPECT_EQ(instruments().levelQueue.size(), mostDelayedLevels) << "memory is bounded";
    EXPECT_EQ(instruments().spectrumQueue.size(), 300U);
    m_engine.current->endWith(0);
    settle();
    EXPECT_TRUE(instruments().levelQueue.isEmpty());
    EXPECT_TRUE(instruments().spectrumQueue.isEmpty());
    EXPECT_FALSE(instruments().levelRelease->isActive());
    EXPECT_FALSE(instruments().spectrumRelease->isActive());
}

TEST_F(EngineLines, LevelsStopTheWatchdogAndProgressDoesNot)
{
    QTimer *watchdog = WindowInspector::link(*m_window).noAudioTimer;
    ASSERT_NE(watchdog, nullptr);
    ASSERT_TRUE(watchdog->isActive()) << "the load line armed it";
    say(u"PG 1 1 100"_s);
    EXPECT_TRUE(watchdog->isActive());
    say(u"LVL -3 -3"_s);
    EXPECT_FALSE(watchdog->isActive());
}

TEST_F(EngineLines, ARefusalIsNotedUntilADeviceOpens)
{
    m_window->widgets().device->setCurrentIndex(2);
    DeviceState &devices = WindowInspector::devices(*m_window);
    say(u"open failed: 0x8889000A"_s);
    EXPECT_EQ(devices.lastBusyDevice, u"Two"_s);
    EXPECT_TRUE(logHas(u"open failed: 0x8889000A"_s));
    say(u"no device 'Two'"_s);
    EXPECT_EQ(devices.lastMissingDevice, u"Two"_s);
    say(u"OPENED Two"_s);
    EXPECT_TRUE(devices.lastBusyDevice.isEmpty());
    EXPECT_TRUE(devices.lastMissingDevice.isEmpty());
}

TEST_F(EngineLines, APercentLineLeavesThePositionAlone)
{
    say(u"PG 10 12 120"_s);
    const auto shown = [this] {
        for (const QLabel *label : m_window->findChildren<QLabel *>()) {
            if (label->accessibleName() == u"位置"_s)
                return label->text();
        }
        return QString();
    };
    ASSERT_EQ(shown(), u"0:12"_s);
    say(u"Progress: 37.5%"_s);
    EXPECT_EQ(WindowInspector::progress(*m_window).progressPercent, 37.5);
    EXPECT_EQ(WindowInspector::progress(*m_window).lastPosSec, 12.);
    EXPECT_EQ(shown(), u"0:12"_s);
    EXPECT_TRUE(logHas(u"进度 30%"_s));
}

TEST_F(EngineLines, ASourcesDepthGoesToTheLampAndItsModeStays)
{
    const BitsLed *lamp = m_window->widgets().instruments->bits();
    say(u"volume: applied on the DEVICE, on a 24 bit device"_s);
    EXPECT_EQ(lamp->bits(), 24);
    const int mode = lamp->state();
    say(u"SRC 44100 16 2 flac 0 60"_s);
    EXPECT_EQ(lamp->bits(), 16);
    EXPECT_EQ(lamp->state(), mode);
}

TEST_F(EngineLines, ADsdSourceLeavesTheLampAlone)
{
    const BitsLed *lamp = m_window->widgets().instruments->bits();
    say(u"volume: applied on the DEVICE, on a 24 bit device"_s);
    say(u"SRC 2822400 1 2 dsd 0 60"_s);
    EXPECT_EQ(lamp->bits(), 24);
}

TEST_F(EngineLines, AWarningIsAnErrorLineAndStandsInTheStatusLine)
{
    say(u"WARN underrun"_s);
    EXPECT_EQ(m_window->widgets().message->text(), u"⚠ WARN underrun"_s);
    EXPECT_TRUE(logHas(u"⚠ WARN underrun"_s));
}

TEST_F(EngineLines, AScanIsShownAndLoggedByTens)
{
    say(u"SCAN 12.5 15 120"_s);
    EXPECT_TRUE(m_window->widgets().message->text().contains(u"0:15 / 2:00"_s));
    say(u"SCAN 14 17 120"_s);
    EXPECT_TRUE(m_window->widgets().message->text().contains(u"0:17 / 2:00"_s));
    EXPECT_EQ(takeLog().count(u"0:15 / 2:00"_s), 1);
    EXPECT_FALSE(logHas(u"0:17 / 2:00"_s));
}

TEST_F(EngineLines, AFailedTrackStopsTheListAndLeavesTheSessionLive)
{
    say(u"FAILED cannot decode: b.wav"_s);
    EXPECT_TRUE(WindowInspector::start(*m_window).uiPlaying) << "of another track";
    const QString line = u"FAILED cannot decode: %1"_s.arg(fileAt(0));
    say(line);
    EXPECT_TRUE(logHas(line));
    EXPECT_EQ(m_window->widgets().message->text(), line);
    EXPECT_FALSE(WindowInspector::start(*m_window).uiPlaying) << "nothing sounds, and the window says so";
    EXPECT_EQ(WindowInspector::start(*m_window).currentRow, 0);
    EXPECT_TRUE(WindowInspector::start(*m_window).sessionLive);
    EXPECT_TRUE(m_engine.current->isRunning());
    EXPECT_EQ(m_engine.lines().size(), 1) << "no other track is loaded";
    EXPECT_EQ(lines().lastEngineLine, line);
    m_window->startPlayback(1);
    EXPECT_TRUE(WindowInspector::start(*m_window).uiPlaying);
    EXPECT_TRUE(m_engine.lines().last().startsWith(u"write load"_s)) << "the session takes the next choice";
}

TEST_F(EngineLines, TheSignalIsShownInWords)
{
    say(u"volume: on a 24 bit device: unity"_s);
    say(u"chain: OS mixer"_s);
    const SignalState &signal = WindowInspector::signal(*m_window);
    EXPECT_EQ(signal.bits.mode, BitsMode::Transparent);
    EXPECT_EQ(signal.bits.bits, 24);
    EXPECT_TRUE(signal.chain.warn);
    const BitsLed *lamp = m_window->widgets().instruments->bits();
    EXPECT_TRUE(lamp->toolTip().contains(signal.bitsToolTip));
    EXPECT_FALSE(signal.bitsToolTip.isEmpty());
}

TEST_F(EngineLines, TheChainsLampShowsTheEnginesLineAsItsTip)
{
    const auto *card = m_window->findChild<QFrame *>(u"vesperChainCard"_s);
    ASSERT_NE(card, nullptr);
    say(u"SRC 44100 16 2 flac 0 60"_s);
    say(u"bit-perfect: YES: nothing changes a bit"_s);
    say(u"chain: clean <all of it>"_s);
    EXPECT_TRUE(card->toolTip().endsWith(u"<br>chain: clean &lt;all of it&gt;"_s))
        << qPrintable(card->toolTip());
    say(u"chain: OS mixer"_s);
    EXPECT_TRUE(card->toolTip().endsWith(u"<br>chain: OS mixer"_s)) << qPrintable(card->toolTip());
    const auto *lamp = m_window->findChild<QFrame *>(u"vesperChainLamp"_s);
    ASSERT_NE(lamp, nullptr);
    EXPECT_EQ(lamp->property("lamp").toString(), u"warn"_s);
}

TEST_F(EngineLines, AChainBlockIsLoggedOnceAndKept)
{
    for (const QString &line : {u"SIGNAL CHAIN BEGIN"_s, u"speed: 1.00x"_s, u"SIGNAL CHAIN END"_s})
        say(line);
    EXPECT_EQ(takeLog().count(u"speed: 1.00x"_s), 1);
    EXPECT_TRUE(WindowInspector::signal(*m_window).chainReport.contains(u"speed: 1.00x"_s));
    EXPECT_TRUE(lines().chain.chainBuffer.isEmpty());
}

TEST_F(EngineLines, TheEnginesFilterIsShownWithoutBeingChosen)
{
    EngineControls *engine = &m_window->engineControls();
    const QString plain = engine->pcmFilter->itemText(2);
    const qsizetype sent = m_engine.lines().size();
    say(u"PDM2PCM filter DSD64 best auto"_s);
    EXPECT_EQ(engine->pcmFilter->currentData().toString(), u"best"_s);
    EXPECT_NE(engine->pcmFilter->currentText(), plain) << "it is marked";
    EXPECT_EQ(m_engine.lines().size(), sent);
    say(u"PDM2PCM filter DSD64 best manual"_s);
    EXPECT_EQ(engine->pcmFilter->currentText(), plain);
    say(u"PDM2PCM filter DSD64 unheard-of auto"_s);
    EXPECT_EQ(engine->pcmFilter->currentData().toString(), u"best"_s);
}

TEST_F(EngineLines, TheRoadOfTheSamplesIsKept)
{
    const SignalState &signal = WindowInspector::signal(*m_window);
    say(u"SPC none"_s);
    EXPECT_TRUE(signal.dsdDirect);
    EXPECT_FALSE(signal.pcmEffectsActive);
    say(u"SPC cfg"_s);
    EXPECT_FALSE(signal.dsdDirect);
    EXPECT_TRUE(signal.pcmEffectsActive);
}

TEST_F(EngineLines, ThePositionIsRememberedInStepsAndForgottenAtTheEnd)
{
    say(u"PG 10 4.9 49"_s);
    m_window.reset();
    makeWindow();
    EXPECT_FALSE(WindowInspector::start(*m_window).resumeEnabled);
    addFiles(2);
    m_window->startPlayback(0);
    say(u"PG 10 6 60"_s);
    const QString file = fileAt(0);
    m_window.reset();
    makeWindow();
    EXPECT_TRUE(WindowInspector::start(*m_window).resumeEnabled);
    EXPECT_EQ(WindowInspector::start(*m_window).resumeFile, file);
    EXPECT_EQ(WindowInspector::start(*m_window).resumePosSec, 6.);
    addFiles(1);
    m_window->startPlayback(0);
    say(u"DONE a.wav"_s);
    m_window.reset();
    makeWindow();
    EXPECT_FALSE(WindowInspector::start(*m_window).resumeEnabled);
}
