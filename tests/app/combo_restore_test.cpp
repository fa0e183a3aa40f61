#include "app/combo_restore.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QList<ComboRow> devices{{QString(), u"(system default)"_s},
                              {u"hw:0,0"_s, u"USB DAC  (hw:0,0)"_s},
                              {u"hw:1,0"_s, u"  Speakers on board"_s},
                              {u"usb"_s, u"hw:0,0 by another name"_s}};

TEST(ComboRestore, AnEmptyTextLeavesTheComboAlone)
{
    for (const QString &text : {QString(), u"   "_s, u"\t"_s}) {
        EXPECT_EQ(findComboRow(text, devices).row, -1);
        EXPECT_FALSE(findComboRow(text, devices).missing);
    }
}

TEST(ComboRestore, DataComesBeforeText)
{
    EXPECT_EQ(findComboRow(u" hw:0,0 "_s, devices).row, 1);
    EXPECT_EQ(findComboRow(u"usb"_s, devices).row, 3);
}

TEST(ComboRestore, DoubledBlanksInEitherTextDoNotMatter)
{
    EXPECT_EQ(findComboRow(u"USB  DAC (hw:0,0)"_s, devices).row, 1);
    EXPECT_EQ(findComboRow(u"USBDAC(hw:0,0)"_s, devices).row, 1);
    EXPECT_EQ(findComboRow(u"Speakers\ton  board"_s, devices).row, 2);
}

TEST(ComboRestore, TheFirstWordFindsANameThatHasChanged)
{
    EXPECT_EQ(findComboRow(u"USB DAC (hw:3,0)"_s, devices).row, 1);
    EXPECT_EQ(findComboRow(u"Speakers"_s, devices).row, 2);
}

TEST(ComboRestore, TheFirstWordMindsTheCase)
{
    const ComboRestore restore = findComboRow(u"usb-dac (hw:3,0)"_s, devices);
    EXPECT_EQ(restore.row, -1);
    EXPECT_TRUE(restore.missing);
    EXPECT_TRUE(findComboRow(u"speakers on board"_s, devices).missing);
}

TEST(ComboRestore, ExactTextComesBeforeAnEarlierRowWithTheSameFirstWord)
{
    const QList<ComboRow> rows{{u"a"_s, u"USB one"_s}, {u"b"_s, u"USB two"_s}};
    EXPECT_EQ(findComboRow(u"USB two"_s, rows).row, 1);
    EXPECT_EQ(findComboRow(u"USB three"_s, rows).row, 0);
}

TEST(ComboRestore, NothingFoundIsSaid)
{
    EXPECT_TRUE(findComboRow(u"gone"_s, devices).missing);
    EXPECT_TRUE(findComboRow(u"gone"_s, {}).missing);
    EXPECT_EQ(comboMissingText(u" gone "_s), u"参数恢复: 找不到匹配项 gone (保持默认)"_s);
}

} // namespace
