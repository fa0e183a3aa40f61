// The end of the window.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "platform/settings_table.h"

#include <QCloseEvent>
#include <QMessageBox>

using namespace Qt::StringLiterals;

bool PlayerGuiWindow::trayActive() const
{
    // There is no tray icon yet, so a window that hid could not come back.
    return false;
}

bool PlayerGuiWindow::confirmClose()
{
    if (m_endDemanded || !m_options.asksBeforeClosing || !sessionRuns() || !m_start.uiPlaying)
        return true;
    const auto answer = QMessageBox::question(this, tr("播放进行中"),
                                              tr("播放尚未结束, 关闭窗口将停止播放。\n\n确定要退出吗?"),
                                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    return answer == QMessageBox::Yes;
}

void PlayerGuiWindow::endOnDemand(const QString &whose)
{
    logLine(u"[gui] %1: 系统要求退出"_s.arg(whose));
    m_endDemanded = true;
    // Closes every window, dialogs too, and this one as its closeEvent says.
    QCoreApplication::quit();
}

void PlayerGuiWindow::closeEvent(QCloseEvent *event)
{
    // A quit that is under way asks each window once more.
    if (m_closing) {
        event->accept();
        return;
    }
    logLine(u"[gui] closeEvent: 播放中=%1"_s.arg(sessionRuns() ? 1 : 0));
    if (!m_endDemanded && trayActive() && readUserSetting(settings::trayClose)) {
        hide();
        logLine(tr("已缩到系统托盘, 播放继续"));
        event->ignore();
        return;
    }
    if (!confirmClose()) {
        event->ignore();
        return;
    }
    m_closing = true;
    saveParams();
    writeUserSetting(settings::geometry, saveGeometry());
    logGeometry(u"closed"_s);
    killProc(false);
    // Whoever sees the window gone may end the rest by force.
    userSettingsFile().flush();
    event->accept();
}
