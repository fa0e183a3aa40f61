// What is prepared for the first picture of the window is what it asks for.
#include "ui/first_fonts.h"

#include "window_fixture.h"

#include "app/startup.h"
#include "platform/font_answers.h"

namespace {

class FirstFonts : public WindowTest
{
};

} // namespace

TEST_F(FirstFonts, AreAllThatTheFirstPictureAsksFor)
{
    qputenv("KELP_LANG", "en");
    startup::setPaletteAndIdentity();
    startup::installTranslator();
    ASSERT_TRUE(FcInit());
    prepareFontAnswers(firstFonts());
    const FontQuestions before = fontQuestions();
    makeWindow();
    m_window->show();
    settle();
    m_window->grab();
    const FontQuestions after = fontQuestions();
    if (after.prepared == before.prepared && after.searched == before.searched)
        GTEST_SKIP() << "this platform of the toolkit does not ask fontconfig";
    EXPECT_GT(after.prepared, before.prepared + 5);
    // Signs that no family of ours has come from whatever font of the system has them.
    const int signsOfOthers = 2;
    EXPECT_LE(after.searched - before.searched, signsOfOthers);
}
