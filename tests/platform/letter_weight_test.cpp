#include "platform/letter_weight.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

extern "C" int FT_Property_Set(void *library, const char *module, const char *property, const void *value);

namespace {

/// A function of the font library, which fontconfig brings along; null without it.
template<class Function>
Function *fontFunction(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_DEFAULT, name));
}

class FontLibrary
{
public:
    FontLibrary()
    {
        if (auto *open = fontFunction<int(void **)>("FT_Init_FreeType"))
            open(&m_library);
    }
    ~FontLibrary()
    {
        if (auto *close = fontFunction<int(void *)>("FT_Done_FreeType"); close && m_library)
            close(m_library);
    }
    explicit operator bool() const { return m_library; }
    /// Asks for thickened letters, as the toolkit does when it starts. \return whether they are plain all the
    /// same
    bool plainAfterAsking()
    {
        const unsigned char plain = 0;
        EXPECT_EQ(FT_Property_Set(m_library, "cff", "no-stem-darkening", &plain), 0);
        unsigned char found = 0;
        auto *get = fontFunction<int(void *, const char *, const char *, void *)>("FT_Property_Get");
        EXPECT_EQ(get(m_library, "cff", "no-stem-darkening", &found), 0);
        return found != 0;
    }

private:
    void *m_library = nullptr;
};

} // namespace

TEST(LetterWeight, OnePropertyOfOneModuleThickens)
{
    EXPECT_TRUE(thickensLetters("cff", "no-stem-darkening"));
    EXPECT_FALSE(thickensLetters("cff", "hinting-engine"));
    EXPECT_FALSE(thickensLetters("autofitter", "no-stem-darkening"));
}

TEST(LetterWeight, TheToolkitAsksInVainOnceThatIsWanted)
{
    FontLibrary library;
    if (!library)
        GTEST_SKIP() << "no font library in this process";
    EXPECT_FALSE(library.plainAfterAsking()) << "before, what is asked for is done";
    drawLettersAtTheirWeight();
    EXPECT_TRUE(library.plainAfterAsking());
}
