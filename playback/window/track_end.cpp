// The end of a track and of a session, and what comes after it.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "platform/settings_table.h"
#include "playback/end_verdict.h"
#include "playback/no_audio_report.h"
#include "playback/playlist_widget.h"
#include "playback/preload.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

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
    if (!sessionRuns())
        m_start.startedEnded = true;
    switch (verdict.kind) {
    case SessionEndVerdict::Kind::Ignored:
        // Nothing follows from it; but the controls must not go on showing what no longer runs.
        if (!facts.supersededSession && !facts.sessionClosing && !sessionRuns())
            setPlayingUi(false);
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

void PlayerGuiWindow::retryWithoutExclusive()
{
    m_start.exclusiveFallbackRow = m_start.currentRow;
    m_start.sessionLive = false;
    m_start.sessionClosing = true;
    m_start.ignoreDoneUntilMs = QDateTime::currentMSecsSinceEpoch() + m_options.times.ignoreAfterFallback;
    if (m_link.session) {
        m_link.session->close();
        if (sessionRuns() && m_link.session->stop(m_options.times.fallbackStop) == session_code::timedOut &&
            !m_link.session->waitFinished(m_options.times.fallbackWait)) {
            logLine(tr("上一个播放会话还没收尾（独占正在拆除）—— "
                       "这次不建新会话。请再按一次播放；仍不行就重启播放器。"),
                    true);
            m_start.sessionClosing = false;
            setPlayingUi(false);
            return;
        }
    }
    m_link.session.reset();
    ensureSession();
    QTimer::singleShot(0, this, &PlayerGuiWindow::playCurrent);
}

void PlayerGuiWindow::onDoneLine(const QString &file)
{
    if (m_start.former.holdsEnd()) {
        logLine(tr("上一首恰好在换曲时放完 ⇒ 不算作新选这一首的结束"));
        return;
    }
    if (m_preload.pending) {
        const bool nextHasEndedToo = isOfPreloadedTrack(file, m_start.started.path, m_preload.path);
        logLine(tr("播放完成"));
        autoAdvanceTaken();
        if (!nextHasEndedToo)
            return;
    }
    closeFinishedTrack();
    if (m_start.userStopped || m_start.sessionClosing) {
        commitPlayStat();
        return;
    }
    logLine(tr("播放完成"));
    trackFinished();
}

void PlayerGuiWindow::onFailedLine(const QString &line)
{
    // Where the next track is handed over already, that one follows; and of another one nothing is to be
    // learnt.
    if (m_preload.pending || !namesRow(line, m_start.started))
        return;
    // As when a session fails: the list does not go on, and what shows that something plays must not go on
    // either.
    m_start.startedEnded = true;
    if (m_link.noAudioTimer)
        m_link.noAudioTimer->stop();
    setPlayingUi(false);
    showMessage(line);
}

void PlayerGuiWindow::closeFinishedTrack()
{
    m_start.startedEnded = true;
    forgetResumePosition(m_start.lastPlayed);
    // Whoever plays it again wants it from its beginning and not its last seconds.
    m_progress.lastPosSec = 0.;
}

void PlayerGuiWindow::trackFinished()
{
    closeFinishedTrack();
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
    const QString key = rowKey(m_start.started, number);
    if (key == m_start.lastPlayedKey)
        return;
    m_start.lastPlayedKey = key;
    m_start.lastPlayed = m_start.started.path;
    m_start.lastPlayedDirty = true;
    if (const int row = m_ui.playlist->rowOfKey(key); row >= 0)
        showMessage(tr("正在播放… %1/%2").arg(row + 1).arg(m_ui.playlist->count()));
    saveLastPlayed();
}

void PlayerGuiWindow::commitPlayStat() {}
