#include "platform/font_warm_up.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

struct SetDeleter
{
    void operator()(FcFontSet *set) const { FcFontSetDestroy(set); }
};
struct PatternDeleter
{
    void operator()(FcPattern *pattern) const { FcPatternDestroy(pattern); }
};
using Set = std::unique_ptr<FcFontSet, SetDeleter>;
using Pattern = std::unique_ptr<FcPattern, PatternDeleter>;

FcPattern *addFont(const Set &set, const char *file, int index = 0, bool variable = false)
{
    FcPattern *font = FcPatternBuild(nullptr, FC_FILE, FcTypeString, file, FC_INDEX, FcTypeInteger, index,
                                     FC_VARIABLE, FcTypeBool, variable ? FcTrue : FcFalse, nullptr);
    FcFontSetAdd(set.get(), font);
    return font;
}

Pattern request(const char *file)
{
    return Pattern(FcPatternBuild(nullptr, FC_FAMILY, FcTypeString, "Anything", FC_FILE, FcTypeString, file,
                                  FC_INDEX, FcTypeInteger, 0, nullptr));
}

} // namespace

TEST(FontOfNamedFile, IsTheFontOfThatFile)
{
    const Set set(FcFontSetCreate());
    FcPattern *first = addFont(set, "/fonts/a.otf");
    FcPattern *second = addFont(set, "/fonts/b.otf");
    EXPECT_EQ(fontOfNamedFile(set.get(), request("/fonts/a.otf").get()), first);
    EXPECT_EQ(fontOfNamedFile(set.get(), request("/fonts/b.otf").get()), second);
}

TEST(FontOfNamedFile, IsNoneWhereTheSetHasToBeSearched)
{
    const Set set(FcFontSetCreate());
    addFont(set, "/fonts/collection.ttc", 0);
    addFont(set, "/fonts/collection.ttc", 1);
    addFont(set, "/fonts/variable.ttf", 0, true);
    EXPECT_EQ(fontOfNamedFile(set.get(), request("/fonts/collection.ttc").get()), nullptr);
    EXPECT_EQ(fontOfNamedFile(set.get(), request("/fonts/variable.ttf").get()), nullptr);
    EXPECT_EQ(fontOfNamedFile(set.get(), request("/fonts/missing.otf").get()), nullptr);
    const Pattern nameless(FcPatternBuild(nullptr, FC_FAMILY, FcTypeString, "Anything", nullptr));
    EXPECT_EQ(fontOfNamedFile(set.get(), nameless.get()), nullptr);
    EXPECT_EQ(fontOfNamedFile(nullptr, request("/fonts/a.otf").get()), nullptr);
}

// What a whole search gives for a request with a file is rendered from that very file, with the request's
// size.
TEST(FontMatch, AnswersAsTheSearchWould)
{
    const FcFontSet *system = FcConfigGetFonts(nullptr, FcSetSystem);
    if (!system || system->nfont == 0)
        GTEST_SKIP() << "no fonts are installed";
    for (int i = 0; i < system->nfont; ++i) {
        FcChar8 *file = nullptr;
        int index = 0;
        ASSERT_EQ(FcPatternGetString(system->fonts[i], FC_FILE, 0, &file), FcResultMatch);
        ASSERT_EQ(FcPatternGetInteger(system->fonts[i], FC_INDEX, 0, &index), FcResultMatch);
        const Pattern wanted(FcPatternBuild(nullptr, FC_FAMILY, FcTypeString, "Inter", FC_FILE, FcTypeString,
                                            file, FC_INDEX, FcTypeInteger, index, FC_PIXEL_SIZE, FcTypeDouble,
                                            12.0, nullptr));
        FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
        FcDefaultSubstitute(wanted.get());
        FcResult result = FcResultNoMatch;
        const Pattern quick(FcFontMatch(nullptr, wanted.get(), &result));
        FcFontSet *sets[] = {FcConfigGetFonts(nullptr, FcSetSystem)};
        const Pattern searched(FcFontSetMatch(nullptr, sets, 1, wanted.get(), &result));
        ASSERT_TRUE(quick && searched);
        EXPECT_TRUE(FcPatternEqual(quick.get(), searched.get())) << file;
    }
}
