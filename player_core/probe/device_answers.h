#pragma once

#include "player_core/probe/probe_answer.h"

#include <optional>
#include <string>
#include <vector>

namespace kelp_core {

/// The probes that concern devices: they need nothing of sources, so the program answers them without loading
/// the engine's library. Nothing when the first argument names none of them. Any thread.
std::optional<ProbeAnswer> answerDeviceProbe(const std::vector<std::string> &args);

} // namespace kelp_core
