// The playlist and its history over a restart.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "platform/settings_table.h"
#include "playback/history_store.h"
#include "playback/playlist_widget.h"
#include "playback/saved_rows.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTimer>
#include <utility>

namespace {

constexpr int lastPlayedShownMs = 8000;
constexpr int lastPlayedSaveDelayMs = 500;

/// What came of the saved texts.
struct Restored
{
    QList<PlaylistEntry> rows;
    QStringList wellFormed;        ///< texts that are rows
    RowRuns gone;                  ///< of these, the ones whose file has gone
    QList<PlaylistEntry> goneRows; ///< likewise
    int skipped = 0;
};

Restored restoredRows(const QStringList &saved)
{
    Restored restored;
    restored.rows.reserve(saved.size());
    for (const QString &text : saved) {
        std::optional<PlaylistEntry> entry = parseSavedRow(text);
        if (!entry) {
            ++restored.skipped;
            continue;
        }
        const int number = static_cast<int>(restored.wellFormed.size());
        restored.wellFormed.append(text);
        if (QFileInfo::exists(entry->path)) {
            restored.rows.append(*std::move(entry));
            continue;
        }
        ++restored.skipped;
        appendRow(restored.gone, number);
        restored.goneRows.append(slimEntry(*std::move(entry)));
    }
    return restored;
}

} // namespace

void PlayerGuiWindow::savePlaylist()
{
    const QStringList rows = m_ui.playlist->savedRows();
    UserSettings store;
    writeSetting(store, settings::playlist, rows);
    writeSetting(store, settings::playlistRow, m_ui.playlist->currentRow());
    writeSetting(store, settings::lastPlayed, m_start.lastPlayed);
    writeSetting(store, settings::lastPlayedKey, m_start.lastPlayedKey);
    m_start.lastPlayedDirty = false;
    store.flush();
    if (m_list.historyLoading)
        m_list.historyWaiting = true;
    else if (m_list.historyDirty)
        m_historyStore->save(m_list.history, rows);
    m_list.historyDirty = false;
}

void PlayerGuiWindow::saveLastPlayedSoon()
{
    // Not while the track is on its way, and once for twenty steps in a second.
    if (!std::exchange(m_start.lastPlayedDirty, true))
        QTimer::singleShot(lastPlayedSaveDelayMs, this, &PlayerGuiWindow::saveLastPlayed);
}

void PlayerGuiWindow::saveLastPlayed()
{
    if (!std::exchange(m_start.lastPlayedDirty, false))
        return;
    UserSettings store;
    writeSetting(store, settings::lastPlayed, m_start.lastPlayed);
    writeSetting(store, settings::lastPlayedKey, m_start.lastPlayedKey);
}

void PlayerGuiWindow::restorePlaylist()
{
    const QStringList saved = readUserSetting(settings::playlist);
    const Restored restored = restoredRows(saved);
    loadHistory(restored.wellFormed);
    if (saved.isEmpty())
        return;
    m_ui.playlist->appendEntries(restored.rows);
    // Rows of a disk that is not there today can be taken back when it is.
    if (!restored.goneRows.isEmpty())
        recordChange({PlaylistChange::Kind::Remove, restored.gone, restored.goneRows, 0});
    const int count = m_ui.playlist->count();
    if (count > 0) {
        m_ui.playlist->setCurrentRow(restoredCurrentRow(readUserSetting(settings::playlistRow), count));
        logLine(tr("播放列表已恢复: %1 首").arg(count));
        applyLibraryFilter();
        m_start.lastPlayed = readUserSetting(settings::lastPlayed);
        m_start.lastPlayedKey = readUserSetting(settings::lastPlayedKey);
        const int last = lastPlayedRow();
        const int row = last >= 0 ? last : m_ui.playlist->currentRow();
        if (row >= 0) {
            m_ui.playlist->showRow(row);
            refreshNowPlaying(row);
            m_start.currentRow = row;
            m_start.lastStartedRow = row;
        }
        m_ui.playlist->highlight(last);
        if (last >= 0) {
            logLine(tr("上次播放: 第 %1 首 — %2")
                        .arg(QString::number(last + 1), m_ui.playlist->entryAt(last).text));
            showMessageFor(tr("上次播放: 第 %1 首").arg(last + 1), lastPlayedShownMs);
        }
    }
    if (restored.skipped > 0) {
        m_start.skippedAtRestore = restored.skipped;
        logLine(tr("恢复播放列表时跳过 %1 首 (文件已不存在)").arg(restored.skipped));
    }
    refreshNavButtons();
}

void PlayerGuiWindow::loadHistory(const QStringList &savedRows)
{
    m_list.historyLoading = true;
    m_historyStore->load(savedRows, [this](const HistoryStore::Loaded &loaded) {
        m_list.historyLoading = false;
        if (!loaded.complaint.isEmpty())
            logLine(loaded.complaint, true);
        m_list.history.adoptOlder(loaded.history);
        if (m_list.historyWaiting)
            m_historyStore->save(m_list.history, m_ui.playlist->savedRows());
        m_list.historyWaiting = false;
    });
}

void PlayerGuiWindow::settleHistory()
{
    if (!m_list.historyLoading)
        return;
    m_historyStore->waitForDone();
    QCoreApplication::sendPostedEvents(m_historyStore); // the answer of the thread that has just ended
}
