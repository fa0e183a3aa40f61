#pragma once

#include "player_core/probe/probe_answer.h"

#include <optional>
#include <string>
#include <vector>

namespace kelp_core {

/// The answer to a probe, or nothing when the first argument names none. args holds what stands behind the
/// program's name. Any thread.
std::optional<ProbeAnswer> answerProbe(const std::vector<std::string> &args);

/// What is answered to a question nobody knows.
ProbeAnswer unknownProbe(const std::vector<std::string> &args);

} // namespace kelp_core
