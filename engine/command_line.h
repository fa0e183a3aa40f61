/// \file
/// The engine's command line: everything that the engine must know before the first sample flows, as one
/// flat list of arguments. The same list serves a child process and the in-process entry.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

/// Bits of the display mode: the frames that the engine is asked for.
namespace vizBit {
inline constexpr int spectrum = 1;
inline constexpr int scope = 2;
} // namespace vizBit

/// What the window and the settings file hold at the moment of a session's start. Every text is a code of
/// the engine's, never a translated word.
struct EngineArgsInput
{
    // The source. The first that is not empty counts, in the order image, sheet, file; with none of them
    // the session starts empty and waits for a `load` line.
    QString isoPath;
    QString cuePath;
    QString file;
    int track = 0;         ///< of an image or a sheet, counted from 1; below 1 means none is named
    double startSec = -1.; ///< sent only above 0.5

    qint64 parentPid = 0; ///< the engine ends when this process has gone

    bool dspPlugins = false;
    bool prefetchDecode = false;
    int vizMode = 1;             ///< a sum of vizBit
    bool effectsAudible = false; ///< the answer of effectsWantPcm()

    // The devices.
    QString mode = QStringLiteral("standard"); ///< "standard", "differential", "btl", "crossover", "pairs"
    int channelCount = 2;
    QStringList channelDevices; ///< one id a combo, in channel order; an empty one is not chosen
    QString primaryDevice;      ///< empty is the system's default
    double crossoverHz = 0.;    ///< the integer part is sent
    bool crossoverBridged = false;
    QString rigValue;
    QString dop = QStringLiteral("auto");
    QString outputPath = QStringLiteral("auto"); ///< "auto", "exclusive", "shared"
    bool exclusiveFallback = false;              ///< this row was refused exclusive access: "auto" this once

    // The processing.
    bool peakGuard = false;
    int denoiseTier = 0; ///< 0 off to 3 strong; larger values count as 3
    bool keepHarmonics = false;
    bool resample = false;
    QString resampleQuality = QStringLiteral("standard"); ///< "fast", "standard", "best"
    bool streamingRead = false;
    double crossfadeSec = 0.;
    bool gapless = false;
    int replayGainMode = 0; ///< 0 off, 1 track, 2 and above album
    double speedRatio = 1.;
    bool forcedPcm = false;
    QString pcmBits = QStringLiteral("24");         ///< "16", "24", "32", "float32"
    QString pcmFilter = QStringLiteral("standard"); ///< "fast", "standard", "best"
    bool pcmFilterExplicit = false;                 ///< the user has chosen a filter by hand
    bool pcmToDsd = false;
    int pcmToDsdTargetHz = 0; ///< below 1 means DSD64
    int pcmToDsdTaps = 0;     ///< 0 is automatic
    int volume = 100;         ///< 0 to 100
    bool volumeTouched = false;
    QString extDecoder; ///< path of an external decoder library, empty for none
};

/// Something the window must tell the user about a command line.
struct EngineArgsNotice
{
    enum class Kind
    {
        LogLine,
        WarningBox
    };
    Kind kind = Kind::LogLine;
    QString title; ///< of the box; empty for a log line
    QString text;

    bool operator==(const EngineArgsNotice &) const = default;
};

struct EngineArgsResult
{
    QStringList args; ///< empty: the start is refused, and a notice has said why
    QList<EngineArgsNotice> notices;
};

/// The arguments in their fixed order, one list entry each, and nothing quoted.
EngineArgsResult buildEngineArgs(const EngineArgsInput &input);

/// The control lines that bring a running session from one display mode to another: a session reads its
/// command line only once. \param former as EngineArgsInput::vizMode, likewise \param wanted
QStringList vizModeLines(int former, int wanted);

/// The same line for people: joined by blanks, what holds a blank in quotation marks.
QString printableCommand(const QString &program, const QStringList &args);
