#pragma once

#include "player_core/output/open_attempt.h"

#include <string>
#include <vector>

namespace kelp_core {

/// Opens a PCM by its name and sets it up for the first wish that it takes. With exact only one that passes
/// samples on untouched will do. A hardware card is reserved on the desktop first. The notes are
/// those made so far. May block for seconds.
OpenAttempt openAlsa(const OutputRequest &request, const std::string &name, bool exact,
                     std::vector<std::string> notes);

} // namespace kelp_core
