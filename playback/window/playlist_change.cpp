// Changing the playlist: moving, removing, clearing, and taking it back.
#include "ui/window/player_gui_window.h"

#include "playback/playlist_widget.h"

#include <QLabel>
#include <QTimer>

namespace {

constexpr int orderShownMs = 5000;
constexpr int historyShownMs = 5000;

bool haveKeys(const PlaylistWidget &list, const PlaylistChange &removal)
{
    auto expected = removal.entries.begin();
    for (const RowRun &run : removal.runs) {
        for (int row = run.first; row < run.first + run.count; ++row) {
            if (rowKey(list.entryAt(row)) != rowKey(*expected++))
                return false;
        }
    }
    return true;
}

} // namespace

void PlayerGuiWindow::noteDragKey()
{
    m_list.dragKey.clear();
    if (m_ui.playlist->hasRow(m_start.playingRow))
        m_list.dragKey = rowKey(m_ui.playlist->entryAt(m_start.playingRow));
}

void PlayerGuiWindow::orderChanged()
{
    if (const std::optional<RowRuns> order = m_ui.playlist->takeOrderChange())
        recordChange({PlaylistChange::Kind::Reorder, *order, {}, 0});
    else
        forgetHistory();
    // The playing row follows the track and not the position.
    if (const int row = m_list.dragKey.isEmpty() ? -1 : m_ui.playlist->rowOfKey(m_list.dragKey); row >= 0)
        m_start.playingRow = row;
    m_list.dragKey.clear();
    if (const int current = m_ui.playlist->currentRow(); current >= 0)
        showMessageFor(tr("播放顺序已改: 第 %1/%2 项").arg(current + 1).arg(m_ui.playlist->count()),
                       orderShownMs);
    savePlaylist();
    refreshNavButtons();
}

bool PlayerGuiWindow::moveRow(int from, int to)
{
    if (!m_ui.playlist->hasRow(from) || !m_ui.playlist->hasRow(to)) {
        logLine(tr("移动失败: 行号越界 (from=%1 to=%2, 列表共 %3 项)")
                    .arg(from)
                    .arg(to)
                    .arg(m_ui.playlist->count()),
                true);
        return false;
    }
    if (from == to)
        return true;
    noteDragKey();
    m_ui.playlist->moveEntry(from, to);
    orderChanged();
    return true;
}

void PlayerGuiWindow::moveSelectedRows(bool toTop)
{
    const RowRuns moved = m_ui.playlist->selectedRuns();
    const int count = m_ui.playlist->count();
    const RowRuns order = blockMove(moved, toTop ? 0 : count, count);
    if (moved.isEmpty() || isUnchangedOrder(order))
        return;
    noteDragKey();
    m_ui.playlist->arrange(order);
    m_ui.playlist->scrollToItem(m_ui.playlist->item(toTop ? 0 : count - 1));
    orderChanged();
}

void PlayerGuiWindow::removeSelectedRows()
{
    const RowRuns selected = m_ui.playlist->selectedRuns();
    if (!selected.isEmpty()) {
        const bool wasPlaying = m_start.playingRow >= 0;
        const QString playingKey = m_ui.playlist->hasRow(m_start.playingRow)
                                       ? rowKey(m_ui.playlist->entryAt(m_start.playingRow))
                                       : QString();
        PlaylistChange change{PlaylistChange::Kind::Remove, selected, m_ui.playlist->removeEntries(selected),
                              0};
        const int removed = static_cast<int>(change.entries.size());
        recordChange(std::move(change));
        if (!playingKey.isEmpty()) {
            m_start.playingRow = m_ui.playlist->rowOfKey(playingKey);
            refindCurrentRow(); // the same track stands in the list twice
            if (m_start.playingRow < 0 && wasPlaying)
                logLine(tr("正在播放的曲目已从列表移除 (声音继续, 但它不在列表里了)"));
        }
        logLine(tr("已移除 %1 首 (列表共 %2 首)").arg(removed).arg(m_ui.playlist->count()));
        savePlaylist();
        applyLibraryFilter();
    }
    refreshNavButtons();
}

void PlayerGuiWindow::clearPlaylist()
{
    if (const int count = m_ui.playlist->count(); count > 0)
        recordChange(
            {PlaylistChange::Kind::Remove, {{0, count}}, m_ui.playlist->removeEntries({{0, count}}), 0});
    // Tracks that are still being listed belonged to the old list.
    ++m_list.clearings;
    m_list.pendingContainers.clear();
    // A number from the old list would point into the next one.
    m_start.playingRow = -1;
    m_tagSummaries.clear();
    applyLibraryFilter();
    logLine(tr("播放列表已清空"));
    savePlaylist();
    refreshNavButtons();
    refreshNowPlaying();
}

void PlayerGuiWindow::recordChange(PlaylistChange change)
{
    followRows(change);
    for (PlaylistEntry &entry : change.entries)
        entry = slimEntry(std::move(entry));
    m_list.historyDirty = true;
    if (!m_list.history.record(std::move(change)))
        logLine(tr("这次改动太大, 记不下来 ⇒ 不能撤销"), true);
}

void PlayerGuiWindow::followRows(const PlaylistChange &change)
{
    for (int *row : {&m_start.lastStartedRow, &m_start.exclusiveFallbackRow, &m_progress.lastPosRow,
                     &m_preload.row, &m_transport.abLoop.row}) {
        if (*row >= 0)
            *row = rowAfterChange(change, *row);
    }
    // What an emptied list is filled with later follows nothing.
    if (m_ui.playlist->count() == 0)
        m_start.currentRowGone = false;
    if (m_start.currentRow < 0)
        return;
    int row = rowAfterChange(change, m_start.currentRow);
    if (row < 0 && change.kind == PlaylistChange::Kind::Remove) {
        // Behind a row that has gone comes the row that followed it.
        row = survivorBefore(change.runs, m_start.currentRow);
        m_start.currentRowGone = m_ui.playlist->count() > 0;
    }
    m_start.currentRow = row;
}

void PlayerGuiWindow::refindCurrentRow()
{
    if (m_start.playingRow >= 0 && std::exchange(m_start.currentRowGone, false))
        m_start.currentRow = m_start.playingRow;
}

void PlayerGuiWindow::forgetHistory()
{
    m_list.history.clear();
    m_list.historyDirty = true;
}

bool PlayerGuiWindow::applyChange(const PlaylistChange &change, QList<PlaylistEntry> &removed)
{
    PlaylistWidget &list = *m_ui.playlist;
    const int count = list.count();
    switch (change.kind) {
    case PlaylistChange::Kind::Insert: {
        if (!isRowSet(change.runs, count + rowsIn(change.runs)))
            return false;
        list.insertEntries(change.runs, change.entries);
        int entry = 0;
        for (const RowRun &run : change.runs) {
            for (int row = run.first; row < run.first + run.count; ++row) {
                if (change.entries.at(entry++).isContainerTrack())
                    overlayRow(row);
            }
        }
        return true;
    }
    case PlaylistChange::Kind::Remove:
        if (!isRowSet(change.runs, count) || !haveKeys(list, change))
            return false;
        removed = list.removeEntries(change.runs);
        for (PlaylistEntry &entry : removed)
            entry = slimEntry(std::move(entry));
        return true;
    case PlaylistChange::Kind::Reorder:
        break;
    }
    if (!isRowOrder(change.runs, count))
        return false;
    list.arrange(change.runs);
    list.takeOrderChange();
    return true;
}

void PlayerGuiWindow::undoPlaylist()
{
    settleHistory();
    if (!m_list.history.canUndo()) {
        showMessageFor(tr("没有可以撤销的改动"), historyShownMs);
        return;
    }
    const PlaylistChange change = m_list.history.nextUndo();
    const PlaylistChange inverse = inverseOf(change);
    QList<PlaylistEntry> removed;
    if (!applyChange(inverse, removed)) {
        forgetHistory();
        logLine(tr("撤销记录和播放列表对不上 ⇒ 不撤销, 记录已清空"), true);
        savePlaylist();
        return;
    }
    followRows(inverse);
    m_start.playingRow = rowAfterChange(inverse, m_start.playingRow);
    m_list.history.noteUndone(removed);
    changeApplied(undoText(change, m_ui.playlist->count()));
}

void PlayerGuiWindow::redoPlaylist()
{
    settleHistory();
    if (!m_list.history.canRedo()) {
        showMessageFor(tr("没有可以重做的改动"), historyShownMs);
        return;
    }
    const PlaylistChange change = m_list.history.nextRedo();
    QList<PlaylistEntry> removed;
    if (!applyChange(change, removed)) {
        forgetHistory();
        logLine(tr("重做记录和播放列表对不上 ⇒ 不重做, 记录已清空"), true);
        savePlaylist();
        return;
    }
    followRows(change);
    m_start.playingRow = rowAfterChange(change, m_start.playingRow);
    m_list.history.noteRedone(removed);
    changeApplied(redoText(change, m_ui.playlist->count()));
}

void PlayerGuiWindow::changeApplied(const QString &report)
{
    // A track whose row comes back while it still sounds is found again by the key it was started with.
    if (m_start.playingRow < 0 && sessionRuns() && !m_start.lastPlayedKey.isEmpty())
        m_start.playingRow = m_ui.playlist->rowOfKey(m_start.lastPlayedKey);
    refindCurrentRow();
    if (m_start.playingRow >= 0)
        m_ui.playlist->highlight(m_start.playingRow);
    m_list.historyDirty = true;
    logLine(report);
    showMessageFor(report, historyShownMs);
    savePlaylist();
    applyLibraryFilter();
    refreshNavButtons();
}

void PlayerGuiWindow::showMessageFor(const QString &text, int forMs)
{
    showMessage(text);
    QTimer::singleShot(forMs, this, [this, text] {
        if (m_ui.message->text() == text)
            showMessage({});
    });
}
