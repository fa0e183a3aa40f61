#pragma once

#include "player_core/source/source.h"

namespace kelp_core {

/// "ended after 1.234 s of 5.678 s": the file holds less than its head says.
ReadOutcome endedEarly(const SourceFacts &facts, int64_t position);

/// "damaged at 1.234 s: " and what is known about it.
ReadOutcome damagedAt(const SourceFacts &facts, int64_t position, const std::string &what);

} // namespace kelp_core
