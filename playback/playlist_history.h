/// \file
/// The changes of the playlist that can be taken back and made again.
#pragma once

#include "playback/playlist_change.h"

#include <optional>

/// A value: copies share their records, so that a snapshot may be written by another thread.
class PlaylistHistory
{
public:
    // Of both directions together. The oldest changes go first; the newest stays whatever it costs up to its
    // own bound, because clearing a long list is what one wants back most.
    static constexpr int mostChanges = 100;
    static constexpr qint64 mostBytes = 64LL << 20;
    static constexpr qint64 mostBytesOfNewest = 256LL << 20;

    /// Takes a change that has been made. What could be made again no longer can.
    /// \return false when it is too large to keep; then nothing earlier can be taken back either
    bool record(PlaylistChange change);

    bool canUndo() const { return !m_undo.isEmpty(); }
    bool canRedo() const { return !m_redo.isEmpty(); }
    /// The change that an undo takes back or a redo makes again; one of these must exist.
    const PlaylistChange &nextUndo() const { return m_undo.last(); }
    const PlaylistChange &nextRedo() const { return m_redo.last(); }
    /// Notes that it was done. \p entries are the rows as they were taken out; empty where none were.
    void noteUndone(const QList<PlaylistEntry> &entries = {});
    void noteRedone(const QList<PlaylistEntry> &entries = {});
    void clear();

    /// Puts the changes of an earlier run below those of this one.
    void adoptOlder(const PlaylistHistory &older);

    // For the file.
    const QList<PlaylistChange> &undoChanges() const { return m_undo; }
    const QList<PlaylistChange> &redoChanges() const { return m_redo; }
    static PlaylistHistory fromChanges(QList<PlaylistChange> undo, QList<PlaylistChange> redo);

private:
    void keepBounds();

    QList<PlaylistChange> m_undo; ///< oldest first
    QList<PlaylistChange> m_redo; ///< next to be made again last
};
