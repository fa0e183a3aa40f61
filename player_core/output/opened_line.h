#pragma once

#include "player_core/output/output.h"

#include <string>

namespace kelp_core {

/// The line that tells the listener what was opened. Rate, format and channels are those read back from the
/// device or its server, "not known" where there is no such record; what we hand over stands apart, labelled
/// as the client side.
std::string openedLine(const OpenedOutput &opened);

} // namespace kelp_core
