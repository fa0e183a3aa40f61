/// \file
/// The window's memory for the playlist, beside the list itself.
#pragma once

#include "playback/playlist_history.h"

#include <QSet>
#include <QString>

struct PlaylistState
{
    QSet<QString> pendingContainers; ///< paths whose listing is still out
    quint64 clearings = 0;           ///< counts them: a listing asked for before the last one is not wanted
    QString dragKey;                 ///< key of the playing row while rows are on the move
    PlaylistHistory history;
    bool historyDirty = false;   ///< not on disk as it is
    bool historyLoading = false; ///< the file of the last run is still being read
    bool historyWaiting = false; ///< a change came meanwhile and is to be written after it
    quint64 lastAddGroup = 0;    ///< counts the operations that add rows
};
