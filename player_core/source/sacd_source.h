#pragma once

#include "player_core/source/source.h"

#include <string>
#include <vector>

namespace kelp_core {

/// Opens one track of an SACD image, or with a track below 1 all of its tracks as one source with segments.
OpenedSource openSacd(const SourceRequest &request);

/// The numbers of the tracks that can be played, ascending as the disc has them; empty when the file is no
/// SACD image or cannot be read.
std::vector<int> sacdTrackNumbers(const std::string &path);

/// What the probe `-iso-list` prints, and its exit code.
struct SacdListing
{
    std::string text; ///< lines, each with its line end; on failure one line that says why
    int exitCode = 0; ///< 0, or 1 when there is no track to list
};

/// Lists an image: "ISO", title and number of tracks; then a line "TRACK", number, start and end in seconds
/// and title for each track. Fields are parted by tabs; a missing title is empty. What is damaged and left
/// out gets a line "WARN …". Throws nothing.
SacdListing listSacd(const std::string &path);

} // namespace kelp_core
