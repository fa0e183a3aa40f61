// What the listener does to playback: start, pause, stop, step.
#include "ui/window/player_gui_window.h"

#include "engine/device_reset.h"
#include "playback/container_listing.h"
#include "playback/playlist_widget.h"
#include "playback/row_order.h"
#include "playback/track_start.h"
#include "ui/display_panel.h"
#include "ui/dock_bar.h"
#include "ui/title_bar.h"

#include <QFileInfo>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// A pause in the first instant of a track is no place to come back to.
constexpr double leastPausePositionSec = 0.5;

} // namespace

void PlayerGuiWindow::startPlayback(int row)
{
    m_transport.order.forgetHistory();
    if (m_ui.playlist->count() == 0) {
        logLine(tr("错误: 请先添加音频文件"), true);
        return;
    }
    if (!closeLeftoverSession())
        return;
    const int current = m_start.currentRow + (std::exchange(m_start.currentRowGone, false) ? 1 : 0);
    m_start.currentRow = settleStartRow({row, sessionRuns() && m_start.uiPlaying, m_ui.playlist->currentRow(),
                                         current, lastPlayedRow(), m_ui.playlist->count()});
    m_start.userStopped = false;
    playCurrent();
}

bool PlayerGuiWindow::closeLeftoverSession()
{
    // A live session is told to load the next track or is rebuilt by playCurrent. One that is on its way out
    // has to be gone first: it still holds the device.
    const bool leavesSoon = !m_start.sessionLive || m_start.userStopped || m_start.sessionClosing;
    if (!sessionRuns() || !leavesSoon)
        return true;
    logLine(tr("旧会话还没退出 ⇒ 先断开它再起播（进程内会话只能等它自己收尾）"), true);
    m_link.session->close();
    if (!m_link.session->waitFinished(m_options.times.leftover)) {
        m_link.session->terminate();
        m_link.session->waitFinished(m_options.times.leftoverTerminate);
    }
    if (!sessionRuns())
        return true;
    logLine(tr("旧会话仍未退出，无法开始新的播放 —— 请等它收尾（或退出重开；自动化/排障可设 "
               "KELP_GUI_INPROC=0 走子进程）"),
            true);
    return false;
}

void PlayerGuiWindow::stopPlayback()
{
    guarded(u"stopPlayback"_s, [this] { stopSession(); });
}

void PlayerGuiWindow::stopSession()
{
    if (!sessionRuns()) {
        logLine(tr("没有正在运行的播放任务"));
        return;
    }
    logLine(tr("正在停止播放器..."));
    saveResumePositionNow(0.);
    m_start.userStopped = true;
    m_start.restartPending = false;
    m_start.sessionDenoiseTier = -1;
    setPlayingUi(false);
    sendCmd(u"stop"_s);
    const int generation = m_start.playGeneration;
    const auto stillRuns = [this, generation] {
        return generation == m_start.playGeneration && sessionRuns();
    };
    QTimer::singleShot(m_options.times.stop, this, [this, stillRuns] {
        if (!stillRuns())
            return;
        logLine(stopTimeoutText(m_link.session->canBeKilled()), true);
        m_link.session->terminate();
        QTimer::singleShot(m_options.times.stopKill, this, [this, stillRuns] {
            if (!stillRuns())
                return;
            m_link.session->kill();
            if (!m_link.session->isInProcess())
                resetDeviceAfterKill(m_link.playerBin, u"停止时强杀"_s,
                                     [this](const QString &text, bool isError) { logLine(text, isError); });
        });
    });
    logLine(tr("停止信号已发送"));
}

void PlayerGuiWindow::killProc(bool quiet)
{
    if (!sessionRuns()) {
        std::fputs("[gui] killProc: no player process running, exiting\n", stderr);
        return;
    }
    std::fprintf(stderr, "[gui] killProc: sent stop, waiting up to %d ms to finish\n", m_options.times.close);
    m_start.userStopped = true;
    sendCmd(u"stop"_s);
    if (!m_link.session->waitFinished(m_options.times.close)) {
        logLine(stopTimeoutText(m_link.session->canBeKilled()), true);
        m_link.session->terminate();
        if (!m_link.session->waitFinished(m_options.times.closeTerminate)) {
            m_link.session->kill();
            m_link.session->waitFinished(m_options.times.closeKill);
            logFileOnly(u"关窗时强杀"_s);
            if (!m_link.session->isInProcess())
                resetDeviceAfterKill(m_link.playerBin, u"关窗时强杀"_s,
                                     [this](const QString &text, bool isError) { logLine(text, isError); });
        }
    }
    if (!quiet)
        logLine(tr("播放已停止"));
}

void PlayerGuiWindow::togglePause()
{
    if (!sessionRuns() || !m_start.uiPlaying) {
        startPlayback();
        return;
    }
    m_start.paused = !m_start.paused;
    if (m_start.paused)
        saveResumePositionNow(leastPausePositionSec);
    sendCmd(m_start.paused ? u"pause"_s : u"resume"_s);
    refreshStartButton();
}

void PlayerGuiWindow::setPlayingUi(bool on)
{
    m_start.uiPlaying = on;
    tellWhyScopeIsEmpty();
    m_ui.dock->stop->setEnabled(on);
    if (!on) {
        m_start.paused = false;
        beginTrackFacts(false);
        // The marks stay and count again when their track is started.
        Q_EMIT abLoopShown(-1., -1.);
    }
    refreshChainPanel();
    refreshStartButton();
    refreshNavButtons();
}

void PlayerGuiWindow::refreshStartButton()
{
    m_ui.title->showIndicators(m_start.uiPlaying && effectsAudible(), m_start.uiPlaying && !m_start.paused);
    if (!m_start.uiPlaying) {
        m_ui.dock->showStartAs(false, tr("播放"));
        m_ui.display->showStatus(u"■ STOP"_s, false);
    } else if (m_start.paused) {
        m_ui.dock->showStartAs(false, tr("继续"));
        m_ui.display->showStatus(u"‖ PAUSE"_s, true);
    } else {
        m_ui.dock->showStartAs(true, tr("暂停"));
        m_ui.display->showStatus(u"▶ PLAY"_s, true);
    }
}

void PlayerGuiWindow::debugNext()
{
    stepRow(1);
}

void PlayerGuiWindow::debugStop()
{
    stopPlayback();
}

void PlayerGuiWindow::debugAutoplay(const QString &path, const QString &device)
{
    if (!device.isEmpty())
        selectDevice(m_ui.device, device);
    const QString absolute = QFileInfo(path).absoluteFilePath();
    if (!isContainerPath(absolute)) {
        startPlayback(appendFile(absolute));
        return;
    }
    expandContainerAsync(absolute, [this](int count) {
        if (count > 0)
            startPlayback(m_ui.playlist->count() - count);
    });
}
