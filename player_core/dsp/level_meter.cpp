#include "player_core/dsp/meters.h"

#include "player_core/dsp/fixed_text.h"
#include "player_core/dsp/volume.h"

#include <algorithm>
#include <cmath>

namespace kelp_core {

namespace {

/// +60 dBFS: a float file may hold an infinity, and no line shall.
constexpr double highestPeak = 1000.0;

} // namespace

void LevelMeter::add(const double *pcm, size_t frames, int channels)
{
    const auto width = static_cast<size_t>(channels);
    const size_t right = channels > 1 ? 1 : 0;
    for (size_t frame = 0; frame < frames; ++frame, pcm += width) {
        peak_[0] = std::max(peak_[0], std::abs(pcm[0]));
        peak_[1] = std::max(peak_[1], std::abs(pcm[right]));
    }
}

std::array<double, 2> LevelMeter::take()
{
    const std::array<double, 2> levels{decibels(std::min(peak_[0], highestPeak)),
                                       decibels(std::min(peak_[1], highestPeak))};
    peak_ = {0.0, 0.0};
    return levels;
}

std::string LevelMeter::line()
{
    const std::array<double, 2> levels = take();
    return "LVL " + fixedText(levels[0], 2) + ' ' + fixedText(levels[1], 2);
}

} // namespace kelp_core
