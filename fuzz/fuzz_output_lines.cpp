// One line of the engine's output, through every form that the window reads from it.
#include "engine/output_lines.h"

#include <cmath>
#include <cstdlib>

using namespace engine_line;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text =
        cleaned(QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    const QString bare = stripPlayerPrefix(text);
    if (const auto progress = parseProgress(bare)) {
        if (!std::isfinite(progress->percent) || !std::isfinite(progress->positionSec) ||
            !std::isfinite(progress->totalSec))
            std::abort();
    }
    if (const auto latencyMs = parseOutputLatencyMs(text);
        latencyMs && !(*latencyMs >= 0. && *latencyMs < 5000.))
        std::abort();
    if (const auto rest = embedded(text, QLatin1StringView("SRC "))) {
        if (const auto source = parseSource(*rest); source && sourceFormatText(*source).isEmpty())
            std::abort();
    }
    parsePercent(text);
    parseScan(text);
    parseSegment(text);
    telemetryKey(text);
    deviceFactOf(text);
    return 0;
}
