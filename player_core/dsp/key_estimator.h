#pragma once

#include "player_core/dsp/real_fft.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kelp_core {

/// Estimates the key of music: how much of each of the twelve tones it holds, by the peaks of its spectrum
/// and whatever its tuning is, compared with what major and minor keys hold.
class KeyEstimator
{
public:
    KeyEstimator();

    /// Takes further samples of one channel at analysisRateHz.
    void process(const double *samples, size_t count);

    /// "C major", "F# minor", …; nothing when no key stands out, or nothing tonal was heard.
    std::optional<std::string> key() const;

private:
    /// Divisions of a semitone, fine enough for the tuning.
    static constexpr size_t parts = 10;

    void addWindow(const double *samples);
    std::array<double, 12> tones() const;

    WindowedFft fft_;
    std::vector<double> pending_;
    std::array<double, 12 * parts> pitches_{}; ///< strength by pitch, all octaves folded into one; from C on
};

} // namespace kelp_core
