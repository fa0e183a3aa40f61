/// \file
/// What the listener chose for the engine, as one record: the window keeps it, the command line is made of
/// it, and the controls only show and change it. So the controls can be built when they are first looked at.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// Every text is a code of the engine's, never a translated word.
struct EngineChoices
{
    /// As many channels as the largest layout has.
    static constexpr int mostChannels = 8;

    QString mode = QStringLiteral("standard");
    int channelCount = 2;
    QStringList
        channelDevices; ///< one id a channel, in channel order; empty or missing: the system's default
    double crossoverHz = 80.;
    bool crossoverBridged = false;
    QString rig; ///< the engine's word, empty for "auto"
    QString dop = QStringLiteral("auto");
    QString outputPath = QStringLiteral("auto");
    bool peakGuard = false;
    int denoiseTier = 0;        ///< 0 to 3
    bool keepHarmonics = false; ///< means nothing while the tier is 0
    bool resample = false;
    QString resampleQuality = QStringLiteral("standard");
    int replayGainMode = 0; ///< 0 off, 1 track, 2 album
    bool streamingRead = false;
    double crossfadeSec = 0.; ///< 0 to 12
    bool gapless = true;
    double speedRatio = 1.; ///< 0.5 to 3
    bool forcedPcm = false;
    QString pcmBits = QStringLiteral("24");
    QString pcmFilter = QStringLiteral("standard");
    bool pcmFilterAutomatic = false; ///< the engine took the filter, and it is shown with a mark
    bool pcmFilterExplicit = false;  ///< the listener took it by hand
    bool pcmToDsd = false;
    int pcmToDsdTargetHz = 2822400;
    int pcmToDsdTaps = 0; ///< 0 is automatic
    QString extDecoder;   ///< path, empty for none

    bool operator==(const EngineChoices &) const = default;
};

/// One item of a choice: what is shown, and what it stands for.
struct ChoiceItem
{
    QString text; ///< translated, unless it is the code itself
    QString code;
};

/// The items of each choice that is remembered by its text or its code, in the order in which they are shown.
namespace engineItems {
QList<ChoiceItem> modes();
QList<ChoiceItem> layouts(); ///< codes are channel counts
QList<ChoiceItem> rigs();    ///< the first has no code
QList<ChoiceItem> dops();
QList<ChoiceItem> outputPaths();
QList<ChoiceItem> pcmBits();
QList<ChoiceItem> pcmFilters();
QList<ChoiceItem> qualities();
QList<ChoiceItem> replayGains(); ///< codes are the numbers of replayGainMode
QList<ChoiceItem> dsdTargets();  ///< codes are rates in hertz
QList<ChoiceItem> dsdTaps();     ///< codes are numbers of taps
} // namespace engineItems

/// Brings values that came from a file into their ranges; a code that no item has becomes the default.
EngineChoices withinRanges(EngineChoices choices);
