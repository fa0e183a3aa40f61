// What opens: the settings, the tools, the engine's controls.
#include "ui/window/player_gui_window.h"

#include "net/remote_controls.h"
#include "output/engine_controls.h"
#include "ui/dock_bar.h"
#include "ui/log_pane.h"
#include "ui/look_controls.h"
#include "ui/setup_dialog.h"
#include "ui/sleep_controls.h"
#include "ui/tools_menu.h"

using namespace Qt::StringLiterals;

void PlayerGuiWindow::buildSetup()
{
    if (m_ui.setup)
        return;
    m_ui.setup = new SetupDialog(this);
    m_ui.engine = new EngineControls(m_ui.setup);
    m_ui.setup->addSection(tr("引擎设置"), m_ui.engine);
    m_ui.look = new LookControls(m_ui.setup);
    m_ui.setup->addSection(tr("显示"), m_ui.look);
    connectLook();
    m_ui.sleep = new SleepControls(m_ui.setup);
    m_ui.setup->addSection(tr("睡眠定时"), m_ui.sleep);
    m_ui.remote = new RemoteControls(m_ui.setup);
    m_ui.setup->addSection(tr("手机遥控"), m_ui.remote);

    fillChannelDevices();
    showChoices();
    connect(m_ui.engine, &EngineControls::changed, this, [this] { applyChoices(m_ui.engine->choices()); });
    connect(m_ui.sleep, &SleepControls::chosen, this, &PlayerGuiWindow::setSleepTimer);
    connect(this, &PlayerGuiWindow::sleepTimerShown, m_ui.sleep, &SleepControls::showTimer);
    showPlayModes();
    connect(m_ui.remote, &RemoteControls::switched, this, &PlayerGuiWindow::switchRemote);
    connect(m_ui.remote, &RemoteControls::addressesWanted, this, &PlayerGuiWindow::showRemoteAddresses);
    showRemote();
}

EngineControls &PlayerGuiWindow::engineControls()
{
    buildSetup();
    return *m_ui.engine;
}

RemoteControls &PlayerGuiWindow::remoteControls()
{
    buildSetup();
    return *m_ui.remote;
}

void PlayerGuiWindow::openSetup()
{
    buildSetup();
    m_ui.setup->show();
    m_ui.setup->raise();
    m_ui.setup->activateWindow();
}

void PlayerGuiWindow::applyChoices(const EngineChoices &choices)
{
    const EngineChoices former = std::exchange(m_choices, choices);
    if (choices.peakGuard != former.peakGuard && sessionRuns() &&
        sendCmd(choices.peakGuard ? u"guard on"_s : u"guard off"_s))
        m_start.sessionGuard = choices.peakGuard;
    if (choices.speedRatio != former.speedRatio)
        setSpeed(choices.speedRatio);
    saveParams();
}

void PlayerGuiWindow::showChoices()
{
    if (m_ui.engine)
        m_ui.engine->showChoices(m_choices);
}

void PlayerGuiWindow::showPcmFilter(const QString &name, bool automatic)
{
    const QList<ChoiceItem> known = engineItems::pcmFilters();
    if (std::ranges::none_of(known, [&](const ChoiceItem &item) { return item.code == name; }))
        return;
    m_choices.pcmFilter = name;
    m_choices.pcmFilterAutomatic = automatic;
    showChoices();
}

void PlayerGuiWindow::openTools()
{
    if (!m_toolsMenu) {
        m_toolsMenu = new ToolsMenu({Tool::TrackAnalysis, Tool::ClearLog, Tool::Help}, this);
        connect(m_toolsMenu, &ToolsMenu::chosen, this, &PlayerGuiWindow::useTool);
        connect(m_toolsMenu, &QMenu::aboutToHide, this, [this] { m_toolPanel = ToolPanel::Closed; });
    }
    m_toolPanel = ToolPanel::Menu;
    // The menu opens upward, its end at the button's end.
    const QPushButton *button = m_ui.dock->tools;
    const QSize size = m_toolsMenu->sizeHint();
    const QPoint corner =
        layoutDirection() == Qt::RightToLeft ? QPoint(0, 0) : QPoint(button->width() - size.width(), 0);
    m_toolsMenu->popup(button->mapToGlobal(corner - QPoint(0, size.height() + 4)));
}

void PlayerGuiWindow::useTool(Tool tool)
{
    switch (tool) {
    case Tool::TrackAnalysis:
        analyzeTrack();
        break;
    case Tool::ClearLog:
        clearLog();
        break;
    case Tool::Help:
        showHelp();
        break;
    default:
        break; // The menu offers no other.
    }
}

void PlayerGuiWindow::clearLog()
{
    m_log.unread.clear();
    if (m_ui.log)
        m_ui.log->clear();
    showMessage(tr("日志面板已清空；日志文件保留"));
}
