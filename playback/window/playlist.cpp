// The playlist's rows.
#include "ui/window/player_gui_window.h"

#include "playback/playlist_widget.h"
#include "playback/row_order.h"
#include "tags/disc_number.h"
#include "ui/display_panel.h"
#include "ui/dock_bar.h"
#include "ui/library_panel.h"

#include <QFileInfo>
#include <QLabel>

using namespace Qt::StringLiterals;

int PlayerGuiWindow::lastPlayedRow() const
{
    if (!m_start.lastPlayedKey.isEmpty())
        return m_ui.playlist->rowOfKey(m_start.lastPlayedKey);
    return m_start.lastPlayed.isEmpty() ? -1 : m_ui.playlist->rowOfPath(m_start.lastPlayed);
}

void PlayerGuiWindow::noteStarted(const PlaylistEntry &entry)
{
    m_start.started = entry;
    m_start.startedEnded = false;
    m_start.lastPlayed = entry.path;
    m_start.lastPlayedKey = rowKey(entry);
    saveLastPlayedSoon();
}

int PlayerGuiWindow::startedRow() const
{
    const QString key = rowKey(m_start.started);
    // Of several rows with one key it is the one that was chosen.
    if (m_ui.playlist->hasRow(m_start.currentRow) &&
        rowKey(m_ui.playlist->entryAt(m_start.currentRow)) == key)
        return m_start.currentRow;
    return m_ui.playlist->rowOfKey(key);
}

void PlayerGuiWindow::showTrackOf(int row)
{
    m_start.playingRow = row;
    m_ui.playlist->highlight(row);
    m_ui.playlist->showRow(row);
    refreshNowPlaying(row);
    m_ui.library->showCounts(row, m_ui.playlist->count(), m_ui.playlist->count());
    showMessage(tr("正在播放… %1/%2").arg(row + 1).arg(m_ui.playlist->count()));
    refreshCover();
}

void PlayerGuiWindow::refreshNowPlaying(int row)
{
    NowPlayingFacts facts;
    const int shown = row >= 0 ? row : baseRow();
    if (m_ui.playlist->hasRow(shown)) {
        facts.row = shown;
        facts.entry = m_ui.playlist->entryAt(shown);
        // A station has no file whose tags or folder could be read; and choosing a row touches none.
        if (row >= 0 && !facts.entry.isStream())
            facts.summary = m_tagSummaries.tagSummaryFor(facts.entry.path);
        else if (const TagSummary *known = m_tagSummaries.kept(facts.entry.path))
            facts.summary = *known;
        facts.disc = discNumberFromPath(QFileInfo(facts.entry.path).absoluteFilePath().toStdString());
    }
    showNowPlaying(nowPlayingLabels(facts));
}

void PlayerGuiWindow::showNowPlaying(const NowPlayingLabels &labels)
{
    const QString meta = labels.disc.isEmpty() ? labels.track : labels.track + u" · "_s + labels.disc;
    m_ui.display->showTrack({meta, labels.format, labels.title, labels.artistLine, labels.albumLine});
    m_ui.dock->showTrack(labels.title, labels.artistLine);
}

int PlayerGuiWindow::baseRow() const
{
    if (sessionRuns())
        return m_start.playingRow;
    const int selected = m_ui.playlist->currentRow();
    return selected >= 0 ? selected : m_start.playingRow;
}

void PlayerGuiWindow::refreshNavButtons()
{
    const int base = baseRow();
    const int count = m_ui.playlist->count();
    m_ui.dock->previous->setEnabled(count > 0 && base > 0);
    m_ui.dock->next->setEnabled(base + 1 < count);
    m_ui.dock->start->setEnabled(count > 0);
    m_ui.library->showCounts(m_start.playingRow, count, count);
}

void PlayerGuiWindow::stepRow(int delta)
{
    if (m_ui.playlist->count() == 0) {
        logLine(tr("播放列表是空的"), true);
        return;
    }
    const std::optional<int> row = steppedRow(baseRow(), delta, m_ui.playlist->count());
    if (!row) {
        logLine(delta < 0 ? tr("已经是第一首") : tr("已经是最后一首"), true);
        return;
    }
    jumpToRow(*row);
    m_ui.playlist->showRow(*row);
    showMessage(tr("第 %1/%2 首").arg(*row + 1).arg(m_ui.playlist->count()));
}

void PlayerGuiWindow::jumpToRow(int row)
{
    if (m_ui.playlist->hasRow(row))
        startPlayback(row);
}
