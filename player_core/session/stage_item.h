#pragma once

#include <string>

namespace kelp_core {

/// What a stage can say for itself when it is asked whether it keeps the samples as they are.
enum class Proof
{
    kept,    ///< found to pass samples on unchanged
    broken,  ///< found to change them
    unknown, ///< neither can be shown; never counts as kept
};

/// A stage's answer to `verify`. Plain value.
struct StageItem
{
    std::string name; ///< one of stage_name, or a name of the stage's own
    Proof proof = Proof::unknown;
    std::string reason; ///< one line of English, no full stop at its end
};

/// The stages that always answer, in the order of the signal.
namespace stage_name {
inline constexpr auto source = "source";
inline constexpr auto decoding = "DSD decoding";
inline constexpr auto resampler = "resampler";
inline constexpr auto speed = "speed";
inline constexpr auto channels = "channel map";
inline constexpr auto effects = "effects";
inline constexpr auto replayGain = "ReplayGain";
inline constexpr auto volume = "volume";
inline constexpr auto crossfade = "crossfade";
inline constexpr auto guard = "peak guard";
inline constexpr auto clipping = "clipping";
inline constexpr auto depth = "depth";
inline constexpr auto mixer = "mixer";
inline constexpr auto conversion = "conversion behind us";
inline constexpr auto delivery = "delivery";
inline constexpr auto underruns = "underruns";
/// Answers only while one is set.
inline constexpr auto loop = "A/B loop";
} // namespace stage_name

} // namespace kelp_core
