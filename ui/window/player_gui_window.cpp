#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "engine/telemetry_mailbox.h"
#include "ui/keyboard_focus.h"
#include "ui/style_sheet.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize leastSize(areas::leastWidth, areas::leastHeight);

} // namespace

PlayerGuiWindow::PlayerGuiWindow(const WindowOptions &options, QWidget *parent)
    : QMainWindow(parent, Qt::FramelessWindowHint)
    , m_options(options)
{
    // The engine lists its devices while the widgets are built; populateDevicesBlocking waits for the rest.
    beginDeviceListing();
    setWindowTitle(u"Kelp Player"_s);
    // The central widget covers all of it.
    setAttribute(Qt::WA_OpaquePaintEvent);
    KeyboardFocus::install();
    loadTheme();
    buildInstrumentTimers();
    buildLayout();
    setMinimumSize(leastSize);
    qApp->installEventFilter(this);
    restorePlace();
    connectControls();
    buildShortcuts();
    loadParams();
    populateDevicesBlocking();
    logLine(tr("=== KelpPlayer — DSD 音频播放器 ==="));
    logLine(
        tr("格式: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE"));
    logLine(tr("模式: standard / differential / btl / crossover / pairs"));
    restorePlaylist();
    setPlayingUi(false);
    showIdle();
}

PlayerGuiWindow::~PlayerGuiWindow()
{
    if (sessionRuns())
        killProc(true);
    settleHistory();
    // The session's threads call sinks that post to this window: it ends while the window is whole.
    m_link.session.reset();
    if (m_link.mailbox)
        m_link.mailbox->close();
    userSettingsFile().flush();
}

void PlayerGuiWindow::startUpdateCheck(bool) {}

void PlayerGuiWindow::applyLibraryFilter() {}

void PlayerGuiWindow::runRigReport() {}

void PlayerGuiWindow::resetEffects() {}
