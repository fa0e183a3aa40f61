// The position, and the next track that is handed over before this one ends.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "platform/settings_table.h"
#include "playback/playlist_widget.h"
#include "playback/preload.h"
#include "playback/track_start.h"
#include "ui/display_panel.h"
#include "ui/progress_row.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int metricsDelayMs = 1500;

} // namespace

void PlayerGuiWindow::resetTrackState(double startSec)
{
    m_progress.resetForTrack(startSec);
    m_lines.resetForTrack();
    beginTrackFacts(false);
    // Whoever waits for the track's announcement must not take the last one's for it.
    m_lines.sourceInfo.reset();
    m_preload = {};
    m_start.paused = false;
    discardAbLoopOfOtherTrack();
    showPlace(0);
    m_ui.progress->showText(clockText(0.));
}

void PlayerGuiWindow::onProgress(const ProgressLine &progress)
{
    if (m_start.former.holdsPosition(progress.positionSec, progress.totalSec))
        return;
    const AbLoopState &loop = m_transport.abLoop;
    if (m_preload.pending && m_preload.row >= 0 &&
        preloadTaken({m_preload.positionSec, m_preload.totalSec, m_progress.lastPosSec, progress.positionSec,
                      progress.totalSec, loop.isSound() ? loop.pointA : -1.}))
        autoAdvanceTaken();
    m_progress.lastPosSec = progress.positionSec;
    updateProgress(progress.percent, progress.positionSec, progress.totalSec);
    checkPreload();
}

void PlayerGuiWindow::updateProgress(double percent, double positionSec, double totalSec)
{
    // Of what was started: by now another row may stand in its place.
    const PlaylistEntry &entry = m_start.started;
    ProgressFacts facts;
    facts.percent = percent;
    facts.positionSec = positionSec;
    facts.totalSec = totalSec;
    facts.row = startedRow();
    facts.itemDurationSec = std::max(0., entry.endSec - entry.startSec);
    facts.speedRatio = m_choices.speedRatio;
    facts.resumeTracked = tracksResume(entry);

    const ProgressDisplay display = ::updateProgress(m_progress, facts);
    if (display.startMetricsTimer)
        QTimer::singleShot(metricsDelayMs, this, &PlayerGuiWindow::reportStartupMetrics);
    showPlace(display.barValue);
    if (display.saveResumePosition)
        saveResumePosition();
    if (display.position) {
        m_ui.progress->showText(display.position->text, display.position->toolTip);
        m_ui.display->showTime(display.position->text, display.position->toolTip);
    }
    if (!display.logText.isEmpty())
        logLine(display.logText);
}

void PlayerGuiWindow::saveResumePosition()
{
    m_start.resumeFile = QFileInfo(m_start.started.path).absoluteFilePath();
    m_start.resumePosSec = m_progress.lastPosSec;
    m_start.resumeEnabled = true;
    UserSettings store;
    writeSetting(store, settings::resumePath, m_start.resumeFile);
    writeSetting(store, settings::resumeSec, m_start.resumePosSec);
}

void PlayerGuiWindow::saveResumePositionNow(double leastSec)
{
    // A track that has told no position yet has none to remember.
    if (m_progress.positionTold && m_progress.lastPosSec > leastSec && tracksResume(m_start.started))
        saveResumePosition();
}

void PlayerGuiWindow::forgetResumePosition(const QString &path)
{
    if (path.isEmpty())
        return;
    const QString absolute = QFileInfo(path).absoluteFilePath();
    if (m_start.resumeFile == absolute) {
        m_start.resumeFile.clear();
        m_start.resumePosSec = 0.;
        m_start.resumeEnabled = false;
    }
    UserSettings store;
    if (readSetting(store, settings::resumePath) != absolute)
        return;
    writeSetting(store, settings::resumePath, QString());
    writeSetting(store, settings::resumeSec, 0.);
}

void PlayerGuiWindow::checkPreload()
{
    PreloadFacts facts;
    facts.positionSec = m_progress.lastPosSec;
    facts.totalSec = m_progress.lastTotalSec;
    facts.crossfadeSec = m_choices.crossfadeSec;
    facts.gapless = m_choices.gapless;
    facts.pending = m_preload.pending;
    facts.diagnosisDone = m_preload.diagnosisDone;
    facts.refusalTold = m_preload.refusalTold;
    facts.currentRow = m_start.currentRowGone ? -1 : m_start.currentRow;
    if (!preloadNeedsNextRow(facts))
        return;
    facts.nextRow = peekNextRow();
    const PlaylistEntry next = m_ui.playlist->entryAt(facts.nextRow);
    facts.playing = m_start.started;
    facts.next = next;
    const PreloadPlan plan = planPreload(facts);
    if (plan.diagnose) {
        m_preload.diagnosisDone = true;
        logLine(preloadDiagnosis(plan, facts));
    }
    if (plan.refuse) {
        m_preload.refusalTold = true;
        logLine(preloadRefusal(next.text));
    }
    if (!plan.load || !canBeNamed(next))
        return;
    m_preload.pending = true;
    m_preload.row = facts.nextRow;
    m_preload.path = next.path;
    m_preload.key = rowKey(next);
    m_preload.positionSec = facts.positionSec;
    m_preload.totalSec = facts.totalSec;
    logLine(preloadAnnouncement(plan, facts.crossfadeSec, QFileInfo(next.path).fileName()));
    sendCmd(u"load "_s + next.path);
}

void PlayerGuiWindow::autoAdvanceTaken()
{
    const PreloadState taken = std::exchange(m_preload, {});
    const int count = m_ui.playlist->count();
    if (count == 0 || taken.row < 0 || taken.row >= count || m_start.userStopped || m_start.sessionClosing)
        return;
    commitPlayStat();
    closeFinishedTrack();
    // A row number alone proves nothing: another track may have moved into its place. Nor does the path: the
    // tracks of a sheet share it.
    if (!advanceRow() || m_start.currentRow != taken.row ||
        rowKey(m_ui.playlist->entryAt(m_start.currentRow)) != taken.key) {
        const int byKey = m_ui.playlist->rowOfKey(taken.key);
        const int byFile = byKey >= 0 ? byKey : m_ui.playlist->rowOfPath(taken.path);
        m_start.currentRow = byFile >= 0 ? byFile : taken.row;
        m_start.currentRowGone = false;
        logLine(
            tr("自动换曲: 曲尾时列表/顺序变了，按文件对回第 %1/%2 首").arg(m_start.currentRow + 1).arg(count),
            true);
    }
    m_start.lastStartedRow = m_start.currentRow;
    m_progress.resetForTrack();
    beginTrackFacts(true);
    discardAbLoopOfOtherTrack();
    const PlaylistEntry entry = m_ui.playlist->entryAt(m_start.currentRow);
    noteStarted(entry);
    showTrackOf(m_start.currentRow);
    refreshNavButtons();
    logLine(tr("自动换曲（无缝/交叉淡化）: 第 %1/%2 首: %3")
                .arg(m_start.currentRow + 1)
                .arg(count)
                .arg(entry.text));
}
