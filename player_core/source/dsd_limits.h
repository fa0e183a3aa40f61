#pragma once

#include "player_core/source/dsd_layout.h"

namespace kelp_core {

/// A line that says why no such stream can be played, or "".
std::string dsdLimitError(const DsdLayout &layout);

} // namespace kelp_core
