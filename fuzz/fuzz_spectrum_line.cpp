// Frames of the spectrum view, which index arrays by what a line says of itself.
#include "engine/frame_lines.h"

#include <QString>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace {

bool isLevels(const std::vector<double> &levelsDb, int count)
{
    for (const double db : levelsDb)
        if (!(db >= -96. && db <= 0.))
            return false;
    return levelsDb.size() == static_cast<std::size_t>(count);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    SpectrumFrame frame;
    if (!parseSpectrum(text, frame)) {
        if (frame != SpectrumFrame())
            __builtin_trap();
        return 0;
    }
    if (frame.bandCount < 1 || frame.bandCount > mostSpectrumBands || !std::isfinite(frame.rateHz))
        __builtin_trap();
    if (!isLevels(frame.main, frame.bandCount) ||
        !(frame.peaks.empty() || isLevels(frame.peaks, frame.bandCount)))
        __builtin_trap();
    return 0;
}
