#include "platform/font_library.h"

#include "platform/font_patterns.h"

#include <cstring>
#include <dlfcn.h>

namespace {

template<typename Function>
void find(Function *&function, const char *name)
{
    function = reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

} // namespace

const FontLibrary &fontLibrary()
{
    static const FontLibrary functions = [] {
        FontLibrary found = {};
        find(found.substitute, "FcConfigSubstitute");
        find(found.match, "FcFontMatch");
        find(found.list, "FcFontList");
        return found;
    }();
    return functions;
}

FcPattern *searchFont(FcConfig *config, FcPattern *request, FcResult *result)
{
    if (FcPattern *font = fontOfNamedFile(FcConfigGetFonts(config, FcSetSystem), request)) {
        *result = FcResultMatch;
        return FcFontRenderPrepare(config, request, font);
    }
    if (fontLibrary().match)
        return fontLibrary().match(config, request, result);
    *result = FcResultNoMatch;
    return nullptr;
}

FcPattern *fontOfNamedFile(const FcFontSet *set, const FcPattern *request)
{
    const char *file = fontText(request, FC_FILE);
    if (!set || !file)
        return nullptr;
    FcPattern *found = nullptr;
    for (int i = 0; i < set->nfont; ++i) {
        FcPattern *font = set->fonts[i];
        const char *itsFile = fontText(font, FC_FILE);
        if (!itsFile || std::strcmp(itsFile, file) != 0)
            continue;
        if (found)
            return nullptr;
        found = font;
    }
    return found && isVariableFont(found) ? nullptr : found;
}
