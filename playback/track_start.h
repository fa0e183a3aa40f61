/// \file
/// The decision at the start of a track: is the running session told to load it, or must it be rebuilt, and
/// at which position does the track begin?
#pragma once

#include "playback/playlist_entry.h"

#include <QString>

/// What a session was opened with. A change of one of these costs a rebuild.
struct SessionShape
{
    QString device;              ///< the engine's id, empty for the system's default
    QString mode;                ///< code of the playback mode
    bool effectsAudible = false; ///< whether the effects force PCM

    bool operator==(const SessionShape &) const = default;
};

struct TrackStartFacts
{
    PlaylistEntry entry;
    QString absolutePath; ///< of entry.path, for the stored resume position
    int row = 0;
    int lastStartedRow = -1;

    bool sessionLive = false; ///< a session was started and may be reused
    bool sessionRuns = false; ///< a session object exists and runs
    SessionShape opened;      ///< what the live session was opened with
    SessionShape wanted;      ///< what the controls ask for now

    double lastPosSec = 0.; ///< the last position that was reported
    int lastPosRow = -1;    ///< and its row
    bool resumeEnabled = false;
    QString resumeFile; ///< absolute
    double resumePosSec = 0.;
};

struct TrackStartPlan
{
    bool rebuild = false;     ///< the running session is closed first
    bool reuse = false;       ///< the running session is told to load the track
    bool becomesLive = false; ///< a session started for this track may be reused for the next one
    double startSec = -1.;    ///< -1: from the beginning

    // The source of a fresh session's command line. A plain file is left out: its session starts empty and
    // gets the track by a load line, so that it survives the change to the next one.
    QString argFile;
    QString argCue;
    QString argIso;
    int argTrack = 0;

    QString loadLine;             ///< empty when the command line names the track
    bool announcesResume = false; ///< the load line carries a position
};

TrackStartPlan planTrackStart(const TrackStartFacts &facts);

/// Whether the position inside this row is remembered: only a plain file can be entered in its middle.
bool tracksResume(const PlaylistEntry &entry);

/// Whether a control line can carry the row's path. A line ends with its first break, and what breaks at its
/// end is cut off; only in a queue of whole lines a break in the middle does no harm.
/// \param queued the session queues its lines
bool fitsControlLine(const PlaylistEntry &entry, bool queued);

/// "Resuming at 1:05 (where it stopped last time)", translated.
QString resumeAnnouncement(double startSec);
/// The sentence for an engine that does not end in time, translated.
QString stopTimeoutText(bool canBeKilled);
