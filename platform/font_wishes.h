/// \file
/// Fonts that will be asked for, and asking for them beforehand.
#pragma once

#include <fontconfig/fontconfig.h>
#include <string>
#include <vector>

struct FontWish
{
    std::vector<std::string> families; ///< the first of them that is installed is meant
    int weight = FC_WEIGHT_REGULAR;    ///< in fontconfig's scale
    std::vector<int> pixelSizes;
};

/// Asks for the list of all fonts as the toolkit does, and keeps the answer for it. Any thread.
void prepareFontList();

/// Asks how to render the wished fonts, as the toolkit does for each, and keeps the answers. Any thread.
void prepareFontAnswers(const std::vector<FontWish> &wishes);
