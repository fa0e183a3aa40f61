// What the window's controls set going.
#include "ui/window/player_gui_window.h"

#include "output/engine_controls.h"
#include "playback/playlist_widget.h"
#include "ui/dock_bar.h"

#include <QLabel>
#include <QPushButton>
#include <QShortcut>

using namespace Qt::StringLiterals;

void PlayerGuiWindow::connectControls()
{
    connect(m_ui.dock->start, &QToolButton::clicked, this, &PlayerGuiWindow::togglePause);
    connect(m_ui.dock->stop, &QToolButton::clicked, this, &PlayerGuiWindow::stopPlayback);
    connect(m_ui.dock->previous, &QToolButton::clicked, this, [this] { stepRow(-1); });
    connect(m_ui.dock->next, &QToolButton::clicked, this, [this] { stepRow(1); });
    connect(m_ui.dock->volume, &QSlider::valueChanged, this, [this](int value) {
        m_volumeTouched = true;
        if (sessionRuns())
            sendCmd(u"vol %1"_s.arg(value));
    });
    connect(m_ui.dock->volume, &QSlider::sliderReleased, this, &PlayerGuiWindow::saveParams);

    connect(m_ui.playlist, &QListWidget::itemActivated, this,
            [this](QListWidgetItem *item) { startPlayback(m_ui.playlist->row(item)); });
    connect(m_ui.playlist, &QListWidget::currentRowChanged, this, &PlayerGuiWindow::refreshNavButtons);
    connect(m_ui.importFiles, &QPushButton::clicked, this, &PlayerGuiWindow::chooseFiles);
    connectPlaylist();

    connect(m_ui.analyze, &QPushButton::clicked, this, &PlayerGuiWindow::analyzeTrack);

    connect(m_ui.engine, &EngineControls::changed, this, &PlayerGuiWindow::saveParams);
    connect(m_ui.engine, &EngineControls::pcmFilterChosen, this, [this] {
        m_pcmFilterExplicit = true;
        saveParams();
    });
    connect(m_ui.engine->peakGuard, &QCheckBox::toggled, this, [this](bool on) {
        if (sessionRuns() && sendCmd(on ? u"guard on"_s : u"guard off"_s))
            m_start.sessionGuard = on;
    });
    connect(m_ui.engine->speedRatio, &QDoubleSpinBox::valueChanged, this, [this](double ratio) {
        if (sessionRuns())
            sendCmd(u"speed "_s + QString::number(ratio, 'f', 2));
    });
    for (QComboBox *combo : m_devices.deviceCombos) {
        connect(combo, &QComboBox::currentIndexChanged, this, [this] {
            if (!m_devices.populatingDevices)
                saveParams();
        });
    }
    connect(m_ui.refreshDevices, &QPushButton::clicked, this, &PlayerGuiWindow::populateDevices);
}

void PlayerGuiWindow::showMessage(const QString &text)
{
    m_ui.message->setText(text);
    m_ui.message->setToolTip(text);
}
