#pragma once

#include <string>
#include <vector>

namespace kelp_core {

/// What the library's entry does: runs a session, or prints help. args holds what stands behind the
/// program's name. Returns the exit code.
int runEngine(const std::vector<std::string> &args);

} // namespace kelp_core
