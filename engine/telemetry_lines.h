/// \file
/// The machine-readable forms among the engine's output lines, except the frames of the instruments.
/// Every function is safe on any text; what does not fit the form gives none.
#pragma once

#include <QString>
#include <QStringView>
#include <optional>

inline constexpr double levelFloorDb = -120.;

/// "LVL left right": the peak levels since the last such line.
struct LevelLine
{
    double leftDb = levelFloorDb;
    double rightDb = levelFloorDb;

    bool operator==(const LevelLine &) const = default;
};
/// \param rest what follows "LVL ". "-inf" is digital silence and reads as levelFloorDb.
std::optional<LevelLine> parseLevels(QStringView rest);

/// "PG percent seconds [total]"
struct ProgressLine
{
    double percent = 0.;
    double positionSec = 0.;
    double totalSec = -1.; ///< -1 when the line has none

    bool operator==(const ProgressLine &) const = default;
};
/// \param text without "[player] ", beginning with "PG "
std::optional<ProgressLine> parseProgress(QStringView text);
/// "Progress: 37.5%" gives 37.5.
std::optional<double> parseProgressPercent(QStringView text);

/// "SCAN percent done total": a source that must be read through before it sounds.
struct ScanLine
{
    double percent = 0.;
    double doneSec = 0.;
    double totalSec = 0.;

    bool operator==(const ScanLine &) const = default;
};
std::optional<ScanLine> parseScan(QStringView text);

/// "SRC rate bits channels format dst seconds": what is played, as the engine decodes it.
struct SourceInfo
{
    int rateHz = 0;
    std::optional<int> depthBits; ///< above 0; none when the engine does not know it
    int channels = 0;
    QString format; ///< "dsd" or another word
    bool dst = false;
    double durationSec = 0.;

    bool isDsd() const { return format == QLatin1StringView("dsd"); }
    bool operator==(const SourceInfo &) const = default;
};
/// \param rest what follows "SRC "
std::optional<SourceInfo> parseSource(QStringView rest);

/// "SEG start end n": the number of the segment that plays now.
std::optional<int> parseSegment(QStringView text);

/// The milliseconds behind "output latency:", 0 to below 5000.
std::optional<double> parseOutputLatencyMs(QStringView text);

/// "PDM2PCM filter rate name auto": the filter that decodes DSD.
struct DecodeFilterLine
{
    QString name;
    bool automatic = false; ///< chosen by the engine

    bool operator==(const DecodeFilterLine &) const = default;
};
/// \param rest what follows "PDM2PCM filter "
std::optional<DecodeFilterLine> parseDecodeFilter(QStringView rest);

/// "SPC zones low=… audible=… nyq=…": the bands at which the colour of the spectrum changes. A bound that the
/// line does not name is none; one that is out of 1 … 128 is 0, which means that there is no such bound.
struct SpectrumZones
{
    std::optional<int> low;
    std::optional<int> audible;
    std::optional<int> nyquist;

    bool operator==(const SpectrumZones &) const = default;
};
SpectrumZones parseSpectrumZones(QStringView text);
