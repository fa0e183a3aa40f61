#pragma once

#include "player_core/probe/probe_answer.h"

#include <optional>
#include <string>
#include <vector>

namespace kelp_core {

/// The probes that concern devices: they need nothing of sources, so the program answers them without loading
/// the engine's library. Nothing when the first argument names none of them.
std::optional<ProbeAnswer> answerDeviceProbe(const std::vector<std::string> &args);

/// The operand behind a flag, or an empty text.
std::string operandOf(const std::vector<std::string> &args, const std::string &flag);

} // namespace kelp_core
