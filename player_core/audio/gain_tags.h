#pragma once

#include <optional>

namespace kelp_core {

/// What a file's tags say on its loudness. Plain value.
struct GainTags
{
    std::optional<double> trackGainDb; ///< ReplayGain: what to add for a level of −18 LUFS
    std::optional<double> albumGainDb;
    std::optional<double> trackPeak; ///< highest sample, 1.0 is full scale
    std::optional<double> albumPeak;
    bool operator==(const GainTags &) const = default;
};

} // namespace kelp_core
