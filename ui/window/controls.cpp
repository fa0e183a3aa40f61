// What the window's controls set going.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "platform/settings_table.h"
#include "playback/playlist_widget.h"
#include "playback/row_order.h"
#include "ui/dock_bar.h"
#include "ui/icon_button.h"
#include "ui/library_panel.h"
#include "ui/mini_cover.h"
#include "ui/progress_row.h"
#include "ui/title_bar.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

void PlayerGuiWindow::connectControls()
{
    connectTransport();
    connectList();
    connect(m_ui.title->brand, &QPushButton::clicked, this, &PlayerGuiWindow::openSetup);
    connect(m_ui.dock->tools, &QPushButton::clicked, this, &PlayerGuiWindow::openTools);
    connect(m_ui.logSwitch, &QToolButton::toggled, this, &PlayerGuiWindow::openLog);
    connect(m_ui.device, &QComboBox::currentIndexChanged, this, [this] {
        m_ui.device->setToolTip(m_ui.device->currentText());
        if (!m_devices.populatingDevices)
            saveParams();
    });
    connect(m_ui.refreshDevices, &QPushButton::clicked, this, &PlayerGuiWindow::populateDevices);
    connect(m_ui.selfCheck, &QPushButton::clicked, this, &PlayerGuiWindow::startBitPerfectCheck);
    connect(m_ui.report, &QPushButton::clicked, this, &PlayerGuiWindow::openChainReport);
}

void PlayerGuiWindow::connectTransport()
{
    const DockBar &dock = *m_ui.dock;
    connect(dock.start, &QPushButton::clicked, this, &PlayerGuiWindow::togglePause);
    connect(dock.stop, &QPushButton::clicked, this, &PlayerGuiWindow::stopPlayback);
    connect(dock.previous, &QPushButton::clicked, this, [this] { stepRow(-1); });
    connect(dock.next, &QPushButton::clicked, this, [this] { stepRow(1); });
    connect(dock.order, &QPushButton::clicked, this, &PlayerGuiWindow::cycleOrder);
    connect(dock.repeat, &QPushButton::clicked, this, &PlayerGuiWindow::cycleRepeat);
    connect(this, &PlayerGuiWindow::playOrderShown, m_ui.dock, &DockBar::showModes);
    const auto point = [this](double marked, void (PlayerGuiWindow::*mark)()) {
        if (marked >= 0.)
            clearAbLoop();
        else
            (this->*mark)();
        showAbLoop();
    };
    const ProgressRow &row = *m_ui.progress;
    connect(row.loopA, &QPushButton::clicked, this,
            [this, point] { point(m_transport.abLoop.pointA, &PlayerGuiWindow::markA); });
    connect(row.loopB, &QPushButton::clicked, this,
            [this, point] { point(m_transport.abLoop.pointB, &PlayerGuiWindow::markB); });
    connect(this, &PlayerGuiWindow::abLoopShown, m_ui.progress, &ProgressRow::showLoop);
    connect(dock.volume, &QSlider::valueChanged, this, [this](int value) {
        m_volumeTouched = true;
        // A volume that is just fading out was not chosen.
        if (m_transport.sleep.volumeBefore < 0)
            writeUserSetting(settings::volume, value);
        if (sessionRuns())
            sendCmd(u"vol %1"_s.arg(value));
    });
    connect(dock.mute, &QPushButton::clicked, this, &PlayerGuiWindow::toggleMute);
    // A touchpad turns a notch in many parts.
    connect(dock.mute, &IconButton::wheelTurned, this, [this, turned = 0](int angle) mutable {
        turned += angle;
        const int notches = turned / QWheelEvent::DefaultDeltasPerStep;
        turned -= notches * QWheelEvent::DefaultDeltasPerStep;
        turnVolume(notches);
    });
    connect(dock.miniCover, &QAbstractButton::clicked, this, &PlayerGuiWindow::showPlayingRow);
}

void PlayerGuiWindow::connectList()
{
    const LibraryPanel &library = *m_ui.library;
    connect(m_ui.playlist, &QListWidget::itemActivated, this,
            [this](QListWidgetItem *item) { startPlayback(m_ui.playlist->row(item)); });
    connect(m_ui.playlist, &QListWidget::currentRowChanged, this, [this] {
        refreshNavButtons();
        // What is chosen is what would play; while a session runs, the display belongs to its track.
        if (!sessionRuns())
            refreshNowPlaying();
    });
    connect(library.importFiles, &QPushButton::clicked, this, &PlayerGuiWindow::chooseFiles);
    connect(library.importFolder, &QPushButton::clicked, this, &PlayerGuiWindow::chooseFolder);
    connect(library.removeRows, &QPushButton::clicked, this, &PlayerGuiWindow::removeSelectedRows);
    connect(library.clearList, &QPushButton::clicked, this, &PlayerGuiWindow::clearPlaylist);
    connectPlaylist();
}

void PlayerGuiWindow::turnVolume(int steps)
{
    constexpr int stepPercent = 5;
    m_ui.dock->volume->setValue(m_ui.dock->volume->value() + steps * stepPercent);
}

void PlayerGuiWindow::toggleMute()
{
    QSlider *volume = m_ui.dock->volume;
    if (volume->value() > 0)
        m_volumeBeforeMute = volume->value();
    volume->setValue(volume->value() > 0 ? 0 : m_volumeBeforeMute);
    saveParams();
}

void PlayerGuiWindow::showPlayingRow()
{
    const int row = rowToShow({sessionRuns(), m_start.playingRow, m_ui.playlist->currentRow()});
    if (!m_ui.playlist->hasRow(row)) {
        logLine(tr("曲库里找不到正在播放的这一首"), true);
        return;
    }
    m_ui.playlist->item(row)->setHidden(false);
    m_ui.playlist->showRow(row);
}

void PlayerGuiWindow::showMessage(const QString &text)
{
    m_ui.message->setText(text);
    m_ui.message->setToolTip(text);
}
