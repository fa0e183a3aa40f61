#include "platform/font_warm_up.h"

#include <cstring>
#include <dlfcn.h>
#include <system_error>
#include <thread>

namespace {

const char *fileOf(const FcPattern *pattern)
{
    FcChar8 *file = nullptr;
    return FcPatternGetString(pattern, FC_FILE, 0, &file) == FcResultMatch
               ? reinterpret_cast<const char *>(file)
               : nullptr;
}

} // namespace

void warmUpFonts()
{
    try {
        // The configuration is the library's own, guarded by itself, and stays until the process ends.
        std::thread([] { FcInit(); }).detach();
    } catch (const std::system_error &) {
        // The toolkit then reads it later.
    }
}

FcPattern *fontOfNamedFile(const FcFontSet *set, const FcPattern *request)
{
    const char *file = fileOf(request);
    if (!set || !file)
        return nullptr;
    FcPattern *found = nullptr;
    for (int i = 0; i < set->nfont; ++i) {
        FcPattern *font = set->fonts[i];
        const char *itsFile = fileOf(font);
        if (!itsFile || std::strcmp(itsFile, file) != 0)
            continue;
        if (found)
            return nullptr;
        found = font;
    }
    FcBool variable = FcFalse;
    if (found && FcPatternGetBool(found, FC_VARIABLE, 0, &variable) == FcResultMatch && variable)
        return nullptr;
    return found;
}

/// Stands before fontconfig's own function for the whole program. For each size of a font the toolkit asks
/// how to render it, with the font's file in the request; fontconfig compares the request with every font of
/// the system, and then takes that file, which outranks all else. With a few dozen sizes that was a tenth of
/// the program's start. Here the file is looked up, and the rest is fontconfig's: the same answer.
extern "C" __attribute__((visibility("default"))) FcPattern *FcFontMatch(FcConfig *config, FcPattern *request,
                                                                         FcResult *result)
{
    if (FcPattern *font = fontOfNamedFile(FcConfigGetFonts(config, FcSetSystem), request)) {
        *result = FcResultMatch;
        return FcFontRenderPrepare(config, request, font);
    }
    using Match = FcPattern *(FcConfig *, FcPattern *, FcResult *);
    static const auto search = reinterpret_cast<Match *>(dlsym(RTLD_NEXT, "FcFontMatch"));
    if (search)
        return search(config, request, result);
    *result = FcResultNoMatch;
    return nullptr;
}
