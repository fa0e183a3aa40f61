#pragma once

#include <string>

namespace kelp_core {

/// What the probe `-cue-list` prints, and its exit code.
struct CueListing
{
    std::string text; ///< lines, each with its line end; on failure one line that says why
    int exitCode = 0; ///< 0, or 1 when there is no track to list
};

/// Lists a sheet: "CUE", title and performer; then a line "TRACK", number, start and end in seconds, title,
/// performer and the absolute path of the audio file for each track. Fields are parted by tabs. What a
/// sheet names and cannot be opened gets a line "WARN …". Throws nothing.
CueListing listCue(const std::string &cuePath);

} // namespace kelp_core
