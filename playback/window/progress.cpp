// The position, and the next track that is handed over before this one ends.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "output/engine_controls.h"
#include "platform/settings_table.h"
#include "playback/playlist_widget.h"
#include "playback/preload.h"
#include "playback/row_order.h"
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
    m_ui.progress->showBar(0);
    m_ui.progress->showText(clockText(0.));
}

void PlayerGuiWindow::onProgress(const ProgressLine &progress)
{
    if (m_preload.pending && m_preload.row >= 0 &&
        preloadTaken({m_preload.positionSec, m_preload.totalSec, progress.positionSec, progress.totalSec}))
        autoAdvanceTaken();
    m_progress.lastPosSec = progress.positionSec;
    updateProgress(progress.percent, progress.positionSec, progress.totalSec);
    checkPreload();
}

void PlayerGuiWindow::updateProgress(double percent, double positionSec, double totalSec)
{
    const PlaylistEntry entry = m_ui.playlist->entryAt(m_start.currentRow);
    ProgressFacts facts;
    facts.percent = percent;
    facts.positionSec = positionSec;
    facts.totalSec = totalSec;
    facts.row = m_start.currentRow;
    facts.itemDurationSec = std::max(0., entry.endSec - entry.startSec);
    facts.speedRatio = m_ui.engine->speedRatio->value();
    facts.resumeTracked = !entry.path.isEmpty() && !entry.isContainerTrack();

    const ProgressDisplay display = ::updateProgress(m_progress, facts);
    if (display.startMetricsTimer)
        QTimer::singleShot(metricsDelayMs, this, &PlayerGuiWindow::reportStartupMetrics);
    m_ui.progress->showBar(display.barValue);
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
    const QString path = m_ui.playlist->entryAt(m_start.currentRow).path;
    SettingsStore file;
    QSettingsAccess store(file);
    writeSetting(store, settings::resumePath, QFileInfo(path).absoluteFilePath());
    writeSetting(store, settings::resumeSec, m_progress.lastPosSec);
}

void PlayerGuiWindow::forgetResumePosition(const QString &path)
{
    SettingsStore file;
    QSettingsAccess store(file);
    if (path.isEmpty() || readSetting(store, settings::resumePath) != QFileInfo(path).absoluteFilePath())
        return;
    writeSetting(store, settings::resumePath, QString());
    writeSetting(store, settings::resumeSec, 0.);
}

void PlayerGuiWindow::checkPreload()
{
    PreloadFacts facts;
    facts.positionSec = m_progress.lastPosSec;
    facts.totalSec = m_progress.lastTotalSec;
    facts.crossfadeSec = m_ui.engine->crossfadeSec->value();
    facts.gapless = m_ui.engine->gapless->isChecked();
    facts.pending = m_preload.pending;
    facts.diagnosisDone = m_preload.diagnosisDone;
    facts.currentRow = m_start.currentRow;
    if (!preloadNeedsNextRow(facts))
        return;
    facts.nextRow = peekNextRow();
    const PlaylistEntry next = m_ui.playlist->entryAt(facts.nextRow);
    facts.nextHasPath = !next.path.isEmpty();
    const PreloadPlan plan = planPreload(facts);
    if (plan.diagnose) {
        m_preload.diagnosisDone = true;
        logLine(preloadDiagnosis(plan, facts));
    }
    if (!plan.load)
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
    forgetResumePosition(m_start.lastPlayed);
    // A row number alone proves nothing: another file may have moved into its place.
    if (!advanceRow() || m_start.currentRow != taken.row ||
        m_ui.playlist->entryAt(m_start.currentRow).path != taken.path) {
        const int byFile = m_ui.playlist->rowOfPath(taken.path);
        m_start.currentRow = byFile >= 0 ? byFile : taken.row;
        logLine(
            tr("自动换曲: 曲尾时列表/顺序变了，按文件对回第 %1/%2 首").arg(m_start.currentRow + 1).arg(count),
            true);
    }
    m_start.lastStartedRow = m_start.currentRow;
    m_progress.resetForTrack();
    beginTrackFacts(true);
    const PlaylistEntry entry = m_ui.playlist->entryAt(m_start.currentRow);
    setLastPlayed(entry);
    showTrackOf(m_start.currentRow);
    refreshNavButtons();
    logLine(tr("自动换曲（无缝/交叉淡化）: 第 %1/%2 首: %3")
                .arg(m_start.currentRow + 1)
                .arg(count)
                .arg(entry.text));
}
