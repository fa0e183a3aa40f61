#pragma once

#include <string>

namespace kelp_test {

struct CueRecipe
{
    std::string file = "album.wav";
    std::string title = "Album";
    std::string performer = "Performer";
    int tracks = 3;
    int trackCdFrames = 75; ///< length of a track in 1/75 s
};

/// A sheet of tracks of equal length, all in one file: "Track 1", "Track 2", …
std::string cueText(const CueRecipe &recipe);

} // namespace kelp_test
