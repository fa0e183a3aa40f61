#include "platform/font_answers.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <dlfcn.h>
#include <memory>
#include <mutex>
#include <utility>

namespace {

struct PatternDeleter
{
    void operator()(FcPattern *pattern) const { FcPatternDestroy(pattern); }
};
using Pattern = std::unique_ptr<FcPattern, PatternDeleter>;

struct SetDeleter
{
    void operator()(FcFontSet *set) const { FcFontSetDestroy(set); }
};

struct ObjectsDeleter
{
    void operator()(FcObjectSet *objects) const { FcObjectSetDestroy(objects); }
};
using Objects = std::unique_ptr<FcObjectSet, ObjectsDeleter>;

using FontSet = std::unique_ptr<FcFontSet, SetDeleter>;

/// A request as it was before anything was put in for it, and the font that fontconfig found.
struct Answer
{
    const FcConfig *config = nullptr; ///< that was in force; another one may know better
    Pattern request;
    Pattern font;
};

struct Prepared
{
    std::mutex lock;
    std::vector<Answer> answers; ///< only ever added to: their fonts are used outside the lock
    const FcConfig *listedConfig = nullptr;
    FontSet list; ///< given away once
};

Prepared &prepared()
{
    // Never destroyed: threads of the toolkit may ask until the very end.
    static auto *const all = new Prepared;
    return *all;
}

std::atomic<int> preparedCount = 0;
std::atomic<int> searchedCount = 0;
std::atomic<int> listCount = 0;

/// The request of this thread whose substitution was left out, and the answer that is there for it.
thread_local const FcPattern *answered = nullptr;
thread_local const FcPattern *answer = nullptr;

/// fontconfig's own functions of the names that stand below.
struct Library
{
    FcBool (*substitute)(FcConfig *, FcPattern *, FcMatchKind);
    FcPattern *(*match)(FcConfig *, FcPattern *, FcResult *);
    FcFontSet *(*list)(FcConfig *, FcPattern *, FcObjectSet *);
};

template<typename Function>
void find(Function *&function, const char *name)
{
    function = reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

const Library &library()
{
    static const Library functions = [] {
        Library found = {};
        find(found.substitute, "FcConfigSubstitute");
        find(found.match, "FcFontMatch");
        find(found.list, "FcFontList");
        return found;
    }();
    return functions;
}

const char *textOf(const FcPattern *pattern, const char *object, int index = 0)
{
    FcChar8 *text = nullptr;
    return FcPatternGetString(pattern, object, index, &text) == FcResultMatch
               ? reinterpret_cast<const char *>(text)
               : nullptr;
}

int numberOf(const FcPattern *pattern, const char *object, int otherwise)
{
    int number = 0;
    return FcPatternGetInteger(pattern, object, 0, &number) == FcResultMatch ? number : otherwise;
}

bool isVariable(const FcPattern *font)
{
    FcBool variable = FcFalse;
    return FcPatternGetBool(font, FC_VARIABLE, 0, &variable) == FcResultMatch && variable;
}

bool hasFamily(const FcPattern *font, const std::string &family)
{
    for (int i = 0; const char *name = textOf(font, FC_FAMILY, i); ++i) {
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
        if (!hasFamily(font, family) || numberOf(font, FC_WEIGHT, -1) != weight ||
            numberOf(font, FC_SLANT, FC_SLANT_ROMAN) != FC_SLANT_ROMAN ||
            numberOf(font, FC_WIDTH, FC_WIDTH_NORMAL) != FC_WIDTH_NORMAL || isVariable(font))
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
Pattern renderRequest(const FcPattern *face, const std::string &family, int pixels)
{
    return Pattern(FcPatternBuild(nullptr, FC_FAMILY, FcTypeString, family.c_str(), FC_FILE, FcTypeString,
                                  textOf(face, FC_FILE), FC_INDEX, FcTypeInteger, numberOf(face, FC_INDEX, 0),
                                  FC_PIXEL_SIZE, FcTypeDouble, static_cast<double>(pixels), nullptr));
}

/// The whole search, or its answer without searching.
FcPattern *matchedFont(FcConfig *config, FcPattern *request, FcResult *result)
{
    if (FcPattern *font = fontOfNamedFile(FcConfigGetFonts(config, FcSetSystem), request)) {
        *result = FcResultMatch;
        return FcFontRenderPrepare(config, request, font);
    }
    if (library().match)
        return library().match(config, request, result);
    *result = FcResultNoMatch;
    return nullptr;
}

void prepareAnswer(FcConfig *config, Pattern request)
{
    const Pattern asked(FcPatternDuplicate(request.get()));
    if (!asked || !library().substitute || !library().substitute(config, asked.get(), FcMatchPattern))
        return;
    FcDefaultSubstitute(asked.get());
    FcResult result = FcResultNoMatch;
    Pattern font(matchedFont(config, asked.get(), &result));
    if (!font || result != FcResultMatch)
        return;
    const std::lock_guard guard(prepared().lock);
    prepared().answers.push_back({config, std::move(request), std::move(font)});
}

/// What was prepared for exactly this request, under the configuration that is in force; null without.
const FcPattern *preparedFont(FcConfig *config, const FcPattern *request)
{
    const FcConfig *inForce = config ? config : FcConfigGetCurrent();
    const std::lock_guard guard(prepared().lock);
    const std::vector<Answer> &answers = prepared().answers;
    const auto known = std::find_if(answers.begin(), answers.end(), [&](const Answer &one) {
        return one.config == inForce && FcPatternEqual(one.request.get(), request);
    });
    return known == answers.end() ? nullptr : known->font.get();
}

/// What the toolkit wants to know of every font, when it makes its own list.
Objects listedObjects()
{
    return Objects(FcObjectSetBuild(FC_INDEX, FC_LANG, FC_STYLE, FC_FAMILY, FC_WEIGHT, FC_SLANT, FC_CHARSET,
                                    FC_FOUNDRY, FC_SCALABLE, FC_PIXEL_SIZE, FC_SPACING, FC_FILE,
                                    FC_CAPABILITY, FC_WIDTH, FC_FAMILYLANG, nullptr));
}

bool sameObjects(const FcObjectSet &a, const FcObjectSet &b)
{
    const auto contains = [&](const char *object) {
        return std::any_of(b.objects, b.objects + b.nobject,
                           [&](const char *other) { return std::strcmp(object, other) == 0; });
    };
    return a.nobject == b.nobject && std::all_of(a.objects, a.objects + a.nobject, contains);
}

FcFontSet *takePreparedList(FcConfig *config, const FcPattern *pattern, const FcObjectSet *objects)
{
    const FcConfig *inForce = config ? config : FcConfigGetCurrent();
    const std::lock_guard guard(prepared().lock);
    if (!prepared().list || !pattern || !objects || FcPatternObjectCount(pattern) != 0 ||
        prepared().listedConfig != inForce || !sameObjects(*listedObjects(), *objects))
        return nullptr;
    return prepared().list.release();
}

} // namespace

void findFontLibrary()
{
    library();
}

void prepareFontList()
{
    FcConfig *const config = FcConfigGetCurrent();
    const Pattern all(FcPatternCreate());
    const Objects objects = listedObjects();
    if (!config || !all || !objects || !library().list)
        return;
    FontSet list(library().list(config, all.get(), objects.get()));
    const std::lock_guard guard(prepared().lock);
    prepared().listedConfig = config;
    prepared().list = std::move(list);
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
        if (!face || !textOf(face, FC_FILE))
            continue;
        for (const int pixels : wish.pixelSizes)
            prepareAnswer(config, renderRequest(face, *family, pixels));
    }
}

FontQuestions fontQuestions()
{
    return {preparedCount, searchedCount, listCount};
}

FcPattern *fontOfNamedFile(const FcFontSet *set, const FcPattern *request)
{
    const char *file = textOf(request, FC_FILE);
    if (!set || !file)
        return nullptr;
    FcPattern *found = nullptr;
    for (int i = 0; i < set->nfont; ++i) {
        FcPattern *font = set->fonts[i];
        const char *itsFile = textOf(font, FC_FILE);
        if (!itsFile || std::strcmp(itsFile, file) != 0)
            continue;
        if (found)
            return nullptr;
        found = font;
    }
    return found && isVariable(found) ? nullptr : found;
}

// The three below stand before fontconfig's own functions for the whole program.

/// Left out for a request whose answer is there: it puts in what only the search needs, and the search that
/// follows on the same thread is answered without it.
extern "C" __attribute__((visibility("default"))) FcBool
FcConfigSubstitute(FcConfig *config, FcPattern *pattern, FcMatchKind kind)
{
    if (pattern && kind == FcMatchPattern) {
        answer = preparedFont(config, pattern);
        answered = answer ? pattern : nullptr;
        if (answered)
            return FcTrue;
    }
    return library().substitute ? library().substitute(config, pattern, kind) : FcFalse;
}

/// For each size of a font the toolkit asks how to render it, with the font's file in the request; fontconfig
/// compares the request with every font of the system, and then takes that file, which outranks all else.
/// Where no answer was prepared, the file is looked up here, and the rest is fontconfig's: the same answer.
extern "C" __attribute__((visibility("default"))) FcPattern *FcFontMatch(FcConfig *config, FcPattern *request,
                                                                         FcResult *result)
{
    if (request && std::exchange(answered, nullptr) == request) {
        ++preparedCount;
        *result = FcResultMatch;
        return FcPatternDuplicate(answer);
    }
    ++searchedCount;
    return matchedFont(config, request, result);
}

extern "C" __attribute__((visibility("default"))) FcFontSet *FcFontList(FcConfig *config, FcPattern *pattern,
                                                                        FcObjectSet *objects)
{
    if (FcFontSet *list = takePreparedList(config, pattern, objects)) {
        ++listCount;
        return list;
    }
    return library().list ? library().list(config, pattern, objects) : nullptr;
}
