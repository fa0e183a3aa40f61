/// \file
/// The grammar of the engine's output lines. Every function takes the trimmed text of one line and is safe on
/// any bytes; a line that does not fit is no line of that form.
#pragma once

#include <QString>
#include <array>
#include <optional>

namespace engine_line {

/// The three telemetry forms of which only the newest counts.
inline constexpr std::array<QLatin1StringView, 3> mailboxPrefixes = {
    QLatin1StringView("LVL "), QLatin1StringView("SPC "), QLatin1StringView("PG ")};

/// Whether the text begins with one of mailboxPrefixes.
bool isMailboxLine(QStringView text);

/// The line as it is worked on: carriage returns removed, trimmed.
QString cleaned(const QString &line);

/// The text without a leading "[player] ".
QString stripPlayerPrefix(const QString &text);

/// What stands behind a machine prefix at the start of the text, or behind a blank or "]", so that a logger's
/// time stamp may stand in front. Only the first occurrence is looked at.
std::optional<QString> embedded(const QString &text, QLatin1StringView prefix);

/// The key under which a telemetry line is counted; empty for other lines.
QString telemetryKey(const QString &text);
/// Whether the count'th line of a key is worth a line in the diagnostic log.
bool isTelemetrySample(qint64 count);

/// "PG percent seconds total"
struct Progress
{
    double percent = 0.;
    double positionSec = 0.;
    double totalSec = -1.; ///< -1 when the line has none

    bool operator==(const Progress &) const = default;
};
/// \param text without "[player] "
std::optional<Progress> parseProgress(const QString &text);
/// "Progress: 37.5%"
std::optional<double> parsePercent(const QString &text);

/// "SRC rate bits channels format dst seconds"
struct Source
{
    int rateHz = 0;
    std::optional<int> depthBits;
    int channels = 0;
    QString format;
    bool dst = false;
    double durationSec = 0.;

    bool isDsd() const { return format == QLatin1StringView("dsd"); }
    bool operator==(const Source &) const = default;
};
/// \param rest what follows the prefix
std::optional<Source> parseSource(const QString &rest);
/// "DSD64" … or "PCM 44100 Hz"
QString sourceFormatText(const Source &source);

/// "SCAN percent done total": a source that must be read through before it sounds.
struct Scan
{
    double percent = 0.;
    double doneSec = 0.;
    double totalSec = 0.;

    bool operator==(const Scan &) const = default;
};
std::optional<Scan> parseScan(const QString &text);

/// "SEG a b n": the number of the segment that plays now.
std::optional<int> parseSegment(const QString &text);

/// Milliseconds of an "output latency:" line, 0 to below 5000.
std::optional<double> parseOutputLatencyMs(const QString &text);

/// Facts on the device that stand in free text.
enum class DeviceFact
{
    None,
    Opened,
    ExclusiveRefused,
    EndpointMissing
};
DeviceFact deviceFactOf(const QString &text);

} // namespace engine_line
