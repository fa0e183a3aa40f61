// What shapes playing: the order, the A/B loop, the speed.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "platform/settings_table.h"
#include "playback/play_speed.h"
#include "playback/playlist_widget.h"

using namespace Qt::StringLiterals;

bool PlayerGuiWindow::advanceRow()
{
    const std::optional<int> next =
        ::advanceRow(m_transport.order, m_start.currentRow, m_ui.playlist->count(), m_start.currentRowGone);
    if (!next)
        return false;
    m_start.currentRow = *next;
    m_start.currentRowGone = false;
    return true;
}

int PlayerGuiWindow::peekNextRow() const
{
    return ::peekNextRow(m_transport.order, m_start.currentRow, m_ui.playlist->count(),
                         m_start.currentRowGone);
}

QString PlayerGuiWindow::orderText() const
{
    return ::orderText(m_transport.order.order, m_transport.order.repeat);
}

void PlayerGuiWindow::setOrderAxis(int axis)
{
    m_transport.order.order = orderAxisOf(axis);
    writeUserSetting(settings::orderAxis, static_cast<int>(m_transport.order.order));
    tellPlayOrder();
}

void PlayerGuiWindow::setRepeatAxis(int axis)
{
    // A choice by hand outlasts a loop: nothing older comes back with the loop's end.
    m_transport.abLoop.repeatForced = false;
    m_transport.order.repeat = repeatAxisOf(axis);
    writeUserSetting(settings::repeatAxis, static_cast<int>(m_transport.order.repeat));
    tellPlayOrder();
}

void PlayerGuiWindow::cycleOrder()
{
    setOrderAxis(m_transport.order.order == OrderAxis::Sequential ? 1 : 0);
}

void PlayerGuiWindow::cycleRepeat()
{
    constexpr int axes = 3;
    setRepeatAxis((static_cast<int>(m_transport.order.repeat) + 1) % axes);
}

void PlayerGuiWindow::tellPlayOrder()
{
    logLine(tr("播放顺序: %1").arg(orderText()));
    showPlayOrder();
}

void PlayerGuiWindow::showPlayOrder()
{
    Q_EMIT playOrderShown(static_cast<int>(m_transport.order.order),
                          static_cast<int>(m_transport.order.repeat), orderText());
}

RepeatAxis PlayerGuiWindow::chosenRepeat() const
{
    return m_transport.abLoop.repeatForced ? m_transport.abLoop.savedRepeat : m_transport.order.repeat;
}

void PlayerGuiWindow::markA()
{
    markAbPoint(&AbLoopState::pointA, u"A"_s);
}

void PlayerGuiWindow::markB()
{
    markAbPoint(&AbLoopState::pointB, u"B"_s);
}

void PlayerGuiWindow::markAbPoint(double AbLoopState::*point, const QString &name)
{
    if (!m_ui.playlist->hasRow(m_start.currentRow)) {
        logLine(tr("A/B 循环: 还没有播放任何曲目，无处可标"), true);
        return;
    }
    discardAbLoopOfOtherTrack();
    AbLoopState &loop = m_transport.abLoop;
    // A position that another row has left behind is none of this track's.
    loop.*point = m_progress.lastPosRow == m_start.currentRow ? m_progress.lastPosSec : 0.;
    loop.row = m_start.currentRow;
    logLine(abPointText(name, loop.*point));
    if (loop.isComplete())
        setAbLoop();
    showAbLoop();
}

void PlayerGuiWindow::setAbLoop()
{
    AbLoopState &loop = m_transport.abLoop;
    if (!loop.isComplete())
        return;
    if (!loop.isSound()) {
        logLine(abRefusedText(loop), true);
        return;
    }
    // The forced axis is not stored: what the listener chose is there again after a restart.
    if (!loop.repeatForced) {
        loop.savedRepeat = m_transport.order.repeat;
        loop.repeatForced = true;
        m_transport.order.repeat = RepeatAxis::Track;
        showPlayOrder();
    }
    if (!sessionRuns()) {
        logLine(abMarkedText());
        return;
    }
    sendCmd(abLoopLine(loop));
    logLine(abStartedText(loop));
}

void PlayerGuiWindow::clearAbLoop()
{
    if (sessionRuns())
        sendCmd(u"ab off"_s);
    const bool forced = m_transport.abLoop.repeatForced;
    dropAbLoop();
    logLine(abClearedText(forced ? orderText() : QString()));
}

void PlayerGuiWindow::dropAbLoop()
{
    const AbLoopState loop = std::exchange(m_transport.abLoop, {});
    if (loop.repeatForced) {
        m_transport.order.repeat = loop.savedRepeat;
        showPlayOrder();
    }
    showAbLoop();
}

void PlayerGuiWindow::discardAbLoopOfOtherTrack()
{
    if (!m_transport.abLoop.isMarked() || m_transport.abLoop.row == m_start.currentRow)
        return;
    if (sessionRuns())
        sendCmd(u"ab off"_s);
    dropAbLoop();
    logLine(abDiscardedText());
}

void PlayerGuiWindow::applyAbLoop()
{
    const AbLoopState &loop = m_transport.abLoop;
    if (loop.row != m_start.currentRow || !loop.isSound() || !sessionRuns())
        return;
    sendCmd(abLoopLine(loop));
    logLine(abStartedText(loop));
    showAbLoop();
}

void PlayerGuiWindow::showAbLoop()
{
    Q_EMIT abLoopShown(m_transport.abLoop.pointA, m_transport.abLoop.pointB);
}

void PlayerGuiWindow::setSpeed(double ratio, bool quiet)
{
    const double speed = clampedSpeed(ratio);
    m_choices.speedRatio = speed;
    showChoices();
    writeUserSetting(settings::speedRatio, speed);
    const bool told = sessionRuns() && sendCmd(speedLine(speed));
    if (!quiet)
        logLine(speedText(speed, told));
    Q_EMIT speedShown(speed);
}

void PlayerGuiWindow::showPlayModes()
{
    showPlayOrder();
    showAbLoop();
    Q_EMIT speedShown(m_choices.speedRatio);
    showSleepTimer();
}
