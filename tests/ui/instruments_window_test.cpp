// The window's instruments and its look, under the engine's lines and the listener's choices.
#include "window_fixture.h"

#include "app/settings_store.h"
#include "platform/settings_table.h"
#include "ui/bits_led.h"
#include "ui/instrument_panel.h"
#include "ui/look_controls.h"
#include "ui/scope_view.h"
#include "ui/segment_meter.h"
#include "ui/spectrum_view.h"
#include "ui/theme.h"

#include "tests/support/patience.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;

class WindowInstruments : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        m_deviceList = u"[default] One"_s;
        makeWindow();
        addFiles(2);
        m_window->startPlayback(0);
    }
    void TearDown() override
    {
        WindowTest::TearDown();
        theme::setLightTheme(false);
        theme::setAccent(QColor(theme::defaultAccent));
    }
    void say(const QString &line)
    {
        m_engine.current->say(line);
        settle();
    }
    InstrumentPanel &panel() { return *m_window->widgets().instruments; }
    QList<SegmentMeter *> meters() { return panel().findChildren<SegmentMeter *>(); }
    QStringList levels()
    {
        QStringList texts;
        for (const QLabel *label : panel().findChildren<QLabel *>(u"vesperLevel"_s))
            texts.append(label->text());
        return texts;
    }
    /// 4n digits that are a straight line at zero.
    static QString flatBlock(int buckets) { return u"7f80"_s.repeated(buckets); }
};

TEST_F(WindowInstruments, LevelsReachMetersAndLabels)
{
    say(u"LVL -8.42 -0.02"_s);
    QTRY_COMPARE_WITH_TIMEOUT(levels(), (QStringList{u"−8.42 dB"_s, u"−0.02 dB"_s}), kelp_test::patienceMs);
    EXPECT_EQ(meters().at(0)->dbfs(), -8.42);
    EXPECT_TRUE(meters().at(1)->clip());
    qint64 &clipUntil = WindowInspector::instruments(*m_window).clipUntil;
    ASSERT_GT(clipUntil, 0);
    const qint64 held = std::exchange(clipUntil, clipUntil + kelp_test::patienceMs); // on a busy machine, too
    say(u"LVL -130 -20"_s);
    QTRY_COMPARE_WITH_TIMEOUT(levels(), (QStringList{u"−∞ dB"_s, u"−20.00 dB"_s}), kelp_test::patienceMs);
    EXPECT_TRUE(meters().at(0)->clip()) << "the hold is one for both channels";
    clipUntil = held;
    say(u"LVL -130 -20"_s);
    QTRY_VERIFY_WITH_TIMEOUT(!meters().at(0)->clip() && !meters().at(1)->clip(), kelp_test::patienceMs);
}

TEST_F(WindowInstruments, FramesReachTheViews)
{
    say(u"SPC 44100 4 ff80ff00 00ff00ff"_s);
    ASSERT_EQ(panel().spectrum()->bandCount(), 4);
    EXPECT_EQ(panel().spectrum()->shownLeft(0), 0.);
    EXPECT_EQ(panel().spectrum()->shownRight(0), -96.) << "the second block is the right channel";
    say(u"WVF 44100 8 "_s + flatBlock(8));
    EXPECT_EQ(panel().scope()->bucketCount(), 8) << "one channel stands for both";
}

TEST_F(WindowInstruments, ASpectrumOfOneBlockIsMirrored)
{
    say(u"SPC 44100 2 ff80"_s);
    EXPECT_EQ(panel().spectrum()->shownLeft(0), 0.);
    EXPECT_EQ(panel().spectrum()->shownRight(0), 0.);
}

TEST_F(WindowInstruments, AZoneOutOfRangeIsNone)
{
    say(u"SPC 44100 8 ffffffffffffffff"_s);
    say(u"SPC zones low=0 audible=4 nyq=200"_s);
    panel().spectrum()->resize(160, 72);
    const QImage picture = panel().spectrum()->grab().toImage();
    EXPECT_EQ(picture.pixelColor(150, 20), theme::accentColor) << "all bands above stay in the accent";
}

TEST_F(WindowInstruments, ADirectPathSaysWhyItShowsNothing)
{
    say(u"SPC 44100 4 ff80ff00"_s);
    say(u"SPC none"_s);
    say(u"WVF none"_s);
    EXPECT_EQ(panel().spectrum()->bandCount(), 0);
    EXPECT_FALSE(panel().spectrum()->toolTip().isEmpty());
    EXPECT_EQ(panel().spectrum()->toolTip(), panel().spectrum()->accessibleDescription());
    EXPECT_FALSE(panel().scope()->toolTip().isEmpty());
    EXPECT_NE(panel().scope()->toolTip(), panel().scope()->idleText());
    // The next track may carry PCM again.
    say(u"SPC 44100 4 ff80ff00"_s);
    EXPECT_TRUE(panel().spectrum()->toolTip().isEmpty());
}

TEST_F(WindowInstruments, NoSpectrumMeansNoWaveformEither)
{
    say(u"SPC 44100 4 ff80ff00"_s);
    say(u"WVF 44100 8 "_s + flatBlock(8));
    say(u"SPC none"_s);
    EXPECT_EQ(panel().spectrum()->toolTip(), u"此路径没有频谱：DSD 直接输出不含 PCM"_s);
    EXPECT_EQ(panel().scope()->bucketCount(), 0);
    EXPECT_EQ(panel().scope()->toolTip(), u"这条链上没有 PCM（DSD 直通）——没有波形"_s);
    say(u"WVF 44100 8 "_s + flatBlock(8));
    EXPECT_EQ(panel().scope()->bucketCount(), 8) << "the next track may carry PCM again";
}

TEST_F(WindowInstruments, TheEndOfASessionLeavesNothingStanding)
{
    say(u"LVL -3 -3"_s);
    say(u"SPC 44100 4 ff80ff00"_s);
    say(u"WVF 44100 8 "_s + flatBlock(8));
    m_window->stopPlayback();
    settle();
    EXPECT_EQ(panel().spectrum()->bandCount(), 0);
    EXPECT_EQ(panel().scope()->bucketCount(), 0);
    EXPECT_EQ(panel().scope()->toolTip(), panel().scope()->idleText());
    EXPECT_EQ(levels(), (QStringList{u"−∞ dB"_s, u"−∞ dB"_s}));
    QTest::qWait(120);
    EXPECT_EQ(levels(), (QStringList{u"−∞ dB"_s, u"−∞ dB"_s})) << "no refresh brings an old level back";
}

TEST_F(WindowInstruments, AnEmptyScopeTellsWhetherItIsOff)
{
    const QString off = panel().scope()->toolTip();
    m_window->stopPlayback();
    settle();
    const QString idle = panel().scope()->toolTip();
    EXPECT_NE(idle, off);
    writeUserSetting(settings::vizMode, 3);
    m_window->startPlayback(0);
    EXPECT_NE(panel().scope()->toolTip(), off) << "now frames may come";
    EXPECT_NE(panel().scope()->toolTip(), idle);
}

TEST_F(WindowInstruments, AChangedDisplayModeIsToldToTheRunningSession)
{
    m_window->openSetup();
    LookControls &look = *m_window->widgets().look;
    const auto sent = [&] { return m_engine.lines().last().mid(6); };
    look.scope->click();
    EXPECT_EQ(sent(), u"scope on"_s);
    look.scope->click();
    EXPECT_EQ(sent(), u"scope off"_s);
    look.spectrum->click();
    EXPECT_EQ(sent(), u"spectrum off"_s);
    look.spectrum->click();
    EXPECT_EQ(sent(), u"spectrum on"_s);
    EXPECT_FALSE(logHas(u"从下一次播放会话起生效"_s));
    m_window->stopPlayback();
    settle();
    const qsizetype count = m_engine.lines().size();
    look.scope->click();
    EXPECT_EQ(m_engine.lines().size(), count);
    EXPECT_TRUE(logHas(u"从下一次播放会话起生效"_s));
}

TEST_F(WindowInstruments, WhatIsSwitchedOffIsEmptyAndStaysSo)
{
    m_window->openSetup();
    LookControls &look = *m_window->widgets().look;
    look.scope->click();
    say(u"SPC 44100 4 ff80ff00"_s);
    say(u"WVF 44100 8 "_s + flatBlock(8));
    ASSERT_EQ(panel().scope()->bucketCount(), 8);
    say(u"output latency: 4000"_s);
    say(u"SPC 44100 4 ff80ff00"_s);
    look.spectrum->click();
    look.scope->click();
    EXPECT_EQ(panel().spectrum()->bandCount(), 0);
    EXPECT_EQ(panel().scope()->bucketCount(), 0);
    EXPECT_TRUE(WindowInspector::instruments(*m_window).spectrumQueue.isEmpty());
    say(u"output latency: 0"_s);
    say(u"SPC 44100 4 ff80ff00"_s);
    say(u"WVF 44100 8 "_s + flatBlock(8));
    EXPECT_EQ(panel().spectrum()->bandCount(), 0) << "frames that were still on their way";
    EXPECT_EQ(panel().scope()->bucketCount(), 0);
    look.spectrum->click();
    say(u"SPC 44100 4 ff80ff00"_s);
    EXPECT_EQ(panel().spectrum()->bandCount(), 4);
}

TEST_F(WindowInstruments, BitsFollowTheVolumeLine)
{
    say(u"volume: unity on a 24 bit device"_s);
    EXPECT_EQ(panel().bits()->bits(), 24);
    EXPECT_EQ(panel().bits()->state(), 1);
    EXPECT_FALSE(panel().bits()->toolTip().isEmpty());
}

TEST_F(WindowInstruments, AThemeThatIsChangedIsShownAndLogged)
{
    takeLog();
    writeUserSetting(settings::theme, 1);
    m_window->changeTheme();
    EXPECT_TRUE(theme::lightTheme);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor(0xFB, 0xF9, 0xF5));
    EXPECT_TRUE(m_window->styleSheet().contains(u"#F2F1ED"_s));
    EXPECT_EQ(takeLog().count(u"主题: 浅色"_s), 1);
    writeUserSetting(settings::theme, 0);
    m_window->changeTheme();
    EXPECT_FALSE(theme::lightTheme);
    EXPECT_EQ(takeLog().count(u"主题: 深色"_s), 1);
}

TEST_F(WindowInstruments, AThemeThatFollowsTheSystemIsNamedSo)
{
    takeLog();
    writeUserSetting(settings::theme, 2);
    m_window->changeTheme();
    const QString look = theme::lightTheme ? u"浅色"_s : u"深色"_s;
    EXPECT_EQ(takeLog().count(u"主题: 跟随系统（%1）"_s.arg(look)), 1);
}

TEST_F(WindowInstruments, AStoredThemeIsThereWithTheFirstFrame)
{
    m_window.reset();
    writeUserSetting(settings::theme, 1);
    makeWindow();
    EXPECT_TRUE(theme::lightTheme);
    EXPECT_TRUE(m_window->styleSheet().contains(u"#F2F1ED"_s));
    EXPECT_FALSE(takeLog().contains(u"主题:"_s)) << "nothing has changed";
}

TEST_F(WindowInstruments, AnInvalidStoredAccentKeepsTheDefault)
{
    m_window.reset();
    writeUserSetting(settings::accent, u"golden"_s);
    makeWindow();
    EXPECT_EQ(theme::chosenAccent(), QColor(theme::defaultAccent));
    m_window.reset();
    writeUserSetting(settings::accent, u"#6FBFA0"_s);
    makeWindow();
    EXPECT_EQ(theme::chosenAccent(), QColor(0x6F, 0xBF, 0xA0));
}

TEST_F(WindowInstruments, TheAccentFollowsACoverAndComesBack)
{
    QPixmap cover(64, 64);
    cover.fill(QColor::fromHsv(200, 150, 180));
    takeLog();
    m_window->useCoverAccent(cover);
    const QColor accent = theme::chosenAccent();
    EXPECT_NEAR(accent.hsvHue(), 200, 1);
    EXPECT_EQ(theme::accentBright.rgb(), accent.lighter(125).rgb());
    EXPECT_TRUE(m_window->styleSheet().contains(accent.name()));
    EXPECT_EQ(takeLog().count(u"强调色跟随封面: "_s + accent.name().toUpper()), 1);
    m_window->useCoverAccent({});
    EXPECT_EQ(theme::chosenAccent(), QColor(theme::defaultAccent)) << "no cover, the chosen colour";
}

TEST_F(WindowInstruments, AGreyCoverKeepsTheChosenAccentAndLogsOneLine)
{
    writeUserSetting(settings::accent, u"#D08C8C"_s);
    QPixmap cover(64, 64);
    cover.fill(Qt::gray);
    takeLog();
    m_window->useCoverAccent(cover);
    EXPECT_EQ(theme::chosenAccent(), QColor(0xD0, 0x8C, 0x8C));
    const QString log = takeLog();
    EXPECT_EQ(log.count(u"封面没有可用的主色"_s), 1);
    EXPECT_FALSE(log.contains(u"强调色跟随封面"_s));
}

TEST_F(WindowInstruments, TheAccentIsLeftAloneWhenItShallNotFollow)
{
    writeUserSetting(settings::coverAccent, false);
    QPixmap cover(64, 64);
    cover.fill(QColor::fromHsv(200, 150, 180));
    m_window->useCoverAccent(cover);
    EXPECT_EQ(theme::chosenAccent(), QColor(theme::defaultAccent));
}

TEST_F(WindowInstruments, EveryInstrumentHasANameForTheEar)
{
    for (const QWidget *widget :
         {static_cast<QWidget *>(panel().spectrum()), static_cast<QWidget *>(panel().scope()),
          static_cast<QWidget *>(panel().bits()), static_cast<QWidget *>(meters().at(0)),
          static_cast<QWidget *>(meters().at(1))})
        EXPECT_FALSE(widget->accessibleName().isEmpty());
}
