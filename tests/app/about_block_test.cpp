// The About texts, which wait for the settings to show them.
#include "app/about_block.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

bool isDocument(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.size() > 100;
}

} // namespace

TEST(AboutBlock, AllFiveWidgetsAreHiddenAtFirst)
{
    QWidget window;
    AboutBlock block(&window);
    window.show();
    QList<QWidget *> widgets = block.findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    widgets.append(block.findChild<QLabel *>(u"vesperSetVal"_s));
    widgets.append(&block);
    EXPECT_EQ(widgets.size(), 5);
    for (const QWidget *widget : widgets) {
        ASSERT_TRUE(widget);
        EXPECT_TRUE(widget->isHidden()) << widget->objectName().toStdString();
    }
}

TEST(AboutBlock, ItsPartsHaveTheNamesThatTheSheetKnows)
{
    QWidget window;
    const AboutBlock block(&window);
    EXPECT_TRUE(block.findChild<QTextBrowser *>(u"vesperSetBrowser"_s));
    EXPECT_TRUE(block.findChild<QLabel *>(u"vesperSetVal"_s));
}

TEST(AboutBlock, ItsButtonAsksForACheck)
{
    QWidget window;
    AboutBlock block(&window);
    auto *button = block.findChild<QPushButton *>();
    ASSERT_TRUE(button);
    EXPECT_EQ(button->text(), u"检查更新…"_s);
    EXPECT_EQ(button->toolTip(), button->text());
    int asked = 0;
    QObject::connect(&block, &AboutBlock::updateCheckRequested, &block, [&asked] { ++asked; });
    button->click();
    EXPECT_EQ(asked, 1);
}

TEST(AboutBlock, EachLanguageHasItsDocuments)
{
    struct Case
    {
        QString language, notices, references;
    };
    for (const Case &c : {Case{u"zh"_s, u"zh"_s, u"zh"_s}, Case{u"hant"_s, u"zh"_s, u"zh"_s},
                          Case{u"pl"_s, u"pl"_s, u"en"_s}, Case{u"en"_s, u"en"_s, u"en"_s},
                          Case{u"ar"_s, u"en"_s, u"en"_s}, Case{u"no such"_s, u"en"_s, u"en"_s}}) {
        EXPECT_EQ(AboutBlock::noticesPath(c.language), u":/about/notices_%1.md"_s.arg(c.notices));
        EXPECT_EQ(AboutBlock::referencesPath(c.language), u":/about/references_%1.md"_s.arg(c.references));
        EXPECT_TRUE(isDocument(AboutBlock::noticesPath(c.language))) << qPrintable(c.language);
        EXPECT_TRUE(isDocument(AboutBlock::referencesPath(c.language))) << qPrintable(c.language);
    }
}
