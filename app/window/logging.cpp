// The window's log: pane, file, stage label, crash guard.
#include "ui/window/player_gui_window.h"

#include "app/gui_log_file.h"
#include "app/startup_metrics.h"
#include "platform/process_facts.h"
#include "ui/log_pane.h"

#include <utility>

using namespace Qt::StringLiterals;

void PlayerGuiWindow::logLine(const QString &text, bool isError)
{
    logFileOnly(text);
    if (!m_ui.log)
        return;
    m_log.batch.append({text, isError});
    if (std::exchange(m_log.flushPosted, true))
        return;
    // A burst of lines costs one repaint.
    QMetaObject::invokeMethod(this, &PlayerGuiWindow::flushLog, Qt::QueuedConnection);
}

void PlayerGuiWindow::flushLog()
{
    m_log.flushPosted = false;
    m_ui.log->appendEntries(std::exchange(m_log.batch, {}));
}

void PlayerGuiWindow::logFileOnly(const QString &text)
{
    GuiLogFile::ofProcess().write(text);
}

QString PlayerGuiWindow::markStage(const QString &label)
{
    return m_log.stage.exchange(label);
}

void PlayerGuiWindow::crashGuard(const QString &functionName, const std::exception *exception)
{
    const QString text = exception ? QString::fromLocal8Bit(exception->what()) : u"unknown exception"_s;
    logLine(u"[crash-guard] %1: %2"_s.arg(functionName, text), true);
}

void PlayerGuiWindow::reportStartupMetrics()
{
    logLine(startupMetrics(m_log.readyAfterMs, residentBytes()));
}

void PlayerGuiWindow::noteShown()
{
    m_log.readyAfterMs = processAgeMs();
}
