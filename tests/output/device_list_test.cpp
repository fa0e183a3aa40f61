#include "output/device_list.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

ListedDevice only(const QString &line)
{
    const QList<ListedDevice> devices = parseDeviceList(line);
    return devices.size() == 1 ? devices.first() : ListedDevice{u"(not one device)"_s, {}, false};
}

} // namespace

TEST(DeviceList, BracketedNamesLoseTheirDopTail)
{
    EXPECT_EQ(only(u"[1] Speakers  (DoP=no)"_s), (ListedDevice{u"Speakers"_s, u"Speakers"_s, false}));
    EXPECT_EQ(only(u"[default] Speakers  (DoP=no)"_s), (ListedDevice{u"Speakers"_s, u"Speakers"_s, true}));
    EXPECT_EQ(only(u"[2] Front  (left)"_s).id, u"Front  (left)"_s);
}

TEST(DeviceList, HardwareLinesNameTheirCard)
{
    EXPECT_EQ(only(u"hw:2,0\tUSB DAC"_s), (ListedDevice{u"hw:2,0"_s, u"hw:2,0 (USB DAC)"_s, false}));
    EXPECT_EQ(only(u"plughw:0,0"_s), (ListedDevice{u"plughw:0,0"_s, u"plughw:0,0"_s, false}));
    EXPECT_EQ(only(u"hw:1,0\t "_s).label, u"hw:1,0"_s);
}

TEST(DeviceList, ThreeFieldsGiveDescriptionAndName)
{
    EXPECT_EQ(only(u"id7\tName\tA\tB"_s), (ListedDevice{u"id7"_s, u"A B (Name)"_s, false}));
    EXPECT_EQ(only(u"id7\tName\t\tx"_s).label, u"x (Name)"_s);
}

TEST(DeviceList, TheSoundServerSaysWhatItIs)
{
    const ListedDevice server = only(u"pulse"_s);
    EXPECT_EQ(server.id, u"pulse"_s);
    EXPECT_TRUE(server.label.startsWith(u"pulse"_s));
    EXPECT_GT(server.label.size(), 5);
    EXPECT_EQ(only(u"pulse:sink\tx"_s).label, u"pulse:sink"_s);
}

TEST(DeviceList, OtherLinesAreSkipped)
{
    EXPECT_TRUE(parseDeviceList(QString()).isEmpty());
    EXPECT_TRUE(parseDeviceList(u"\n \n=== Devices ===\nfoo\nname\tfield"_s).isEmpty());
    EXPECT_TRUE(parseDeviceList(u"[1]no blank"_s).isEmpty());
    EXPECT_TRUE(parseDeviceList(u"[1] === title"_s).isEmpty());
    EXPECT_TRUE(parseDeviceList(u"[1]  "_s).isEmpty());
}

TEST(DeviceList, DuplicatesVanishAndTheOrderStays)
{
    const QList<ListedDevice> devices = parseDeviceList(u"[1] B\r\n[default] A\n[3] B\nhw:0,0\tC"_s);
    ASSERT_EQ(devices.size(), 3);
    EXPECT_EQ(devices.at(0).id, u"B"_s);
    EXPECT_EQ(devices.at(1), (ListedDevice{u"A"_s, u"A"_s, true}));
    EXPECT_EQ(rowOfDevice(devices, u"hw:0,0"_s), 2);
    EXPECT_EQ(rowOfDevice(devices, u"HW:0,0"_s), -1) << "ids are compared exactly";
}

TEST(DeviceList, AFloodOfDevicesIsCut)
{
    QString text;
    for (int i = 0; i < 10000; ++i)
        text += u"[x] device %1\n"_s.arg(i);
    EXPECT_EQ(parseDeviceList(text).size(), 4096);
}
