// The position, and the next track that is handed over before this one ends.
#include "ui/window/player_gui_window.h"

#include "output/engine_controls.h"
#include "playback/playlist_widget.h"
#include "playback/preload.h"
#include "playback/row_order.h"
#include "playback/time_text.h"
#include "ui/display_panel.h"
#include "ui/progress_row.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int metricsDelayMs = 1500;
constexpr int percentPerStep = 10;
constexpr double speedTolerance = 1e-6;

} // namespace

void PlayerGuiWindow::resetTrackState()
{
    const bool metricsLogged = m_progress.metricsLogged;
    const double lastPosSec = m_progress.lastPosSec;
    const int lastPosRow = m_progress.lastPosRow;
    m_progress = {};
    m_progress.metricsLogged = metricsLogged;
    m_progress.lastPosSec = lastPosSec;
    m_progress.lastPosRow = lastPosRow;
    m_preload = {};
    m_start.paused = false;
    m_output.sourceInfo.reset();
    m_output.lastScanStep = -1;
    m_ui.progress->showPercent(0.);
    m_ui.progress->showText(minutesText(0.));
}

void PlayerGuiWindow::onProgress(double percent, double positionSec, double totalSec)
{
    if (!std::exchange(m_progress.firstPgSeen, true)) {
        const QString total = totalSec > 0. ? QString::number(totalSec, 'f', 1) : tr("未知");
        logLine(tr("收到进度 (PG): 已播 %1 s / 共 %2 s").arg(positionSec, 0, 'f', 1).arg(total));
    }
    if (m_preload.pending && m_preload.row >= 0 &&
        preloadTaken({m_preload.positionSec, m_preload.totalSec, positionSec, totalSec}))
        autoAdvanceTaken();
    updateProgress(percent, positionSec, totalSec);
    checkPreload();
}

void PlayerGuiWindow::updateProgress(double percent, double positionSec, double totalSec)
{
    const double shownPercent = std::clamp(percent, 0., 100.);
    if (positionSec > 0. || shownPercent > 0.)
        m_progress.audioHasStarted = true;
    if (!std::exchange(m_progress.metricsLogged, true))
        QTimer::singleShot(metricsDelayMs, this, &PlayerGuiWindow::reportStartupMetrics);
    m_progress.percent = shownPercent;
    m_ui.progress->showPercent(shownPercent);
    if (positionSec >= 0.) {
        m_progress.lastPosSec = positionSec;
        m_progress.lastPosRow = m_start.currentRow;
        m_progress.lastTotalSec = totalSec;
        const double speed = m_ui.engine->speedRatio->value();
        QString tip;
        if (std::abs(speed - 1.) > speedTolerance && totalSec > 0.)
            tip = tr("位置和总长按源的时间线；以 %1 倍速播完约需 %2")
                      .arg(speedText(speed), minutesText(totalSec / speed));
        const QString text = positionText(positionSec, totalSec, speed);
        m_ui.progress->showText(text, tip);
        m_ui.display->showTime(text, tip);
    }
    const int step = static_cast<int>(shownPercent) / percentPerStep;
    if (step > m_progress.lastLoggedStep) {
        m_progress.lastLoggedStep = step;
        logLine(tr("进度 %1%").arg(step * percentPerStep));
    }
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
    m_progress.percent = 0.;
    m_progress.lastLoggedStep = -1;
    const PlaylistEntry entry = m_ui.playlist->entryAt(m_start.currentRow);
    setLastPlayed(entry);
    showTrackOf(m_start.currentRow);
    refreshNavButtons();
    logLine(tr("自动换曲（无缝/交叉淡化）: 第 %1/%2 首: %3")
                .arg(m_start.currentRow + 1)
                .arg(count)
                .arg(entry.text));
}
