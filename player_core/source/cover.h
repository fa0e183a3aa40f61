#pragma once

#include <string>

namespace kelp_core {

/// What the probe `-cover` is asked for.
struct CoverRequest
{
    std::string path;    ///< an audio file or a CUE sheet
    int track = 0;       ///< of a sheet; below 1: its first file
    std::string outPath; ///< where the picture goes
};

/// What it prints, and its exit code.
struct CoverAnswer
{
    std::string line; ///< "COVER 12345 image/jpeg", "COVER none", or why it failed; no line end
    int exitCode = 1; ///< 0 when a picture was written
};

/// Takes the front cover out of a file, or finds a picture named cover, folder or front beside it, and writes
/// it. The file at outPath appears whole or not at all. Throws nothing.
CoverAnswer extractCover(const CoverRequest &request);

} // namespace kelp_core
