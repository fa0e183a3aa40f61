#pragma once

#include <string>

namespace kelp_core {

/// All options, probes and control lines, for people.
std::string helpText();

/// One line with name and version.
std::string versionText();

} // namespace kelp_core
