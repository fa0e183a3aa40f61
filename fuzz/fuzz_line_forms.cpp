// All small forms, the first byte choosing one of them.
#include "engine/line_prefix.h"
#include "engine/source_labels.h"
#include "engine/telemetry_lines.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace {

void demand(bool truth)
{
    if (!truth)
        __builtin_trap();
}

bool isBound(const std::optional<int> &bound)
{
    return !bound || (*bound >= 0 && *bound <= 128);
}

void levels(QStringView text)
{
    if (const auto line = parseLevels(text))
        demand(std::isfinite(line->leftDb) && std::isfinite(line->rightDb));
}
void progress(QStringView text)
{
    if (const auto line = parseProgress(stripPlayerPrefix(text)))
        demand(std::isfinite(line->percent) && std::isfinite(line->positionSec) &&
               std::isfinite(line->totalSec));
}
void percent(QStringView text)
{
    demand(std::isfinite(parseProgressPercent(text).value_or(0.)));
}
void scan(QStringView text)
{
    if (const auto line = parseScan(text))
        demand(std::isfinite(line->percent) && std::isfinite(line->doneSec) && std::isfinite(line->totalSec));
}
void source(QStringView text)
{
    if (const auto info = parseSource(embeddedRest(text, QLatin1StringView("SRC ")).value_or(text))) {
        demand(info->rateHz >= 0 && info->channels >= 0 && info->depthBits.value_or(1) > 0);
        demand(!sourceLabels(*info).info.isEmpty());
    }
}
void segment(QStringView text)
{
    static_cast<void>(parseSegment(text));
}
void latency(QStringView text)
{
    const double latencyMs = parseOutputLatencyMs(text).value_or(0.);
    demand(latencyMs >= 0. && latencyMs < 5000.);
}
void decodeFilter(QStringView text)
{
    if (const auto filter = parseDecodeFilter(text))
        demand(!filter->name.isEmpty());
}
void zones(QStringView text)
{
    const SpectrumZones bounds = parseSpectrumZones(text);
    demand(isBound(bounds.low) && isBound(bounds.audible) && isBound(bounds.nyquist));
}

constexpr std::array forms = {levels, progress, percent, scan, source, segment, latency, decodeFilter, zones};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data) + 1, static_cast<qsizetype>(size - 1));
    forms[data[0] % forms.size()](text);
    return 0;
}
