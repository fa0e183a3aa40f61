/// \file
/// The engine's answer on a track's tempo and key, and the words for it.
#pragma once

#include <QString>
#include <QStringView>
#include <optional>

inline constexpr int analysisTimeoutMs = 120000;

struct TrackAnalysis
{
    bool answered = false;      ///< there is at least one line of the analysis
    std::optional<QString> bpm; ///< none: the engine could not tell
    std::optional<QString> key; ///< none: the engine could not tell

    bool operator==(const TrackAnalysis &) const = default;
};

/// Reads the lines that begin with "ANALYZE"; a value "none" is none. Of several values the first counts.
TrackAnalysis parseTrackAnalysis(QStringView output);

/// Why no analysis can begin now, translated; empty when it can.
QString analysisRefusal(bool rowSelected, bool sessionRunning);

/// What to tell of an analysis that was asked for. All texts are translated.
struct TrackAnalysisReport
{
    QString boxTitle; ///< of the message box
    QString boxText;  ///< empty: no message box
    QString logText;
    bool isError = false;
};

/// \param rc     of the probe
/// \param output of the probe
/// \param file   the analysed file's name, named where the engine said nothing at all
TrackAnalysisReport analysisReport(int rc, const QString &output, const QString &file);
