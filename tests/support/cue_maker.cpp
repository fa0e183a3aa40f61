#include "tests/support/cue_maker.h"

#include <cstdio>

namespace kelp_test {

std::string cueText(const CueRecipe &recipe)
{
    std::string sheet = "PERFORMER \"" + recipe.performer + "\"\nTITLE \"" + recipe.title + "\"\nFILE \"" +
                        recipe.file + "\" WAVE\n";
    for (int track = 1; track <= recipe.tracks; ++track) {
        const int start = (track - 1) * recipe.trackCdFrames;
        char text[160];
        std::snprintf(text, sizeof text,
                      "  TRACK %02d AUDIO\n    TITLE \"Track %d\"\n    INDEX 01 %02d:%02d:%02d\n", track,
                      track, start / 75 / 60, start / 75 % 60, start % 75);
        sheet += text;
    }
    return sheet;
}

} // namespace kelp_test
