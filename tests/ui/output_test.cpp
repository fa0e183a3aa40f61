// What the window makes of the engine's lines, and of its device list.
#include "window_fixture.h"

#include "tests/support/settings_on_disk.h"
#include "ui/stage.h"

#include <QLabel>

using namespace Qt::StringLiterals;

class EngineOutput : public WindowTest
{
};

TEST_F(EngineOutput, ARefusalIsRememberedUntilADeviceOpens)
{
    m_deviceList = u"[1] One"_s;
    makeWindow();
    m_window->widgets().device->setCurrentIndex(1);
    DeviceState &devices = WindowInspector::devices(*m_window);
    m_window->onEngineLine(u"One: cannot get exclusive access"_s, false);
    EXPECT_EQ(devices.lastBusyDevice, u"One"_s);
    EXPECT_TRUE(logHas(u"One: cannot get exclusive access"_s)) << "and the line is in the log";
    m_window->onEngineLine(u"endpoint not found"_s, false);
    EXPECT_EQ(devices.lastMissingDevice, u"One"_s);
    m_window->onEngineLine(u"OPENED One"_s, false);
    EXPECT_TRUE(devices.lastBusyDevice.isEmpty());
    EXPECT_TRUE(devices.lastMissingDevice.isEmpty());
}

TEST_F(EngineOutput, TheSourceIsShownInWords)
{
    makeWindow();
    m_window->onEngineLine(u"SRC 2822400 1 2 dsd 1 61.25"_s, false);
    const QString shown = m_window->widgets().stage->audioLine();
    EXPECT_TRUE(shown.contains(u"DSD64"_s)) << qPrintable(shown);
    EXPECT_TRUE(shown.contains(u"DST"_s)) << qPrintable(shown);
}

TEST_F(EngineOutput, TelemetryDoesNotFloodTheLog)
{
    makeWindow();
    takeLog();
    for (int i = 0; i < 50; ++i)
        m_window->onEngineLine(u"LVL -3 -3"_s, false);
    EXPECT_EQ(takeLog().count(u'\n'), 2) << "the first and the tenth";
}

TEST_F(EngineOutput, AWarningReachesTheStatusLine)
{
    makeWindow();
    m_window->onEngineLine(u"WARN underrun"_s, false);
    EXPECT_EQ(m_window->widgets().message->text(), u"⚠ WARN underrun"_s);
}

TEST_F(EngineOutput, RememberedDevicesAreChosenAgainEvenWhenTheyAreGone)
{
    SettingsOnDisk().setValue(u"devices"_s, QStringList{u"Two"_s, u"Gone"_s});
    m_deviceList = u"[default] One\n[2] Two"_s;
    makeWindow();
    EXPECT_EQ(m_window->currentDeviceName(), u"Two"_s);
    EXPECT_EQ(m_window->engineControls().channelDevices.first()->currentData().toString(), u"Gone"_s);
    EXPECT_EQ(m_window->widgets().device->itemText(1), u"One  (默认)"_s);
    EXPECT_EQ(m_window->engineControls().channelDevices.first()->itemText(1), u"One"_s);
}
