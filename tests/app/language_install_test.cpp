// The catalogue that is put into force, and the direction that comes with it.
#include "app/language.h"
#include "app/language_install.h"

#include <QApplication>
#include <QTranslator>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class LanguageInstalled : public testing::Test
{
protected:
    void TearDown() override
    {
        for (QTranslator *translator : qApp->findChildren<QTranslator *>())
            delete translator; // which takes it out of force
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }
    static qsizetype translators() { return qApp->findChildren<QTranslator *>().size(); }
    static QString sample() { return QCoreApplication::translate("CommandLine", "未选择设备"); }
};

} // namespace

TEST_F(LanguageInstalled, TheSourceLanguageInstallsNothing)
{
    const LanguageInstall done = installLanguage(u"zh"_s);
    EXPECT_EQ(done.code, u"zh"_s);
    EXPECT_TRUE(done.warning.isEmpty());
    EXPECT_EQ(translators(), 0);
    EXPECT_EQ(sample(), u"未选择设备"_s);
}

TEST_F(LanguageInstalled, EveryLanguageOfTheTableHasItsCatalogueAndItsDirection)
{
    for (const LanguageRow &row : languageTable()) {
        const LanguageInstall done = installLanguage(row.code);
        EXPECT_EQ(done.code, QString(row.code));
        EXPECT_TRUE(done.warning.isEmpty()) << qPrintable(done.warning);
        EXPECT_EQ(sample() == u"未选择设备"_s, row.code == "zh"_L1) << row.code.data();
        EXPECT_EQ(QGuiApplication::layoutDirection(), row.code == "ar"_L1 ? Qt::RightToLeft : Qt::LeftToRight)
            << row.code.data();
        TearDown();
    }
}

TEST_F(LanguageInstalled, ACodeWithoutACatalogueFallsBackToEnglishWithOneWarning)
{
    const LanguageInstall done = installLanguage(u"tlh"_s);
    EXPECT_EQ(done.code, u"en"_s);
    EXPECT_EQ(done.warning, u"ui-language: tlh 的翻译表 :/i18n/tlh.qm 不在资源里 -> 退回 en"_s);
    EXPECT_EQ(translators(), 1) << "the one that could not be loaded is gone";
    EXPECT_EQ(sample(), u"No device selected"_s);
}

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen"); // also where the tests are only listed
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
