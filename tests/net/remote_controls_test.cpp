#include "net/remote_controls.h"

#include <QCheckBox>
#include <QLabel>
#include <QSignalSpy>
#include <QSpinBox>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(RemoteSwitch, TellsWhatTheUserDoesAndNotWhatIsShown)
{
    RemoteControls controls;
    QSignalSpy told(&controls, &RemoteControls::switched);
    controls.showSwitch(true);
    EXPECT_TRUE(controls.enable->isChecked());
    EXPECT_EQ(told.count(), 0);
    controls.enable->click();
    ASSERT_EQ(told.count(), 1);
    EXPECT_FALSE(told.first().first().toBool());
}

TEST(RemoteSwitch, AsksForTheAddressesWhileTheyAreInView)
{
    RemoteControls controls;
    QSignalSpy wanted(&controls, &RemoteControls::addressesWanted);
    controls.show();
    EXPECT_EQ(wanted.count(), 1) << "at once";
    EXPECT_TRUE(wanted.wait(20'000)) << "and again";
    controls.hide();
    controls.show();
    EXPECT_EQ(wanted.count(), 3);
}

TEST(RemoteSwitch, ANumberThatIsNoPortStandsForTheUsualOne)
{
    RemoteControls controls;
    for (const int port : {1, 8080, 65535}) {
        controls.showPort(port);
        EXPECT_EQ(controls.port->value(), port);
    }
    for (const int port : {0, -5, 65536, 2147483647}) {
        controls.showPort(port);
        EXPECT_EQ(controls.port->value(), 7788);
    }
}

TEST(RemoteSwitch, ShowsTheAddressesOneALine)
{
    RemoteControls controls;
    const QString off = controls.addresses->text();
    controls.showListening({u"http://a/"_s, u"http://b/"_s});
    EXPECT_TRUE(controls.addresses->text().endsWith(u"\nhttp://a/\nhttp://b/"_s));
    controls.showListening({});
    const QString lonely = controls.addresses->text();
    EXPECT_NE(lonely, off);
    EXPECT_FALSE(lonely.contains(u"http"_s));
    controls.showOff();
    EXPECT_EQ(controls.addresses->text(), off);
}
