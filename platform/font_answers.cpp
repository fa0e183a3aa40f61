#include "platform/font_answers.h"

#include "platform/font_library.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <mutex>
#include <utility>
#include <vector>

namespace {

/// A request as it was before anything was put in for it, and the font that fontconfig found.
struct Answer
{
    const FcConfig *config = nullptr; ///< that was in force; another one may know better
    FontPattern request;
    FontPattern font;
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
        prepared().listedConfig != inForce || !sameObjects(*listedFontObjects(), *objects))
        return nullptr;
    return prepared().list.release();
}

} // namespace

void keepFontAnswer(const FcConfig *config, FontPattern request, FontPattern font)
{
    const std::lock_guard guard(prepared().lock);
    prepared().answers.push_back({config, std::move(request), std::move(font)});
}

void keepFontList(const FcConfig *config, FontSet list)
{
    const std::lock_guard guard(prepared().lock);
    prepared().listedConfig = config;
    prepared().list = std::move(list);
}

FontObjects listedFontObjects()
{
    return FontObjects(FcObjectSetBuild(FC_INDEX, FC_LANG, FC_STYLE, FC_FAMILY, FC_WEIGHT, FC_SLANT,
                                        FC_CHARSET, FC_FOUNDRY, FC_SCALABLE, FC_PIXEL_SIZE, FC_SPACING,
                                        FC_FILE, FC_CAPABILITY, FC_WIDTH, FC_FAMILYLANG, nullptr));
}

FontQuestions fontQuestions()
{
    return {preparedCount, searchedCount, listCount};
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
    return fontLibrary().substitute ? fontLibrary().substitute(config, pattern, kind) : FcFalse;
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
    return searchFont(config, request, result);
}

extern "C" __attribute__((visibility("default"))) FcFontSet *FcFontList(FcConfig *config, FcPattern *pattern,
                                                                        FcObjectSet *objects)
{
    if (FcFontSet *list = takePreparedList(config, pattern, objects)) {
        ++listCount;
        return list;
    }
    return fontLibrary().list ? fontLibrary().list(config, pattern, objects) : nullptr;
}
