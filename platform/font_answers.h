/// \file
/// Questions to fontconfig that are answered before the toolkit asks them. fontconfig is asked anew for each
/// size of each font, and compares and substitutes for some 0.2 ms every time: with the first window's dozen
/// of sizes a tenth of the program's start. A question that was asked before, by another thread, is answered
/// with what fontconfig said then, as long as its configuration is the same; any other goes to fontconfig.
#pragma once

#include <fontconfig/fontconfig.h>
#include <string>
#include <vector>

/// Fonts that will be asked for.
struct FontWish
{
    std::vector<std::string> families; ///< the first of them that is installed is meant
    int weight = FC_WEIGHT_REGULAR;    ///< in fontconfig's scale
    std::vector<int> pixelSizes;
};

/// Finds fontconfig's functions. To be called before threads that prepare: while the loader is busy with the
/// toolkit's plug-ins nobody else can look for a function.
void findFontLibrary();

/// Asks for the list of all fonts as the toolkit does, and keeps the answer for it. Any thread.
void prepareFontList();

/// Asks how to render the wished fonts, as the toolkit does for each, and keeps the answers. Any thread.
void prepareFontAnswers(const std::vector<FontWish> &wishes);

/// How often a font's rendering was asked for since the program began.
struct FontQuestions
{
    int prepared = 0; ///< answered by what had been prepared
    int searched = 0; ///< answered by fontconfig
    int lists = 0;    ///< lists of all fonts that were given from what had been prepared
};
FontQuestions fontQuestions();

/// The font of the set that a request means which names a file, as the toolkit's requests do.
/// \return null where the request names none, where the set does not hold exactly one font of that file, and
/// where that font is variable: there the whole set has to be searched
FcPattern *fontOfNamedFile(const FcFontSet *set, const FcPattern *request);
