// What is prepared for the first picture of the window is what it asks for.
#include "ui/first_fonts.h"

#include "window_fixture.h"

#include "app/startup.h"
#include "platform/font_answers.h"
#include "ui/style_sheet.h"

#include <QFontDatabase>

namespace {

class FirstFonts : public WindowTest
{
};

} // namespace

TEST_F(FirstFonts, AreAllThatTheFirstPictureAsksFor)
{
    for (const QString &family : {interfaceFamilies().first(), figureFamilies().first()}) {
        if (!QFontDatabase::hasFamily(family))
            GTEST_SKIP() << qPrintable(family) << " is not installed";
    }
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
    EXPECT_EQ(after.searched, before.searched);
}
