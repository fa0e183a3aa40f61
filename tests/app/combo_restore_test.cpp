#include "app/combo_restore.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QList<ComboItem> devices{{u"(system default)"_s, QString()},
                               {u"USB DAC  (hw:0,0)"_s, u"hw:0,0"_s},
                               {u"  Speakers on board"_s, u"hw:1,0"_s},
                               {u"hw:0,0 by another name"_s, u"usb"_s}};

TEST(ComboRestore, AnEmptyTextLeavesTheComboAlone)
{
    for (const QString &text : {QString(), u"   "_s, u"\t"_s}) {
        EXPECT_EQ(findComboItem(devices, text), -1);
    }
}

TEST(ComboRestore, DataComesBeforeText)
{
    EXPECT_EQ(findComboItem(devices, u" hw:0,0 "_s), 1);
    EXPECT_EQ(findComboItem(devices, u"usb"_s), 3);
}

TEST(ComboRestore, DoubledBlanksInEitherTextDoNotMatter)
{
    EXPECT_EQ(findComboItem(devices, u"USB  DAC (hw:0,0)"_s), 1);
    EXPECT_EQ(findComboItem(devices, u"USBDAC(hw:0,0)"_s), 1);
    EXPECT_EQ(findComboItem(devices, u"Speakers\ton  board"_s), 2);
}

TEST(ComboRestore, TheFirstWordFindsANameThatHasChanged)
{
    EXPECT_EQ(findComboItem(devices, u"USB DAC (hw:3,0)"_s), 1);
    EXPECT_EQ(findComboItem(devices, u"Speakers"_s), 2);
}

TEST(ComboRestore, TheFirstWordMindsTheCase)
{
    EXPECT_EQ(findComboItem(devices, u"usb-dac (hw:3,0)"_s), -1);
    EXPECT_EQ(findComboItem(devices, u"speakers on board"_s), -1);
}

TEST(ComboRestore, ExactTextComesBeforeAnEarlierRowWithTheSameFirstWord)
{
    const QList<ComboItem> rows{{u"USB one"_s, u"a"_s}, {u"USB two"_s, u"b"_s}};
    EXPECT_EQ(findComboItem(rows, u"USB two"_s), 1);
    EXPECT_EQ(findComboItem(rows, u"USB three"_s), 0);
}

TEST(ComboRestore, NothingIsFoundWhereNothingMatches)
{
    EXPECT_EQ(findComboItem(devices, u"gone"_s), -1);
    EXPECT_EQ(findComboItem({}, u"gone"_s), -1);
}

} // namespace
