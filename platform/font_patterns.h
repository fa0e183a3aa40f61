/// \file
/// fontconfig's objects, owned; and what stands in them.
#pragma once

#include <fontconfig/fontconfig.h>
#include <memory>

struct FontPatternDeleter
{
    void operator()(FcPattern *pattern) const { FcPatternDestroy(pattern); }
};
using FontPattern = std::unique_ptr<FcPattern, FontPatternDeleter>;

struct FontSetDeleter
{
    void operator()(FcFontSet *set) const { FcFontSetDestroy(set); }
};
using FontSet = std::unique_ptr<FcFontSet, FontSetDeleter>;

struct FontObjectsDeleter
{
    void operator()(FcObjectSet *objects) const { FcObjectSetDestroy(objects); }
};
using FontObjects = std::unique_ptr<FcObjectSet, FontObjectsDeleter>;

/// The pattern's; null where there is no such text.
inline const char *fontText(const FcPattern *pattern, const char *object, int index = 0)
{
    FcChar8 *text = nullptr;
    return FcPatternGetString(pattern, object, index, &text) == FcResultMatch
               ? reinterpret_cast<const char *>(text)
               : nullptr;
}

inline int fontNumber(const FcPattern *pattern, const char *object, int otherwise)
{
    int number = 0;
    return FcPatternGetInteger(pattern, object, 0, &number) == FcResultMatch ? number : otherwise;
}

/// Whether the font stands for a range of weights or widths.
inline bool isVariableFont(const FcPattern *font)
{
    FcBool variable = FcFalse;
    return FcPatternGetBool(font, FC_VARIABLE, 0, &variable) == FcResultMatch && variable;
}
