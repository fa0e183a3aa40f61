/// \file
/// What the progress bar, the position label and the log say while a track plays or is scanned.
#pragma once

#include "engine/telemetry_lines.h"

#include <QString>
#include <optional>

/// Full width of the progress bar: hundredths of a percent.
inline constexpr int progressBarMaximum = 10000;

struct TrackProgressState
{
    double lastPosSec = 0.;
    int lastPosRow = -1;         ///< the row that lastPosSec belongs to
    double progressPercent = 0.; ///< 0 … 100
    double lastTotalSec = 0.;    ///< 0 or below: not known
    bool positionTold = false;   ///< of this track
    bool audioHasStarted = false;
    bool firstUpdateSeen = false; ///< of the program run: what it starts is measured once
    double lastSavedPosSec = 0.;  ///< the position when the resume position was last saved
    int lastLoggedTen = 0;        ///< percent, a multiple of ten
    int lastScanTen = 0;          ///< likewise, of the scan

    /// To be called when a track is started, and when the engine has gone on to a preloaded one. The position
    /// and its row stay: a restart of the same row continues there.
    /// \param resumePosSec where the track starts
    void resetForTrack(double resumePosSec = 0.)
    {
        progressPercent = 0.;
        lastTotalSec = 0.;
        positionTold = false;
        audioHasStarted = false;
        lastSavedPosSec = resumePosSec;
        lastLoggedTen = 0;
        lastScanTen = 0;
    }
};

/// One report of the engine, and what the window knows about the track.
struct ProgressFacts
{
    double percent = 0.;
    double positionSec = -1.;    ///< below 0: not told
    double totalSec = 0.;        ///< 0.5 or below: not told
    int row = -1;                ///< the current row
    double itemDurationSec = 0.; ///< stands in for a total that was not told
    double speedRatio = 1.;
    bool resumeTracked = false; ///< the position of this file is to be remembered
};

/// What the label of the position shows.
struct PositionDisplay
{
    QString text;
    QString toolTip; ///< empty at normal speed

    bool operator==(const PositionDisplay &) const = default;
};

/// To be carried out in the order of the members.
struct ProgressDisplay
{
    bool startMetricsTimer = false; ///< this is the first update
    int barValue = 0;               ///< 0 … progressBarMaximum
    bool saveResumePosition = false;
    bool testPlayStat = false;               ///< see whether the track counts as played
    std::optional<PositionDisplay> position; ///< none: the label stays as it is
    QString logText;                         ///< empty: nothing to log
};

/// Takes a report into the state and says what to show.
ProgressDisplay updateProgress(TrackProgressState &state, const ProgressFacts &facts);

/// What is shown while a source is read through before it sounds.
struct ScanDisplay
{
    int barValue = 0; ///< 0 … progressBarMaximum
    QString text;     ///< for the position label and the status bar
    QString logText;  ///< empty: nothing to log
};
ScanDisplay updateScan(TrackProgressState &state, const ScanLine &scan);

/// "3:07". Minutes are not folded into hours; below 0 counts as 0.
QString clockText(double sec);
/// A speed with one decimal where that represents it, else two.
QString speedRatioText(double ratio);
