// Frames of the scope, which index arrays by what a line says of itself.
#include "engine/frame_lines.h"

#include <QString>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace {

bool isEdge(const std::vector<double> &samples, int count)
{
    for (const double sample : samples)
        if (!(sample >= -1. && sample <= 1.))
            return false;
    return samples.size() == static_cast<std::size_t>(count);
}

bool isChannel(const WaveformChannel &channel, int count)
{
    return isEdge(channel.first, count) && isEdge(channel.second, count);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    WaveformFrame frame;
    if (!parseWaveform(text, frame)) {
        if (frame != WaveformFrame())
            __builtin_trap();
        return 0;
    }
    if (frame.bucketCount < 1 || frame.bucketCount > mostWaveformBuckets || !std::isfinite(frame.rateHz))
        __builtin_trap();
    if (!isChannel(frame.channel1, frame.bucketCount) ||
        !(isChannel(frame.channel2, 0) || isChannel(frame.channel2, frame.bucketCount)))
        __builtin_trap();
    return 0;
}
