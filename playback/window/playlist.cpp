// The playlist's rows.
#include "ui/window/player_gui_window.h"

#include "playback/playlist_widget.h"
#include "playback/row_order.h"
#include "ui/display_panel.h"
#include "ui/dock_bar.h"
#include "ui/progress_row.h"

#include <QFileInfo>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype formatTagLength = 5;

} // namespace

int PlayerGuiWindow::lastPlayedRow() const
{
    if (!m_start.lastPlayedKey.isEmpty())
        return m_ui.playlist->rowOfKey(m_start.lastPlayedKey);
    return m_start.lastPlayed.isEmpty() ? -1 : m_ui.playlist->rowOfPath(m_start.lastPlayed);
}

void PlayerGuiWindow::setLastPlayed(const PlaylistEntry &entry)
{
    m_start.lastPlayed = entry.path;
    m_start.lastPlayedKey = rowKey(entry);
}

void PlayerGuiWindow::showTrackOf(int row)
{
    m_start.playingRow = row;
    m_ui.playlist->highlight(row);
    m_ui.playlist->showRow(row);
    const PlaylistEntry entry = m_ui.playlist->entryAt(row);
    const QFileInfo file(entry.path);
    const QString folder = file.dir().dirName();
    m_ui.display->showTrack(row, entry.text, folder, file.suffix().toUpper().left(formatTagLength));
    m_ui.dock->showTrack(entry.text, folder);
    m_ui.playlistCount->setText(u"%1 / %2"_s.arg(row + 1).arg(m_ui.playlist->count()));
    showMessage(tr("正在播放… %1/%2").arg(row + 1).arg(m_ui.playlist->count()));
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
    m_ui.playlistCount->setText(m_start.playingRow < 0 ? u"-- / %1"_s.arg(count)
                                                       : u"%1 / %2"_s.arg(m_start.playingRow + 1).arg(count));
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
