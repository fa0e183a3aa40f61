#pragma once

#include "player_core/audio/gain_tags.h"

#include <string>

namespace kelp_core {

/// `-replaygain`.
enum class ReplayGainMode
{
    off,
    track,
    album, ///< keeps the differences within an album
};

/// What is done to one track. Plain value.
struct ReplayGainChoice
{
    double gain = 1.0; ///< linear; exactly 1.0 leaves the samples alone
    std::string text;  ///< what was decided and why, as the rest of a sentence; empty when the mode is off
};

/// Chooses the gain: the wished one of the two, else the other. Where it would lift the stored peak above
/// full scale it is lowered to what the peak leaves; where no peak is stored, a track is never made louder.
/// `direct`: the track goes out as DSD, whose samples have no level that could be scaled.
[[nodiscard]] ReplayGainChoice chooseReplayGain(ReplayGainMode mode, const GainTags &tags, bool direct);

} // namespace kelp_core
