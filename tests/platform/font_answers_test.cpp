#include "platform/font_answers.h"
#include "platform/font_library.h"
#include "platform/font_wishes.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

namespace {

using Set = FontSet;
using Pattern = FontPattern;

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

namespace {

/// As the toolkit asks how to render a font that it has opened.
Pattern renderRequest(const FcPattern *font, const char *family, double pixels)
{
    FcChar8 *file = nullptr;
    FcPatternGetString(font, FC_FILE, 0, &file);
    return Pattern(FcPatternBuild(nullptr, FC_FAMILY, FcTypeString, family, FC_FILE, FcTypeString, file,
                                  FC_INDEX, FcTypeInteger, 0, FC_PIXEL_SIZE, FcTypeDouble, pixels, nullptr));
}

Pattern answerTo(const Pattern &request)
{
    const Pattern asked(FcPatternDuplicate(request.get()));
    FcConfigSubstitute(nullptr, asked.get(), FcMatchPattern);
    FcDefaultSubstitute(asked.get());
    FcResult result = FcResultNoMatch;
    Pattern font(FcFontMatch(nullptr, asked.get(), &result));
    EXPECT_EQ(result, FcResultMatch);
    return font;
}

/// An upright font of normal weight and width that is the only one of its family, and its family; null
/// without.
const FcPattern *anyPlainFont(std::string &family)
{
    const FcFontSet *system = FcConfigGetFonts(FcConfigGetCurrent(), FcSetSystem);
    for (int i = 0; system && i < system->nfont; ++i) {
        FcChar8 *name = nullptr;
        int index = -1;
        if (FcPatternGetString(system->fonts[i], FC_FAMILY, 0, &name) != FcResultMatch ||
            FcPatternGetInteger(system->fonts[i], FC_INDEX, 0, &index) != FcResultMatch || index != 0)
            continue;
        family = reinterpret_cast<const char *>(name);
        const FontQuestions before = fontQuestions();
        prepareFontAnswers({{{family}, FC_WEIGHT_REGULAR, {5}}});
        answerTo(renderRequest(system->fonts[i], family.c_str(), 5));
        if (fontQuestions().prepared > before.prepared)
            return system->fonts[i];
    }
    return nullptr;
}

} // namespace

// What is prepared is what fontconfig says, and is given for exactly the request it was prepared for.
TEST(FontAnswers, AreThoseOfFontconfig)
{
    std::string family;
    const FcPattern *font = anyPlainFont(family);
    if (!font)
        GTEST_SKIP() << "no plain font is installed";
    const Pattern request = renderRequest(font, family.c_str(), 17);
    const int searched = fontQuestions().searched;
    const Pattern before = answerTo(request);
    EXPECT_EQ(fontQuestions().searched, searched + 1);

    prepareFontAnswers({{{"No Such Family", family}, FC_WEIGHT_REGULAR, {17}}});
    const int prepared = fontQuestions().prepared;
    const Pattern after = answerTo(request);
    EXPECT_EQ(fontQuestions().prepared, prepared + 1);
    ASSERT_TRUE(before && after);
    EXPECT_TRUE(FcPatternEqual(before.get(), after.get()));

    // The answer is the asker's own.
    FcPatternDel(after.get(), FC_FILE);
    EXPECT_TRUE(FcPatternEqual(before.get(), answerTo(request).get()));
}

TEST(FontAnswers, AreNotGivenForAnythingElse)
{
    std::string family;
    const FcPattern *font = anyPlainFont(family);
    if (!font)
        GTEST_SKIP() << "no plain font is installed";
    prepareFontAnswers({{{family}, FC_WEIGHT_REGULAR, {19}}});
    const int prepared = fontQuestions().prepared;

    answerTo(renderRequest(font, family.c_str(), 19.5));
    answerTo(renderRequest(font, "Another Family", 19));
    const Pattern withMore = renderRequest(font, family.c_str(), 19);
    FcPatternAddBool(withMore.get(), FC_ANTIALIAS, FcFalse);
    answerTo(withMore);
    EXPECT_EQ(fontQuestions().prepared, prepared);

    // Under a configuration of its own the same request is asked anew.
    FcConfig *other = FcConfigCreate();
    const Pattern asked = renderRequest(font, family.c_str(), 19);
    FcConfigSubstitute(other, asked.get(), FcMatchPattern);
    FcResult result = FcResultNoMatch;
    const Pattern found(FcFontMatch(other, asked.get(), &result));
    EXPECT_EQ(fontQuestions().prepared, prepared);
    FcConfigDestroy(other);
}

// One thread asks, another one's answer to the same request does not get in between.
TEST(FontAnswers, AreGivenToTheThreadThatAsked)
{
    std::string family;
    const FcPattern *font = anyPlainFont(family);
    if (!font)
        GTEST_SKIP() << "no plain font is installed";
    prepareFontAnswers({{{family}, FC_WEIGHT_REGULAR, {21}}});
    const Pattern mine = renderRequest(font, family.c_str(), 21);
    const Pattern whole = answerTo(mine);
    const Pattern asked(FcPatternDuplicate(mine.get()));
    FcConfigSubstitute(nullptr, asked.get(), FcMatchPattern);
    std::thread([&] { answerTo(renderRequest(font, family.c_str(), 22)); }).join();
    FcDefaultSubstitute(asked.get());
    FcResult result = FcResultNoMatch;
    const Pattern found(FcFontMatch(nullptr, asked.get(), &result));
    EXPECT_TRUE(FcPatternEqual(found.get(), whole.get()));
}

TEST(FontAnswers, TheListIsGivenOnceAndIsFontconfigsOwn)
{
    const Pattern all(FcPatternCreate());
    FcObjectSet *objects = FcObjectSetBuild(FC_FAMILY, FC_STYLE, FC_LANG, FC_INDEX, FC_WEIGHT, FC_SLANT,
                                            FC_CHARSET, FC_FOUNDRY, FC_SCALABLE, FC_PIXEL_SIZE, FC_SPACING,
                                            FC_FILE, FC_CAPABILITY, FC_WIDTH, FC_FAMILYLANG, nullptr);
    FcObjectSet *fewer = FcObjectSetBuild(FC_FAMILY, nullptr);
    const Set before(FcFontList(nullptr, all.get(), objects));
    prepareFontList();
    const int lists = fontQuestions().lists;
    const Set other(FcFontList(nullptr, all.get(), fewer));
    EXPECT_EQ(fontQuestions().lists, lists);
    const Set first(FcFontList(nullptr, all.get(), objects));
    EXPECT_EQ(fontQuestions().lists, lists + 1);
    const Set second(FcFontList(nullptr, all.get(), objects));
    EXPECT_EQ(fontQuestions().lists, lists + 1);
    ASSERT_TRUE(before && first && second);
    ASSERT_EQ(first->nfont, before->nfont);
    ASSERT_EQ(second->nfont, before->nfont);
    for (int i = 0; i < first->nfont; ++i)
        EXPECT_TRUE(FcPatternEqual(first->fonts[i], before->fonts[i])) << i;
    FcObjectSetDestroy(objects);
    FcObjectSetDestroy(fewer);
}
