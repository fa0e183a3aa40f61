/// \file
/// Questions to fontconfig that are answered before the toolkit asks them. fontconfig is asked anew for each
/// size of each font, and compares and substitutes for some 0.2 ms every time: with the first window's dozen
/// of sizes a tenth of the program's start. A question that was asked before, by another thread, is answered
/// with what fontconfig said then, as long as its configuration is the same; any other goes to fontconfig.
#pragma once

#include "platform/font_patterns.h"

/// Keeps what was found for a request of the toolkit's. Any thread.
/// \param request as the toolkit makes it, before substitutions
void keepFontAnswer(const FcConfig *config, FontPattern request, FontPattern font);

/// Keeps the list of all fonts, to be given away once. Any thread.
void keepFontList(const FcConfig *config, FontSet list);

/// What the toolkit wants to know of every font, when it makes its own list.
FontObjects listedFontObjects();

/// How often a font's rendering was asked for since the program began.
struct FontQuestions
{
    int prepared = 0; ///< answered by what had been prepared
    int searched = 0; ///< answered by fontconfig
    int lists = 0;    ///< lists of all fonts that were given from what had been prepared
};
FontQuestions fontQuestions();
