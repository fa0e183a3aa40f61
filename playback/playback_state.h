/// \file
/// The window's memory for starting, ending and following tracks.
#pragma once

#include "playback/former_track.h"
#include "playback/track_start.h"

#include <QString>

/// The session and the row, from one track start to the next.
struct TrackStartState
{
    int currentRow = -1; ///< the row to play; may run past the end of the list
    /// The row has left the list: currentRow is the one before its place, -1 for none.
    bool currentRowGone = false;
    int lastStartedRow = -1; ///< of the last playCurrent
    int playingRow = -1;     ///< that plays or was last started
    bool sessionLive = false;
    bool sessionClosing = false; ///< closed on purpose
    bool userStopped = false;
    bool restartPending = false;
    bool paused = false;
    bool uiPlaying = false; ///< the controls show playback; an idle session at the end of the list is none
    SessionShape opened;    ///< what the live session was opened with
    int exclusiveFallbackRow = -1; ///< the row whose "exclusive" was replaced by "auto"
    int playGeneration = 0;        ///< raised at every start that gets that far
    qint64 ignoreDoneUntilMs = 0;  ///< since the epoch; 0 when nothing is ignored

    // What the session was told on its command line; a reused session is told differences by lines.
    int sessionDenoiseTier = -1; ///< -1: told nothing yet
    bool sessionHarmonics = false;
    bool sessionGuard = false;

    QString resumeFile;
    double resumePosSec = 0.;
    bool resumeEnabled = false;

    PlaylistEntry started;        ///< what plays or played last; it stays when its row leaves the list
    bool startedEnded = true;     ///< it has been played or its session has ended
    FormerTrack former;           ///< the one before it, while the session may still tell of that
    QString lastPlayed;           ///< path
    QString lastPlayedKey;        ///< rowKey
    bool lastPlayedDirty = false; ///< the two are not in the settings as they are
    int skippedAtRestore = 0;     ///< rows whose file had gone when the list was restored
};

/// The next file, once it has been handed to the engine early.
struct PreloadState
{
    bool pending = false;
    int row = -1;
    QString path;
    QString key;
    double positionSec = 0.; ///< of the old track at that moment
    double totalSec = 0.;    ///< likewise
    bool diagnosisDone = false;
    bool refusalTold = false;
};
