#include "platform/font_wishes.h"

#include "platform/font_answers.h"
#include "platform/font_library.h"

#include <algorithm>
#include <utility>

namespace {

bool hasFamily(const FcPattern *font, const std::string &family)
{
    for (int i = 0; const char *name = fontText(font, FC_FAMILY, i); ++i) {
        if (family == name)
            return true;
    }
    return false;
}

/// The upright face of that weight; null where there is none, or more than one could be meant.
const FcPattern *faceOf(const FcFontSet &set, const std::string &family, int weight)
{
    const FcPattern *found = nullptr;
    for (int i = 0; i < set.nfont; ++i) {
        const FcPattern *font = set.fonts[i];
        if (!hasFamily(font, family) || fontNumber(font, FC_WEIGHT, -1) != weight ||
            fontNumber(font, FC_SLANT, FC_SLANT_ROMAN) != FC_SLANT_ROMAN ||
            fontNumber(font, FC_WIDTH, FC_WIDTH_NORMAL) != FC_WIDTH_NORMAL || isVariableFont(font))
            continue;
        if (found)
            return nullptr;
        found = font;
    }
    return found;
}

bool isInstalled(const FcFontSet &set, const std::string &family)
{
    return std::any_of(set.fonts, set.fonts + set.nfont,
                       [&](const FcPattern *font) { return hasFamily(font, family); });
}

/// As the toolkit asks how to render a font that it has opened.
FontPattern renderRequest(const FcPattern *face, const std::string &family, int pixels)
{
    return FontPattern(FcPatternBuild(nullptr, FC_FAMILY, FcTypeString, family.c_str(), FC_FILE, FcTypeString,
                                      fontText(face, FC_FILE), FC_INDEX, FcTypeInteger,
                                      fontNumber(face, FC_INDEX, 0), FC_PIXEL_SIZE, FcTypeDouble,
                                      static_cast<double>(pixels), nullptr));
}

void prepareAnswer(FcConfig *config, FontPattern request)
{
    const FontPattern asked(FcPatternDuplicate(request.get()));
    if (!asked || !fontLibrary().substitute || !fontLibrary().substitute(config, asked.get(), FcMatchPattern))
        return;
    FcDefaultSubstitute(asked.get());
    FcResult result = FcResultNoMatch;
    FontPattern font(searchFont(config, asked.get(), &result));
    if (!font || result != FcResultMatch)
        return;
    keepFontAnswer(config, std::move(request), std::move(font));
}

} // namespace

void prepareFontList()
{
    FcConfig *const config = FcConfigGetCurrent();
    const FontPattern all(FcPatternCreate());
    const FontObjects objects = listedFontObjects();
    if (!config || !all || !objects || !fontLibrary().list)
        return;
    keepFontList(config, FontSet(fontLibrary().list(config, all.get(), objects.get())));
}

void prepareFontAnswers(const std::vector<FontWish> &wishes)
{
    FcConfig *const config = FcConfigGetCurrent();
    const FcFontSet *set = config ? FcConfigGetFonts(config, FcSetSystem) : nullptr;
    if (!set)
        return;
    for (const FontWish &wish : wishes) {
        const auto family = std::find_if(wish.families.begin(), wish.families.end(),
                                         [&](const std::string &name) { return isInstalled(*set, name); });
        const FcPattern *face = family == wish.families.end() ? nullptr : faceOf(*set, *family, wish.weight);
        if (!face || !fontText(face, FC_FILE))
            continue;
        for (const int pixels : wish.pixelSizes)
            prepareAnswer(config, renderRequest(face, *family, pixels));
    }
}
