#pragma once

#include "player_core/session/track_book.h"

#include <string>
#include <vector>

namespace kelp_core {

/// The tracks of a CUE sheet that is played as a whole, by the time at which each begins in it. Empty when
/// the sheet cannot be read.
std::vector<Segment> sheetSegments(const std::string &cuePath);

} // namespace kelp_core
