#include "engine/output_lines.h"

#include <QStringList>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace engine_line {

namespace {

constexpr auto playerPrefix = "[player] "_L1;
constexpr double latencyLimitMs = 5000.;

/// In the order in which they are tried.
constexpr std::array telemetryPrefixes = {"LVL "_L1,  "PG "_L1,  "SEG "_L1, "SRC "_L1,
                                          "SCAN "_L1, "SPC "_L1, "WVF "_L1, "COVER"_L1};

struct DsdName
{
    int rateHz;
    QLatin1StringView name;
};
constexpr std::array dsdNames = {DsdName{2822400, "DSD64"_L1}, DsdName{5644800, "DSD128"_L1},
                                 DsdName{11289600, "DSD256"_L1}, DsdName{22579200, "DSD512"_L1}};

/// The words of a line. A broken engine's endless line must not become a list of a million strings.
QStringList words(const QString &text)
{
    constexpr qsizetype longestLine = 4096;
    return text.left(longestLine).split(u' ', Qt::SkipEmptyParts);
}

/// A decimal number; "nan" and "inf", which the toolkit reads as numbers, are none.
std::optional<double> number(const QString &text)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

bool containsAny(const QString &text, std::initializer_list<QLatin1StringView> patterns)
{
    return std::ranges::any_of(patterns, [&](QLatin1StringView pattern) { return text.contains(pattern); });
}

} // namespace

bool isMailboxLine(QStringView text)
{
    return std::ranges::any_of(mailboxPrefixes, [&](QLatin1StringView p) { return text.startsWith(p); });
}

QString cleaned(const QString &line)
{
    QString text = line;
    text.remove(u'\r');
    return text.trimmed();
}

QString stripPlayerPrefix(const QString &text)
{
    return text.startsWith(playerPrefix) ? text.mid(playerPrefix.size()) : text;
}

std::optional<QString> embedded(const QString &text, QLatin1StringView prefix)
{
    const qsizetype at = text.indexOf(prefix);
    if (at < 0)
        return std::nullopt;
    if (at > 0 && text.at(at - 1) != u' ' && text.at(at - 1) != u']')
        return std::nullopt;
    return text.mid(at + prefix.size());
}

QString telemetryKey(const QString &text)
{
    const QString bare = stripPlayerPrefix(text);
    const auto found =
        std::ranges::find_if(telemetryPrefixes, [&](QLatin1StringView p) { return bare.startsWith(p); });
    return found == telemetryPrefixes.end() ? QString() : QString(*found).trimmed();
}

bool isTelemetrySample(qint64 count)
{
    return count == 1 || count == 10 || count % 200 == 0;
}

std::optional<Progress> parseProgress(const QString &text)
{
    const QStringList parts = words(text);
    if (parts.size() < 3 || parts.first() != "PG"_L1)
        return std::nullopt;
    const std::optional<double> percent = number(parts.at(1));
    const std::optional<double> position = number(parts.at(2));
    const std::optional<double> total = parts.size() > 3 ? number(parts.at(3)) : -1.;
    if (!percent || !position || !total)
        return std::nullopt;
    return Progress{*percent, *position, *total};
}

std::optional<double> parsePercent(const QString &text)
{
    constexpr auto label = "Progress:"_L1;
    if (!text.startsWith(label))
        return std::nullopt;
    QString percent = text.mid(label.size()).trimmed();
    if (percent.endsWith(u'%'))
        percent.chop(1);
    return number(percent.trimmed());
}

std::optional<Source> parseSource(const QString &rest)
{
    const QStringList parts = words(rest);
    if (parts.size() < 6)
        return std::nullopt;
    Source source;
    bool rateOk = false;
    bool depthOk = false;
    bool channelsOk = false;
    source.rateHz = parts.at(0).toInt(&rateOk);
    const int depth = parts.at(1).toInt(&depthOk);
    source.channels = parts.at(2).toInt(&channelsOk);
    if (!rateOk || !channelsOk)
        return std::nullopt;
    if (depthOk && depth > 0)
        source.depthBits = depth;
    source.format = parts.at(3);
    source.dst = parts.at(4) == "1"_L1;
    source.durationSec = number(parts.at(5)).value_or(0.);
    return source;
}

QString sourceFormatText(const Source &source)
{
    if (!source.isDsd())
        return u"PCM %1 Hz"_s.arg(source.rateHz);
    const auto name = std::ranges::find(dsdNames, source.rateHz, &DsdName::rateHz);
    return name != dsdNames.end() ? QString(name->name) : u"DSD %1"_s.arg(source.rateHz);
}

std::optional<Scan> parseScan(const QString &text)
{
    const QStringList parts = words(text);
    if (parts.size() < 4 || parts.first() != "SCAN"_L1)
        return std::nullopt;
    const std::optional<double> percent = number(parts.at(1));
    const std::optional<double> done = number(parts.at(2));
    const std::optional<double> total = number(parts.at(3));
    if (!percent || !done || !total)
        return std::nullopt;
    return Scan{*percent, *done, *total};
}

std::optional<int> parseSegment(const QString &text)
{
    const QStringList parts = words(text);
    if (parts.size() < 4 || parts.first() != "SEG"_L1)
        return std::nullopt;
    bool ok = false;
    const int number = parts.at(3).toInt(&ok);
    return ok ? std::optional(number) : std::nullopt;
}

std::optional<double> parseOutputLatencyMs(const QString &text)
{
    constexpr auto label = "output latency:"_L1;
    const qsizetype at = text.indexOf(label);
    if (at < 0)
        return std::nullopt;
    const QStringList parts = words(text.mid(at + label.size()));
    const std::optional<double> latencyMs = parts.isEmpty() ? std::nullopt : number(parts.first());
    if (!latencyMs || *latencyMs < 0. || *latencyMs >= latencyLimitMs)
        return std::nullopt;
    return latencyMs;
}

DeviceFact deviceFactOf(const QString &text)
{
    if (text.contains("OPENED"_L1))
        return DeviceFact::Opened;
    if (containsAny(text, {"0x8889000A"_L1, "cannot get exclusive access"_L1}))
        return DeviceFact::ExclusiveRefused;
    if (containsAny(text,
                    {"endpoint not found"_L1, "is not among the active render endpoints"_L1, "device '"_L1}))
        return DeviceFact::EndpointMissing;
    return DeviceFact::None;
}

} // namespace engine_line
