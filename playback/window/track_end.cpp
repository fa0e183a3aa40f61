// The end of a track and of a session, and what comes after it.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "platform/settings_table.h"
#include "playback/end_verdict.h"
#include "playback/no_audio_report.h"
#include "playback/playlist_widget.h"
#include "playback/row_order.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 ignoreAfterFallbackMs = 2000;
constexpr int fallbackStopMs = 1500;
constexpr int fallbackWaitMs = 1000;

} // namespace

void PlayerGuiWindow::onEngineDone(int exitCode, bool crashed, int startIndex)
{
    checkControlClosure();
    SessionEndFacts facts;
    facts.exitCode = exitCode;
    facts.crashed = crashed;
    facts.supersededSession = startIndex != m_link.startCount;
    facts.nowMs = QDateTime::currentMSecsSinceEpoch();
    facts.ignoreDoneUntilMs = m_start.ignoreDoneUntilMs;
    facts.inProcess = m_link.session && m_link.session->isInProcess();
    facts.outputPathExclusive = m_choices.outputPath == "exclusive"_L1;
    facts.audioHasStarted = m_progress.audioHasStarted;
    facts.currentRow = m_start.currentRow;
    facts.exclusiveFallbackRow = m_start.exclusiveFallbackRow;
    facts.userStopped = m_start.userStopped;
    facts.restartPending = m_start.restartPending;
    facts.sessionClosing = m_start.sessionClosing;
    facts.progressPercent = m_progress.progressPercent;
    facts.lastEngineLine = m_lines.lastEngineLine;

    const SessionEndVerdict verdict = sessionEndVerdict(facts);
    if (verdict.ignoreTimePassed)
        m_start.ignoreDoneUntilMs = 0;
    if (verdict.kind != SessionEndVerdict::Kind::Ignored) {
        clearDelayedTelemetry();
        if (m_link.noAudioTimer)
            m_link.noAudioTimer->stop();
    }
    for (const SessionEndVerdict::Line &line : verdict.lines)
        logLine(line.text, line.isError);
    switch (verdict.kind) {
    case SessionEndVerdict::Kind::Ignored:
        return;
    case SessionEndVerdict::Kind::ExclusiveFallback:
        retryWithoutExclusive();
        return;
    case SessionEndVerdict::Kind::Closed:
        m_start.sessionClosing = false;
        setPlayingUi(false);
        return;
    case SessionEndVerdict::Kind::Stopped:
        setPlayingUi(false);
        commitPlayStat();
        return;
    case SessionEndVerdict::Kind::Failed:
        setPlayingUi(false);
        return;
    case SessionEndVerdict::Kind::Finished:
        trackFinished();
        return;
    case SessionEndVerdict::Kind::Restart:
        m_start.restartPending = false;
        playCurrent();
        return;
    }
}

bool PlayerGuiWindow::retryWithoutExclusive()
{
    m_start.exclusiveFallbackRow = m_start.currentRow;
    m_start.sessionLive = false;
    m_start.sessionClosing = true;
    m_start.ignoreDoneUntilMs = QDateTime::currentMSecsSinceEpoch() + ignoreAfterFallbackMs;
    if (m_link.session) {
        m_link.session->close();
        if (sessionRuns() && m_link.session->stop(fallbackStopMs) == session_code::timedOut &&
            !m_link.session->waitFinished(fallbackWaitMs)) {
            logLine(tr("上一个播放会话还没收尾（独占正在拆除）—— "
                       "这次不建新会话。请再按一次播放；仍不行就重启播放器。"),
                    true);
            m_start.sessionClosing = false;
            setPlayingUi(false);
            return false;
        }
    }
    m_link.session.reset();
    ensureSession();
    QTimer::singleShot(0, this, &PlayerGuiWindow::playCurrent);
    return true;
}

void PlayerGuiWindow::onDoneLine()
{
    m_start.resumeEnabled = m_start.resumeEnabled && m_start.resumeFile != m_start.lastPlayed;
    if (m_preload.pending) {
        logLine(tr("播放完成"));
        autoAdvanceTaken();
        return;
    }
    forgetResumePosition(m_start.lastPlayed);
    if (m_start.userStopped || m_start.sessionClosing) {
        commitPlayStat();
        return;
    }
    logLine(tr("播放完成"));
    trackFinished();
}

void PlayerGuiWindow::trackFinished()
{
    commitPlayStat();
    if (advanceRow()) {
        playCurrent();
        return;
    }
    if (m_link.noAudioTimer)
        m_link.noAudioTimer->stop();
    setPlayingUi(false);
    logLine(tr("播放列表结束（%1）").arg(orderText()));
}

bool PlayerGuiWindow::advanceRow()
{
    const std::optional<int> next = rowAfter(m_start.currentRow, m_ui.playlist->count());
    if (next)
        m_start.currentRow = *next;
    return next.has_value();
}

int PlayerGuiWindow::peekNextRow() const
{
    return rowAfter(m_start.currentRow, m_ui.playlist->count()).value_or(-1);
}

QString PlayerGuiWindow::orderText() const
{
    return tr("顺序") + tr(" · 不循环");
}

void PlayerGuiWindow::noAudioWatchdog()
{
    if (!sessionRuns() || m_start.paused)
        return;
    const NoAudioReport report = noAudioReport(m_lines.lastEngineLine);
    logLine(report.text, report.isError);
    logLine(report.checkList, true);
}

void PlayerGuiWindow::segmentChanged(int number)
{
    if (number < 1 || !m_ui.playlist->hasRow(m_start.currentRow))
        return;
    const PlaylistEntry entry = m_ui.playlist->entryAt(m_start.currentRow);
    const QString key = rowKey(entry, number);
    if (key == m_start.lastPlayedKey)
        return;
    m_start.lastPlayedKey = key;
    m_start.lastPlayed = entry.path;
    if (const int row = m_ui.playlist->rowOfKey(key); row >= 0)
        showMessage(tr("正在播放… %1/%2").arg(row + 1).arg(m_ui.playlist->count()));
    writeUserSetting(settings::lastPlayed, m_start.lastPlayed);
    writeUserSetting(settings::lastPlayedKey, m_start.lastPlayedKey);
}

void PlayerGuiWindow::commitPlayStat() {}
