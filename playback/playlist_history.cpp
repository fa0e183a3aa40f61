#include "playback/playlist_history.h"

#include <utility>

namespace {

/// Whether the change goes on where the last one ended, in the same operation.
bool continues(const PlaylistChange &last, const PlaylistChange &next)
{
    if (next.group == 0 || last.group != next.group || last.kind != PlaylistChange::Kind::Insert ||
        next.kind != PlaylistChange::Kind::Insert)
        return false;
    return next.runs.size() == 1 &&
           last.runs.last().first + last.runs.last().count == next.runs.first().first;
}

void replaceEntries(PlaylistChange &change, const QList<PlaylistEntry> &entries)
{
    if (entries.size() == change.entries.size())
        change.entries = entries;
}

} // namespace

bool PlaylistHistory::record(PlaylistChange change)
{
    m_redo.clear();
    if (costOf(change) > mostBytesOfNewest) {
        m_undo.clear();
        return false;
    }
    if (!m_undo.isEmpty() && continues(m_undo.last(), change)) {
        m_undo.last().runs.last().count += change.runs.first().count;
        m_undo.last().entries += change.entries;
    } else {
        m_undo.append(std::move(change));
    }
    keepBounds();
    return true;
}

void PlaylistHistory::noteUndone(const QList<PlaylistEntry> &entries)
{
    PlaylistChange change = m_undo.takeLast();
    replaceEntries(change, entries);
    change.group = 0;
    m_redo.append(std::move(change));
}

void PlaylistHistory::noteRedone(const QList<PlaylistEntry> &entries)
{
    PlaylistChange change = m_redo.takeLast();
    replaceEntries(change, entries);
    m_undo.append(std::move(change));
}

void PlaylistHistory::clear()
{
    m_undo.clear();
    m_redo.clear();
}

void PlaylistHistory::adoptOlder(const PlaylistHistory &older)
{
    if (m_undo.isEmpty() && m_redo.isEmpty())
        m_redo = older.m_redo;
    m_undo = older.m_undo + m_undo;
    keepBounds();
}

PlaylistHistory PlaylistHistory::fromChanges(QList<PlaylistChange> undo, QList<PlaylistChange> redo)
{
    PlaylistHistory history;
    history.m_undo = std::move(undo);
    history.m_redo = std::move(redo);
    history.keepBounds();
    return history;
}

void PlaylistHistory::keepBounds()
{
    qint64 bytes = 0;
    qsizetype changes = m_redo.size();
    for (const PlaylistChange &change : std::as_const(m_redo))
        bytes += costOf(change);
    qsizetype kept = 0;
    for (qsizetype i = m_undo.size() - 1; i >= 0; --i, ++kept) {
        bytes += costOf(m_undo.at(i));
        ++changes;
        if (kept > 0 && (bytes > mostBytes || changes > mostChanges))
            break;
    }
    m_undo.remove(0, m_undo.size() - kept);
    // Nothing is made again that lies beyond the count; the farthest goes first.
    if (m_redo.size() + m_undo.size() > mostChanges)
        m_redo.remove(0, std::min(m_redo.size(), m_redo.size() + m_undo.size() - mostChanges));
}
