/// \file
/// fontconfig's own search, for the places where the program stands before it (font_answers.h).
#pragma once

#include <fontconfig/fontconfig.h>

/// fontconfig's own functions of these names; null where the library lacks one.
struct FontLibrary
{
    FcBool (*substitute)(FcConfig *, FcPattern *, FcMatchKind);
    FcPattern *(*match)(FcConfig *, FcPattern *, FcResult *);
    FcFontSet *(*list)(FcConfig *, FcPattern *, FcObjectSet *);
};

/// Found at the first call. Any thread; but while the loader is busy with the toolkit's plug-ins nobody can
/// look for a function, so call it once before there are threads that need it.
const FontLibrary &fontLibrary();

/// What fontconfig finds for a request that has been substituted, without its search where the request names
/// a file. \return the caller's; null with the result set where nothing is found
FcPattern *searchFont(FcConfig *config, FcPattern *request, FcResult *result);

/// The font of the set that a request means which names a file, as the toolkit's requests do.
/// \return null where the request names none, where the set does not hold exactly one font of that file, and
/// where that font is variable: there the whole set has to be searched
FcPattern *fontOfNamedFile(const FcFontSet *set, const FcPattern *request);
