#include "platform/font_warm_up.h"

#include <cstring>
#include <dlfcn.h>
#include <system_error>
#include <thread>

namespace {

struct FaceOfFile
{
    const char *file = nullptr;
    int index = 0;
};

bool readFace(const FcPattern *pattern, FaceOfFile &face)
{
    FcChar8 *file = nullptr;
    if (FcPatternGetInteger(pattern, FC_INDEX, 0, &face.index) != FcResultMatch ||
        FcPatternGetString(pattern, FC_FILE, 0, &file) != FcResultMatch)
        return false;
    face.file = reinterpret_cast<const char *>(file);
    return true;
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
    FaceOfFile wanted;
    if (!set || !readFace(request, wanted))
        return nullptr;
    FcPattern *found = nullptr;
    for (int i = 0; i < set->nfont; ++i) {
        FaceOfFile face;
        if (!readFace(set->fonts[i], face) || face.index != wanted.index ||
            std::strcmp(face.file, wanted.file) != 0)
            continue;
        if (found)
            return nullptr;
        found = set->fonts[i];
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
