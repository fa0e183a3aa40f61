// What the window is composed of: its areas, its menu, its keys, its shape.
#include "playback_fixture.h"

#include "ui/cover_disc.h"
#include "ui/display_panel.h"
#include "ui/dock_bar.h"
#include "ui/dsp_bar.h"
#include "ui/icon_button.h"
#include "ui/instrument_panel.h"
#include "ui/library_panel.h"
#include "ui/log_pane.h"
#include "ui/look_controls.h"
#include "ui/mini_cover.h"
#include "ui/progress_row.h"
#include "ui/setup_dialog.h"
#include "ui/stage.h"
#include "ui/theme.h"
#include "ui/title_bar.h"
#include "ui/tools_menu.h"
#include "ui/window_place.h"

#include "tests/support/patience.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QScreen>
#include <QSpinBox>
#include <QToolButton>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

class Composition : public PlaybackTest
{
protected:
    void SetUp() override
    {
        PlaybackTest::SetUp();
        open();
    }
    void TearDown() override
    {
        m_window.reset();
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        theme::setLightTheme(false);
        theme::reduceMotion = false;
        PlaybackTest::TearDown();
    }
    /// Drawn and laid out, in the given size.
    void show(const QSize &size = {1280, 860})
    {
        m_window->resize(size);
        m_window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_window.get(), kelp_test::patienceMs));
        QApplication::setActiveWindow(m_window.get());
        settle();
    }
    ToolsMenu *menu()
    {
        if (!m_window->findChild<ToolsMenu *>())
            ui().dock->tools->click();
        return m_window->findChild<ToolsMenu *>();
    }
    QList<QWidget *> all() { return m_window->findChildren<QWidget *>(); }
};

TEST_F(Composition, EveryAreaHasItsNames)
{
    const QStringList names = {
        u"vesperRoot"_s,     u"vesperBrand"_s,     u"vesperModel"_s,       u"vesperWinTitle"_s,
        u"vesperInd"_s,      u"vesperIndOn"_s,     u"vesperClock"_s,       u"vesperWinBtn"_s,
        u"vesperWinClose"_s, u"vesperPanel"_s,     u"vesperPanelTitle"_s,  u"vesperPanelMeta"_s,
        u"vesperSearch"_s,   u"vesperChip"_s,      u"vesperFilterCombo"_s, u"vesperLoadBtn"_s,
        u"vesperMinor"_s,    u"vesperStage"_s,     u"vesperDisc"_s,        u"vesperBayLabel"_s,
        u"vesperVfd"_s,      u"vesperVfdScreen"_s, u"vesperVfdMeta"_s,     u"vesperVfdFormat"_s,
        u"vesperVfdTitle"_s, u"vesperVfdArtist"_s, u"vesperVfdTime"_s,     u"vesperVfdStatus"_s,
        u"vesperLyrics"_s,   u"vesperChainBox"_s,  u"vesperCard"_s,        u"vesperCardKey"_s,
        u"vesperCardVal"_s,  u"vesperDock"_s,      u"vesperDockRight"_s,   u"vesperNow"_s,
        u"vesperMiniDisc"_s, u"vesperNowTitle"_s,  u"vesperNowArtist"_s,   u"vesperDspBar"_s,
        u"vesperGrip"_s,     u"vesperProg"_s,      u"vesperToolsBtn"_s};
    for (const QString &name : names)
        EXPECT_TRUE(m_window->findChild<QWidget *>(name)) << name.toStdString();
    EXPECT_EQ(menu()->objectName(), u"vesperToolsMenu"_s);
}

TEST_F(Composition, TheFixedTextsStand)
{
    const auto text = [this](const QString &name) { return m_window->findChild<QLabel *>(name)->text(); };
    EXPECT_EQ(ui().title->brand->text(), u"PLAYER · DSD"_s);
    EXPECT_EQ(ui().title->brand->toolTip(), u"打开设置(Setup Menu)"_s);
    EXPECT_EQ(text(u"vesperWinTitle"_s), u"Kelp Player"_s);
    EXPECT_EQ(text(u"vesperIndOn"_s), u"● POWER"_s);
    EXPECT_EQ(m_window->findChildren<QLabel *>(u"vesperInd"_s).size(), 2) << "DSP and PLAY are off";
    EXPECT_EQ(ui().title->height(), 56);
    for (QWidget *button : ui().title->windowButtons())
        EXPECT_EQ(button->size(), QSize(30, 26));
    EXPECT_EQ(m_window->windowFlags() & Qt::FramelessWindowHint, Qt::FramelessWindowHint);
}

TEST_F(Composition, TheClockTicks)
{
    show();
    const auto *clock = m_window->findChild<QLabel *>(u"vesperClock"_s);
    static const QRegularExpression form(u"^\\d\\d:\\d\\d:\\d\\d$"_s);
    EXPECT_TRUE(form.match(clock->text()).hasMatch());
    const QString before = clock->text();
    QTRY_VERIFY_WITH_TIMEOUT(clock->text() != before, kelp_test::patienceMs);
}

TEST_F(Composition, TheToolsStandInTheirOrderAndSayWhatIsNotThere)
{
    const QStringList names = {u"扫描曲库文件夹(增量)"_s,
                               u"查找重复曲目"_s,
                               u"批量编辑标签"_s,
                               u"智能播放列表"_s,
                               u"年度报告"_s,
                               u"曲目分析"_s,
                               u"DSP 顺序"_s,
                               u"指纹比对"_s,
                               u"在线补全标签"_s,
                               u"网络曲库"_s,
                               u"手机同步"_s,
                               u"插件"_s,
                               u"电台/网络/接力"_s,
                               u"车载模式"_s,
                               u"网络挂载"_s,
                               u"校验曲库"_s,
                               u"清空日志"_s,
                               u"帮助…"_s};
    const QStringList built = {u"曲目分析"_s, u"清空日志"_s, u"帮助…"_s};
    const QList<QAction *> actions = menu()->actions();
    ASSERT_EQ(actions.size(), 18);
    EXPECT_TRUE(menu()->toolTipsVisible());
    for (qsizetype i = 0; i < actions.size(); ++i) {
        EXPECT_EQ(actions[i]->text(), names[i]);
        EXPECT_EQ(actions[i]->isEnabled(), built.contains(names[i])) << names[i].toStdString();
        if (!actions[i]->isEnabled()) {
            EXPECT_EQ(actions[i]->toolTip(), u"这个功能还没有做好，以后的版本才有"_s);
        }
    }
}

TEST_F(Composition, ClearLogEmptiesThePane)
{
    show();
    ui().logSwitch->click();
    ASSERT_TRUE(ui().log);
    m_window->logLine(u"one"_s);
    QTRY_VERIFY_WITH_TIMEOUT(ui().log->toPlainText().contains(u"one"_s), kelp_test::patienceMs);
    menu()->actions().at(16)->trigger();
    EXPECT_TRUE(ui().log->toPlainText().isEmpty());
    EXPECT_TRUE(logHas(u"one"_s)) << "the file keeps it";
}

TEST_F(Composition, APaletteThatChangesClosesTheMenu)
{
    show();
    menu()->close();
    ui().dock->tools->click();
    ASSERT_TRUE(menu()->isVisible());
    QEvent other(QEvent::PaletteChange);
    QApplication::sendEvent(m_window.get(), &other);
    EXPECT_TRUE(menu()->isVisible());
    QEvent changed(QEvent::ApplicationPaletteChange);
    ASSERT_EQ(static_cast<int>(changed.type()), 38);
    QApplication::sendEvent(m_window.get(), &changed);
    EXPECT_FALSE(menu()->isVisible());
}

TEST_F(Composition, ASideWidthOutOfRangeIsClampedStoredAndTold)
{
    struct Case
    {
        int wanted, kept;
    };
    for (const Case &width : {Case{500, 420}, Case{100, 200}, Case{421, 420}, Case{199, 200}}) {
        m_window->setSideWidth(width.wanted, true);
        EXPECT_EQ(readUserSetting(settings::sideWidth), width.kept);
        EXPECT_EQ(
            takeLog().count(u"布局: 侧栏宽度 %1 超出范围, 已夹到 %2 px"_s.arg(width.wanted).arg(width.kept)),
            1);
    }
    show({1920, 1080});
    m_window->setSideWidth(420, true);
    EXPECT_FALSE(takeLog().contains(u"超出范围"_s));
    settle();
    EXPECT_EQ(ui().side->width(), 420);
}

TEST_F(Composition, AStoredSideWidthComesBackClamped)
{
    struct Case
    {
        int stored, width, kept;
        bool told;
    };
    for (const Case &c : {Case{500, 420, 420, true}, Case{100, 200, 200, true}, Case{0, 240, 0, false},
                          Case{-5, 240, -5, false}, Case{300, 300, 300, false}}) {
        writeUserSetting(settings::sideWidth, c.stored);
        m_window.reset();
        takeLog();
        makeWindow();
        EXPECT_EQ(takeLog().count(u"布局: 侧栏宽度 %1 超出范围, 已夹到 %2 px"_s.arg(c.stored).arg(c.kept)),
                  c.told ? 1 : 0)
            << c.stored;
        EXPECT_EQ(readUserSetting(settings::sideWidth), c.kept);
        show({1920, 1080});
        EXPECT_EQ(ui().side->width(), c.width);
    }
}

TEST_F(Composition, ResetLayoutForgetsSizeAndWidth)
{
    show({1500, 900});
    m_window->setSideWidth(300, false);
    m_window->move(3, 5);
    writeUserSetting(settings::geometry, m_window->saveGeometry());
    m_window->resetLayout();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(m_window->pos(), centredPlace(QSize(1280, 860), screen).topLeft());
    EXPECT_EQ(readUserSetting(settings::sideWidth), 240);
    EXPECT_TRUE(readUserSetting(settings::geometry).isEmpty());
    EXPECT_EQ(m_window->size(), QSize(1280, 860));
    EXPECT_TRUE(takeLog().contains(u"布局已重置(窗口大小/位置/侧栏宽度)"_s));
}

TEST_F(Composition, TheGeometryIsKeptFromRunToRun)
{
    show();
    m_window->setGeometry(20, 30, 1110, 700);
    settle();
    m_window->close();
    EXPECT_FALSE(readUserSetting(settings::geometry).isEmpty());
    open();
    EXPECT_EQ(m_window->size(), QSize(1110, 700));
}

TEST_F(Composition, AStoredScreenThatHasGoneLeavesTheWindowReachable)
{
    show();
    m_window->setGeometry(20000, 12000, 1110, 700);
    writeUserSetting(settings::geometry, m_window->saveGeometry());
    open();
    show(m_window->size());
    EXPECT_TRUE(QGuiApplication::primaryScreen()->availableGeometry().intersects(m_window->frameGeometry()));
}

TEST_F(Composition, ADamagedGeometryIsPassedOver)
{
    writeUserSetting(settings::geometry, QByteArray("not a geometry"));
    m_window.reset();
    makeWindow();
    EXPECT_EQ(m_window->size(), QSize(1280, 860));
    EXPECT_TRUE(takeLog().contains(u"窗口位置"_s));
}

TEST_F(Composition, ADoubleClickOnTheTitleMaximisesAndRestores)
{
    show();
    const QPoint bare(m_window->width() / 2, 3);
    QTest::mouseDClick(ui().title, Qt::LeftButton, {}, bare);
    EXPECT_TRUE(m_window->isMaximized());
    QTest::mouseDClick(ui().title, Qt::RightButton, {}, bare);
    EXPECT_TRUE(m_window->isMaximized());
    QTest::mouseDClick(ui().title, Qt::LeftButton, {}, bare);
    EXPECT_FALSE(m_window->isMaximized());
}

TEST_F(Composition, TheMiniCoverLeadsToThePlayingRow)
{
    show();
    m_window->startPlayback(1);
    ui().playlist->setCurrentRow(2);
    ui().playlist->item(1)->setHidden(true);
    ui().dock->miniCover->click();
    EXPECT_FALSE(ui().playlist->item(1)->isHidden());
    EXPECT_EQ(ui().playlist->currentRow(), 1);
    m_window->stopPlayback();
    settle();
    ui().playlist->setCurrentRow(2);
    ui().dock->miniCover->click();
    EXPECT_EQ(ui().playlist->currentRow(), 2) << "nothing plays: the chosen row";
    m_window->clearPlaylist();
    takeLog();
    ui().dock->miniCover->click();
    EXPECT_TRUE(takeLog().contains(u"曲库里找不到正在播放的这一首"_s));
}

TEST_F(Composition, KeysDoWhatTheirButtonsDo)
{
    show();
    ui().playlist->setFocus();
    ui().playlist->setCurrentRow(0);
    QTest::keyClick(m_window.get(), Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(ui().dock->volume->value(), 95);
    QTest::keyClick(m_window.get(), Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(ui().dock->volume->value(), 100);
    QTest::keyClick(m_window.get(), Qt::Key_Space);
    EXPECT_TRUE(m_window->sessionRuns());
    QTest::keyClick(m_window.get(), Qt::Key_Space, Qt::ControlModifier);
    settle();
    EXPECT_FALSE(m_window->sessionRuns());
    QTest::keyClick(m_window.get(), Qt::Key_F11);
    EXPECT_TRUE(m_window->isMaximized());
    QTest::keyClick(m_window.get(), Qt::Key_Comma, Qt::ControlModifier);
    ASSERT_TRUE(ui().setup);
    EXPECT_TRUE(ui().setup->isVisible());
    QTest::keyClick(ui().setup, Qt::Key_Escape);
    EXPECT_FALSE(ui().setup->isVisible());
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    EXPECT_TRUE(m_window->isVisible()) << "the window itself is not to be lost by a key";
}

TEST_F(Composition, AWheelOverTheVolumeButtonTurnsTheVolume)
{
    show();
    m_window->startPlayback(0);
    const auto turn = [this](int angle) {
        const QPointF at(5, 5);
        QWheelEvent event(at, ui().dock->mute->mapToGlobal(at), {}, {0, angle}, {}, {}, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(ui().dock->mute, &event);
        EXPECT_TRUE(event.isAccepted());
    };
    turn(-120);
    EXPECT_EQ(ui().dock->volume->value(), 95);
    EXPECT_TRUE(m_engine.did(u"write vol 95"_s));
    turn(-60);
    EXPECT_EQ(ui().dock->volume->value(), 95) << "half a notch of a touchpad";
    turn(-60);
    EXPECT_EQ(ui().dock->volume->value(), 90);
    turn(360);
    EXPECT_EQ(ui().dock->volume->value(), 100) << "and no further";
}

TEST_F(Composition, WhatWasLoggedBeforeStandsInThePane)
{
    show();
    m_window->logLine(u"before the pane"_s);
    EXPECT_FALSE(ui().log) << "closed at first";
    ui().logSwitch->click();
    ASSERT_TRUE(ui().log);
    EXPECT_TRUE(ui().log->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(ui().log->toPlainText().contains(u"before the pane"_s), kelp_test::patienceMs);
    ui().logSwitch->click();
    EXPECT_FALSE(ui().log->isVisible());
    EXPECT_EQ(ui().logSwitch->text(), u"显示日志面板"_s);
}

TEST_F(Composition, TheDialAndTheDockNeverMove)
{
    show({1280, 760});
    const QRect dial = ui().progress->geometry();
    const QRect dock = ui().dock->geometry();
    ui().logSwitch->click();
    QTest::qWait(0);
    settle();
    EXPECT_EQ(ui().progress->geometry(), dial);
    EXPECT_EQ(ui().dock->geometry(), dock);
    const QRect play = QRect(ui().dock->start->mapTo(m_window.get(), QPoint()), ui().dock->start->size());
    EXPECT_NEAR(play.center().x(), m_window->width() / 2, 1) << "play stands on the window's middle";
}

TEST_F(Composition, FilesThatAreDroppedAreAdded)
{
    show();
    m_window->clearPlaylist();
    const QString path = m_root.filePath(u"a.wav"_s);
    for (QWidget *target : {static_cast<QWidget *>(m_window.get()), ui().playlist->viewport()}) {
        const int before = ui().playlist->count();
        EXPECT_TRUE(target->acceptDrops());
        QMimeData dropped;
        dropped.setUrls({QUrl::fromLocalFile(before == 0 ? path : m_root.filePath(u"b.wav"_s))});
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &dropped, Qt::LeftButton, {});
        QApplication::sendEvent(target, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dropped, Qt::LeftButton, {});
        QApplication::sendEvent(target, &drop);
        QTRY_COMPARE_WITH_TIMEOUT(ui().playlist->count(), before + 1, kelp_test::patienceMs);
    }
}

TEST_F(Composition, EverythingThatTakesTheFocusHasAName)
{
    show();
    ui().logSwitch->click();
    m_window->openSetup();
    for (const QWidget *widget : all()) {
        const QString what =
            QString::fromLatin1(widget->metaObject()->className()) + u' ' + widget->objectName();
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        const bool inside = qobject_cast<const QAbstractSpinBox *>(widget->parentWidget()) ||
                            qobject_cast<const QLineEdit *>(widget->parentWidget()) ||
                            qobject_cast<const QComboBox *>(widget->parentWidget());
        if (inside || widget->objectName() == "vesperRoot"_L1 || widget->objectName().startsWith("qt_"_L1) ||
            widget->inherits("QComboBoxPrivateContainer") || qobject_cast<const QMenu *>(widget) ||
            qobject_cast<const QDialog *>(widget) || widget->inherits("QComboBoxListView"))
            continue;
        if ((widget->focusPolicy() & Qt::TabFocus) || button) {
            EXPECT_FALSE(widget->accessibleName().isEmpty() && (!button || button->text().isEmpty()))
                << what.toStdString();
        }
        if (button && widget->window() == m_window.get()) {
            EXPECT_FALSE(widget->toolTip().isEmpty()) << what.toStdString() << button->text().toStdString();
        }
    }
}

TEST_F(Composition, TheTabKeyReachesEverythingInItsOrder)
{
    show();
    ui().logSwitch->click();
    const LibraryPanel &library = *ui().library;
    const DockBar &dock = *ui().dock;
    QList<QWidget *> expected = {library.search};
    for (QPushButton *chip : library.chips)
        expected.append(chip);
    expected.append({library.artist,
                     library.album,
                     ui().playlist,
                     library.importFiles,
                     library.importFolder,
                     library.removeRows,
                     library.clearList,
                     ui().refreshDevices,
                     ui().device,
                     ui().selfCheck,
                     ui().report,
                     ui().progress->loopA,
                     ui().progress->loopB,
                     dock.order,
                     dock.stop,
                     dock.previous,
                     dock.start,
                     dock.next,
                     dock.repeat,
                     dock.lyrics,
                     dock.mute,
                     dock.volume,
                     dock.tools,
                     ui().logSwitch,
                     ui().log,
                     ui().title->brand});
    expected.append(ui().title->windowButtons());
    QList<QWidget *> found;
    for (QWidget *widget = library.search;;) {
        if ((widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget->window() == m_window.get() &&
            !widget->focusProxy() && (widget->isVisible() || !widget->isEnabled()) &&
            !widget->objectName().startsWith("qt_"_L1))
            found.append(widget);
        widget = widget->nextInFocusChain();
        if (widget == library.search)
            break;
    }
    for (QWidget *widget : found) {
        if (!expected.contains(widget))
            ADD_FAILURE() << "left out: " << widget->metaObject()->className() << " "
                          << widget->objectName().toStdString();
    }
    found.removeIf([&](QWidget *widget) { return !expected.contains(widget); });
    EXPECT_EQ(found, expected);
}

TEST_F(Composition, AreasAreMirroredAndInstrumentsAreNot)
{
    m_window.reset();
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    open();
    show();
    const auto x = [this](const QWidget *widget) { return widget->mapTo(m_window.get(), QPoint()).x(); };
    EXPECT_GT(x(ui().library), x(ui().centre));
    EXPECT_LT(x(ui().side), x(ui().centre));
    EXPECT_GT(x(ui().title->brand), x(ui().title->windowButtons().first()));
    EXPECT_GT(x(ui().stage), x(ui().display));
    for (const QLabel *lamp : m_window->findChildren<QLabel *>(u"vesperIndOn"_s))
        EXPECT_TRUE(lamp->text().isRightToLeft()) << "the lamp leads its word";
    EXPECT_LT(x(ui().dock->tools), x(ui().dock->start));
    EXPECT_LT(x(ui().dock->previous), x(ui().dock->start)) << "time runs from left to right";
    EXPECT_LT(x(ui().dock->start), x(ui().dock->next));
    EXPECT_LT(x(ui().progress->loopA), x(ui().progress->loopB));
    for (const QWidget *kept :
         {static_cast<QWidget *>(ui().instruments), static_cast<QWidget *>(ui().progress),
          static_cast<QWidget *>(ui().dock->volume)})
        EXPECT_EQ(kept->layoutDirection(), Qt::LeftToRight);
    // The outer margins are alike on both sides.
    const int brandEnd = x(ui().title->brand) + ui().title->brand->width();
    EXPECT_EQ(m_window->width() - brandEnd, 16);
}

TEST_F(Composition, TheChosenRowIsShownWhileNothingPlays)
{
    const auto *meta = m_window->findChild<QLabel *>(u"vesperVfdMeta"_s);
    ui().playlist->setCurrentRow(1);
    EXPECT_EQ(meta->text(), u"TRACK 02"_s);
    m_window->startPlayback(0);
    EXPECT_EQ(meta->text(), u"TRACK 01"_s);
    ui().playlist->setCurrentRow(2);
    EXPECT_EQ(meta->text(), u"TRACK 01"_s) << "the display belongs to what plays";
    m_window->stopPlayback();
    settle();
    m_window->clearPlaylist();
    EXPECT_EQ(meta->text(), u"TRACK --"_s);
    EXPECT_EQ(m_window->findChild<QWidget *>(u"vesperVfdTitle"_s)->accessibleName(), u"NO DISC"_s);
    EXPECT_EQ(m_window->findChild<QLabel *>(u"vesperVfdFormat"_s)->text(), u"AUDIO"_s);
}

TEST_F(Composition, BitsAndRateAreNotKnownAtATrackChange)
{
    m_window->startPlayback(0);
    say(u"volume: unity on a 24 bit device"_s);
    say(u"source: 96000 Hz / 24 bit / 2 ch"_s);
    WindowInspector::chain(*m_window).cards.sampleRate = u"96000 Hz"_s;
    m_window->refreshChainPanel();
    m_window->jumpToRow(1);
    settle();
    const QList<QLabel *> values = m_window->findChildren<QLabel *>(u"vesperCardVal"_s);
    ASSERT_EQ(values.size(), 4);
    EXPECT_EQ(values.at(0)->text(), u"— kbps"_s);
    EXPECT_EQ(values.at(1)->text(), u"— Hz"_s);
    EXPECT_FALSE(WindowInspector::signal(*m_window).bits.bits.has_value());
}

TEST_F(Composition, TheLookIsChosenInTheSettings)
{
    m_window->openSetup();
    LookControls &look = *ui().look;
    EXPECT_TRUE(look.spectrum->isChecked()) << "a new listener sees the spectrum";
    EXPECT_FALSE(look.scope->isChecked());
    look.scope->click();
    EXPECT_EQ(readUserSetting(settings::vizMode), 3);
    look.spectrum->click();
    EXPECT_EQ(readUserSetting(settings::vizMode), 2);
    m_window->startPlayback(0);
    look.theme->setCurrentIndex(1);
    Q_EMIT look.theme->activated(1);
    EXPECT_TRUE(theme::lightTheme);
    EXPECT_EQ(readUserSetting(settings::theme), 1);
    look.reduceMotion->click();
    EXPECT_TRUE(theme::reduceMotion);
    look.coverAccent->click();
    EXPECT_FALSE(readUserSetting(settings::coverAccent));
    look.sideWidth->setValue(500);
    EXPECT_EQ(look.sideWidth->value(), 420) << "what is stored is what is shown";
    look.resetLayout->click();
    EXPECT_EQ(look.sideWidth->value(), 240);
    takeLog();
    look.pureDefaults->click();
    EXPECT_TRUE(takeLog().contains(u"已恢复纯净默认"_s));
    EXPECT_EQ(look.theme->currentIndex(), 0);
}
