/// \file
/// The diagnostic file of in-process sessions, named by KELP_INPROC_LOG.
#pragma once

#include <string>
#include <string_view>

namespace kelp {

/// The value of KELP_INPROC_LOG. Read by the starting thread and handed on: other threads must not read the
/// environment while this one may change it.
std::string inprocLogPath();

/// Appends text. The file is opened and closed each time, so that it is whole whatever the engine does next.
/// Does nothing for an empty path; a file that cannot be written is passed over.
void appendInprocLog(const std::string &path, std::string_view text);

} // namespace kelp
