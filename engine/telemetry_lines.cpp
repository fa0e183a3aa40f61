#include "engine/telemetry_lines.h"

#include "engine/frame_lines.h"
#include "engine/line_words.h"

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double latencyLimitMs = 5000.;

std::optional<double> levelDb(QStringView word)
{
    bool ok = false;
    const double db = word.toDouble(&ok);
    if (!ok || std::isnan(db) || db == HUGE_VAL)
        return std::nullopt;
    return std::isinf(db) ? levelFloorDb : db;
}

struct ZoneName
{
    QLatin1StringView prefix;
    std::optional<int> SpectrumZones::*bound;
};
constexpr std::array zoneNames = {ZoneName{"low="_L1, &SpectrumZones::low},
                                  ZoneName{"audible="_L1, &SpectrumZones::audible},
                                  ZoneName{"nyq="_L1, &SpectrumZones::nyquist}};

int zoneBound(QStringView value)
{
    const int band = wholeNumber(value).value_or(0);
    return band >= 1 && band <= mostSpectrumBands ? band : 0;
}

} // namespace

std::optional<LevelLine> parseLevels(QStringView rest)
{
    const LineWords words = wordsOf(rest, 2);
    if (words.size() < 2)
        return std::nullopt;
    const std::optional<double> left = levelDb(words[0]);
    const std::optional<double> right = levelDb(words[1]);
    if (!left || !right)
        return std::nullopt;
    return LevelLine{*left, *right};
}

std::optional<ProgressLine> parseProgress(QStringView text)
{
    const LineWords words = wordsOf(text, 4);
    if (words.size() < 3 || words[0] != "PG"_L1)
        return std::nullopt;
    const std::optional<double> percent = finiteNumber(words[1]);
    const std::optional<double> positionSec = finiteNumber(words[2]);
    const std::optional<double> totalSec = words.size() > 3 ? finiteNumber(words[3]) : -1.;
    if (!percent || !positionSec || !totalSec)
        return std::nullopt;
    return ProgressLine{*percent, *positionSec, *totalSec};
}

std::optional<double> parseProgressPercent(QStringView text)
{
    constexpr auto label = "Progress:"_L1;
    if (!text.startsWith(label))
        return std::nullopt;
    QStringView percent = text.sliced(label.size()).trimmed();
    if (percent.endsWith(u'%'))
        percent.chop(1);
    return finiteNumber(percent.trimmed());
}

std::optional<ScanLine> parseScan(QStringView text)
{
    const LineWords words = wordsOf(text, 4);
    if (words.size() < 4 || words[0] != "SCAN"_L1)
        return std::nullopt;
    const std::optional<double> percent = finiteNumber(words[1]);
    const std::optional<double> doneSec = finiteNumber(words[2]);
    const std::optional<double> totalSec = finiteNumber(words[3]);
    if (!percent || !doneSec || !totalSec)
        return std::nullopt;
    return ScanLine{*percent, *doneSec, *totalSec};
}

std::optional<SourceInfo> parseSource(QStringView rest)
{
    const LineWords words = wordsOf(rest, 6);
    if (words.size() < 6)
        return std::nullopt;
    const std::optional<int> rateHz = wholeNumber(words[0]);
    const std::optional<int> channels = wholeNumber(words[2]);
    const std::optional<double> durationSec = finiteNumber(words[5]);
    if (!rateHz || *rateHz < 0 || !channels || *channels < 0 || !durationSec)
        return std::nullopt;
    SourceInfo source;
    source.rateHz = *rateHz;
    // Coded sources may have no depth to speak of: the line counts all the same.
    if (const std::optional<int> depth = wholeNumber(words[1]); depth && *depth > 0)
        source.depthBits = depth;
    source.channels = *channels;
    source.format = words[3].toString();
    source.dst = words[4] == "1"_L1;
    source.durationSec = *durationSec;
    return source;
}

std::optional<int> parseSegment(QStringView text)
{
    const LineWords words = wordsOf(text, 4);
    if (words.size() < 4 || words[0] != "SEG"_L1)
        return std::nullopt;
    return wholeNumber(words[3]);
}

std::optional<double> parseOutputLatencyMs(QStringView text)
{
    constexpr auto label = "output latency:"_L1;
    const qsizetype at = text.indexOf(label);
    if (at < 0)
        return std::nullopt;
    const LineWords words = wordsOf(text.sliced(at + label.size()), 1);
    const std::optional<double> latencyMs = words.isEmpty() ? std::nullopt : finiteNumber(words[0]);
    return latencyMs && *latencyMs >= 0. && *latencyMs < latencyLimitMs ? latencyMs : std::nullopt;
}

std::optional<DecodeFilterLine> parseDecodeFilter(QStringView rest)
{
    const LineWords words = wordsOf(rest, 3);
    if (words.size() < 3)
        return std::nullopt;
    return DecodeFilterLine{words[1].toString(), words[2] == "auto"_L1};
}

SpectrumZones parseSpectrumZones(QStringView text)
{
    SpectrumZones zones;
    for (const QStringView word : wordsOf(text)) {
        for (const ZoneName &name : zoneNames) {
            if (word.startsWith(name.prefix))
                zones.*name.bound = zoneBound(word.sliced(name.prefix.size()));
        }
    }
    return zones;
}
