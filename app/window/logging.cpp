// The window's log: pane, file, stage label, crash guard.
#include "ui/window/player_gui_window.h"

#include "app/crash_guard.h"
#include "app/gui_log_file.h"
#include "app/startup_metrics.h"
#include "platform/process_facts.h"
#include "ui/log_pane.h"

namespace {

constexpr qint64 leastRepaintMs = 50;
constexpr qsizetype mostUnread = 5000;

} // namespace

void PlayerGuiWindow::logLine(const QString &text, bool isError)
{
    logFileOnly(text);
    if (!m_ui.log) {
        // The pane is built when it is first opened, and then shows what was said before.
        if (m_log.unread.size() == mostUnread)
            m_log.unread.removeFirst();
        m_log.unread.append({text, isError});
        return;
    }
    if (!m_log.batch.add({text, isError}))
        return;
    // A burst of lines costs one repaint, and an engine that never stops talking costs no more of them than
    // the eye can follow.
    const qint64 sinceMs = m_log.sinceFlush.isValid() ? m_log.sinceFlush.elapsed() : leastRepaintMs;
    if (sinceMs >= leastRepaintMs)
        QMetaObject::invokeMethod(this, &PlayerGuiWindow::flushLog, Qt::QueuedConnection);
    else
        QTimer::singleShot(leastRepaintMs - sinceMs, this, &PlayerGuiWindow::flushLog);
}

void PlayerGuiWindow::flushLog()
{
    m_log.sinceFlush.start();
    m_ui.log->appendEntries(std::exchange(m_log.unread, {}));
    m_ui.log->appendEntries(m_log.batch.take());
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
    logLine(crashGuardText(functionName, exception), true);
}

void PlayerGuiWindow::reportStartupMetrics()
{
    logLine(startupMetrics(m_log.readyAfterMs, residentBytes()));
}

void PlayerGuiWindow::noteShown()
{
    m_log.readyAfterMs = processAgeMs();
    logGeometry(QStringLiteral("shown"));
}
