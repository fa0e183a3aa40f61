#pragma once

#include "player_core/dsp/real_fft.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace kelp_core {

/// The rate of the signal that tempo and key are estimated from: nothing above 5 kHz is needed.
inline constexpr int analysisRateHz = 11025;

/// Estimates the tempo of music from where its sound sets in: the rises of a logarithmic spectrum, a hundred
/// times a second or so, and the lag at which they repeat. Steady tempi of 50 to 220 beats a minute.
class TempoEstimator
{
public:
    TempoEstimator();

    /// Takes further samples of one channel at analysisRateHz.
    void process(const double *samples, size_t count);

    /// Beats a minute; nothing when no tempo stands out, or less than six seconds were heard.
    std::optional<double> beatsPerMinute() const;

private:
    void addWindow(const double *samples);

    WindowedFft fft_;
    std::vector<double> pending_;  ///< samples that do not fill a window yet
    std::vector<double> previous_; ///< the last window's logarithmic spectrum
    std::vector<double> onsets_;   ///< how much set in, one a hop
};

} // namespace kelp_core
