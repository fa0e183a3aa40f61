/// \file
/// What the end of a session means, and what follows from it.
#pragma once

#include "playback/playlist_entry.h"

#include <QString>
#include <QStringList>

struct SessionEndFacts
{
    int exitCode = 0;
    bool crashed = false;

    bool supersededSession = false; ///< a newer session has been started since the one that ended
    qint64 nowMs = 0;               ///< since the epoch
    qint64 ignoreDoneUntilMs = 0;   ///< 0: nothing is to be ignored

    bool inProcess = false;
    bool outputPathExclusive = false; ///< the output path control asks for exclusive access
    bool audioHasStarted = false;
    int currentRow = -1;
    int exclusiveFallbackRow = -1; ///< the row that has had its second chance

    bool userStopped = false;
    bool restartPending = false;
    bool sessionClosing = false;
    double progressPercent = 0.;
    QString lastEngineLine;
};

struct SessionEndVerdict
{
    enum class Kind
    {
        Ignored,           ///< of a session that was torn down; nothing changes
        ExclusiveFallback, ///< this track is tried once more with the ladder of output paths
        Closed,            ///< closed on purpose
        Stopped,           ///< by the user or by the engine's own report of a stop
        Failed,            ///< ended too early; the list does not go on
        Finished,          ///< the track is through; the list goes on
        Restart            ///< a deliberate restart goes on with the same row
    };
    struct Line
    {
        QString text;
        bool isError = false;
    };

    Kind kind = Kind::Finished;
    QList<Line> lines;             ///< for the log, translated
    bool ignoreTimePassed = false; ///< the time of ignoring is over and to be cleared
};

SessionEndVerdict sessionEndVerdict(const SessionEndFacts &facts);

/// Whether "FAILED reason: path" is about this row: the path is its file's or that of what holds it, with or
/// without the folder.
bool namesRow(QStringView failedLine, const PlaylistEntry &entry);
