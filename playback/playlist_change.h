/// \file
/// One change of the playlist as a record that can be taken back and made again.
#pragma once

#include "playback/playlist_entry.h"
#include "playback/row_runs.h"

struct PlaylistChange
{
    enum class Kind : quint8
    {
        Insert,  ///< runs: where the rows are afterwards
        Remove,  ///< runs: where the rows were before
        Reorder, ///< runs: the old rows in their new sequence
    };

    Kind kind = Kind::Insert;
    RowRuns runs;
    QList<PlaylistEntry> entries; ///< of the rows put in or taken out, in order of rows; none for Reorder
    /// Appended rows of one operation are one change, though they come in pieces; 0: a change of its own.
    quint64 group = 0;

    friend bool operator==(const PlaylistChange &a, const PlaylistChange &b);
};

/// What takes the change back.
PlaylistChange inverseOf(const PlaylistChange &change);
/// Where a row is after the change; -1 when it has gone.
int rowAfterChange(const PlaylistChange &change, int row);
/// Whether runs and entries fit together, whatever the list is.
bool isConsistent(const PlaylistChange &change);
/// Roughly what the record costs in memory and in its file, in bytes.
qint64 costOf(const PlaylistChange &change);
/// A row as the history keeps it: a text that is the file's name is left out.
PlaylistEntry slimEntry(PlaylistEntry entry);
/// The file's name of a path that ends in one.
QStringView fileNameOf(QStringView path);

/// What an undo or a redo has done, translated.
/// \param count of the list afterwards
QString undoText(const PlaylistChange &undone, int count);
QString redoText(const PlaylistChange &redone, int count);
