#include "player_core/dsp/crossfade.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kelp_core {

namespace {

/// How far frame `index` of a fade is on its way, 0 … 1. Frames stand at the middle of their steps, so that a
/// fade and its mirror image add up.
double progress(size_t index, size_t totalFrames)
{
    if (index >= totalFrames)
        return 1.0;
    return (static_cast<double>(index) + 0.5) / static_cast<double>(totalFrames);
}

} // namespace

void crossfade(const double *from, const double *to, double *out, size_t frames, int channels,
               size_t position, size_t totalFrames)
{
    const auto width = static_cast<size_t>(channels);
    for (size_t frame = 0; frame < frames; ++frame) {
        const double way = progress(position + frame, totalFrames);
        // At the very end the cosine would leave a trace of 1e-17 of the old track.
        const double fromGain = way >= 1.0 ? 0.0 : std::cos(way * std::numbers::pi / 2.0);
        const double toGain = way >= 1.0 ? 1.0 : std::sin(way * std::numbers::pi / 2.0);
        for (size_t i = frame * width; i < (frame + 1) * width; ++i)
            out[i] = from[i] * fromGain + to[i] * toGain;
    }
}

size_t declickFrames(int rateHz)
{
    return static_cast<size_t>(std::max(1, rateHz / 200));
}

void fade(Fade direction, double *pcm, size_t frames, int channels, size_t position, size_t totalFrames)
{
    const auto width = static_cast<size_t>(channels);
    for (size_t frame = 0; frame < frames; ++frame) {
        const double way = progress(position + frame, totalFrames);
        const double rise = way >= 1.0 ? 1.0 : 0.5 - 0.5 * std::cos(way * std::numbers::pi);
        const double gain = direction == Fade::in ? rise : 1.0 - rise;
        for (size_t i = frame * width; i < (frame + 1) * width; ++i)
            pcm[i] *= gain;
    }
}

} // namespace kelp_core
