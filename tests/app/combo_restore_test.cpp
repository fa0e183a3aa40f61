#include "app/combo_restore.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QList<ComboItem> items = {{u"USB  DAC (one)"_s, u"hw:1"_s}, {u"2 channels"_s, u"2"_s}, {u"auto"_s, {}}};

} // namespace

TEST(ComboRestore, DataComesFirst)
{
    EXPECT_EQ(findComboItem(items, u"hw:1"_s), 0);
    EXPECT_EQ(findComboItem(items, u" 2 "_s), 1);
}

TEST(ComboRestore, BlanksDoNotCountInTexts)
{
    EXPECT_EQ(findComboItem(items, u"USB DAC  (one)"_s), 0);
    EXPECT_EQ(findComboItem(items, u"2  channels"_s), 1);
}

TEST(ComboRestore, TheFirstWordIsTheLastResort)
{
    EXPECT_EQ(findComboItem(items, u"USB DAC (renamed)"_s), 0);
    EXPECT_EQ(findComboItem(items, u"usb dac"_s), -1) << "case counts";
}

TEST(ComboRestore, AStoredDeviceWithDoubledBlanksFindsTheItemWithSingleOnes)
{
    const QList<ComboItem> devices = {{u"USB DAC"_s, u"hw:1"_s}, {u"USB DAC two"_s, u"hw:2"_s}};
    EXPECT_EQ(findComboItem(devices, u"USB  DAC   two"_s), 1);
    EXPECT_EQ(findComboItem(devices, u"  USB  DAC  "_s), 0);
    EXPECT_EQ(findComboItem(devices, u"USBDACtwo"_s), 1);
}

TEST(ComboRestore, DataGoesBeforeTextAndTextBeforeTheFirstWord)
{
    EXPECT_EQ(findComboItem({{u"b"_s, u"x"_s}, {u"x"_s, u"b"_s}}, u"b"_s), 1);
    EXPECT_EQ(findComboItem({{u"b c"_s, {}}, {u"b"_s, {}}}, u"b"_s), 1);
    EXPECT_EQ(findComboItem({{u"  b c"_s, {}}, {u"b d"_s, {}}}, u"b e"_s), 0) << "the first of several";
}

TEST(ComboRestore, NothingFindsNothing)
{
    EXPECT_EQ(findComboItem(items, u"  "_s), -1);
    EXPECT_EQ(findComboItem(items, u"unknown"_s), -1);
    EXPECT_EQ(findComboItem({}, u"auto"_s), -1);
}
