#pragma once

#include "player_core/probe/probe_answer.h"

namespace kelp_core {

/// The answer to `-analyze FILE`: the lines "ANALYZE bpm=128.0" and "ANALYZE key=A minor", with "none" for
/// what cannot be told. Of a long track three minutes from its middle are heard. What cannot be opened or
/// read gets one line that says why, and the code 1.
ProbeAnswer analyzeTrack(const std::vector<std::string> &args);

} // namespace kelp_core
