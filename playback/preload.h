/// \file
/// When the next track is handed to the engine early, and how one notices that the engine has moved on to it.
#pragma once

#include "playback/playlist_entry.h"

#include <QString>

struct PreloadFacts
{
    double positionSec = 0.;
    double totalSec = 0.;
    double crossfadeSec = 0.;
    bool gapless = false;
    bool pending = false;       ///< the next file has been handed over
    bool diagnosisDone = false; ///< once a track
    bool refusalTold = false;   ///< likewise
    int currentRow = -1;
    int nextRow = -1;      ///< -1 when the list ends
    PlaylistEntry playing; ///< what was started, which may have left the list
    PlaylistEntry next;
};

/// Whether the engine, told nothing but the next row's path while a row plays, takes it for that row. Handing
/// over is a path and no track number. A sheet's row has the path of the audio file and an image's row that
/// of the image, so the engine can only guess: of the sheet or image that plays, the track behind the present
/// one; of another image, the first. The file of another sheet it plays as a whole, and a plain file beside
/// the sheet that plays may be what that sheet's next track lies in. Where the guess is another row than the
/// one that comes next (random order, a list put together by hand), the wrong track would sound under the
/// right title. A station is no file at all.
bool pathMeansRow(const PlaylistEntry &playing, const PlaylistEntry &next);

struct PreloadPlan
{
    bool diagnose = false; ///< log the end-of-track check
    bool load = false;     ///< hand over nextRow
    bool refuse = false;   ///< log that it is not, since its path alone would mean another row
    double remainingSec = 0.;
    double windowSec = 0.; ///< 0: the next track is not loaded early
};

PreloadPlan planPreload(const PreloadFacts &facts);
/// Whether the next row has to be known for planPreload; asking for it may cost.
bool preloadNeedsNextRow(const PreloadFacts &facts);

/// The log sentences, translated.
QString preloadDiagnosis(const PreloadPlan &plan, const PreloadFacts &facts);
/// \param text the next row's, as the list shows it
QString preloadRefusal(const QString &text);
QString preloadAnnouncement(const PreloadPlan &plan, double crossfadeSec, const QString &fileName);

struct PreloadTakenFacts
{
    double posAtPreloadSec = 0.;
    double totalAtPreloadSec = 0.;
    double lastPositionSec = 0.; ///< reported before this one; a track of two seconds is handed over so early
                                 ///< that only its last position tells that the next one begins
    double positionSec = 0.;
    double totalSec = 0.;
    double loopFromSec = -1.; ///< point A of the loop that plays, -1 without one
};
/// The position has run backward, by more than a loop's jump, or the total has changed at the beginning of a
/// track.
bool preloadTaken(const PreloadTakenFacts &facts);

/// Whether a track's end is the end of the preloaded one, whose beginning went unnoticed: it was too short.
/// \param doneFile      the ended track as the engine names it, with or without its folder
/// \param currentPath   of the track that plays as far as we know
/// \param preloadedPath of the one handed over
bool isOfPreloadedTrack(const QString &doneFile, const QString &currentPath, const QString &preloadedPath);
