// The settings while music plays: nothing waits for the file, and nothing is lost.
#include "playback_fixture.h"

#include "tests/support/settings_on_disk.h"
#include "ui/dock_bar.h"

#include <QDir>
#include <QFile>
#include <QLockFile>

using namespace Qt::StringLiterals;

class SettingsWait : public BothKinds
{
protected:
    void SetUp() override
    {
        BothKinds::SetUp();
        SettingsOnDisk().sync(); // what the window's opening wrote is on the disk
    }
    static QString file() { return userSettingsFile().path(); }
    static QByteArray onDisk(const QByteArray &name)
    {
        QFile bytes(file());
        if (!bytes.open(QIODevice::ReadOnly))
            return {};
        for (const QByteArray &line : bytes.readAll().split('\n')) {
            if (line.startsWith(name + '='))
                return line.mid(name.size() + 1).trimmed();
        }
        return {};
    }
    bool comesToDisk(const QByteArray &name, const QByteArray &value)
    {
        return eventually([&] { return onDisk(name) == value; });
    }
};
INSTANTIATE_TEST_SUITE_P(Kinds, SettingsWait, testing::Bool(), kindName);

TEST_P(SettingsWait, NothingThatPlaysWaitsForTheFile)
{
    const QByteArray secondsBefore = onDisk("resume_sec");
    const QByteArray orderBefore = onDisk("order_axis");
    QLockFile held(file() + u".lock"_s);
    ASSERT_TRUE(held.lock()) << "whoever writes the file now waits until it is let go";
    m_window->startPlayback(0);
    at(5.);
    at(10.);
    EXPECT_EQ(readUserSetting(settings::resumeSec), 10.);
    m_window->togglePause();
    m_window->togglePause();
    m_window->stepRow(1);
    at(5.);
    EXPECT_EQ(readUserSetting(settings::resumePath), fileAt(1));
    for (int volume = 100; volume >= 40; --volume)
        ui().dock->volume->setValue(volume);
    m_window->setSpeed(1.25);
    m_window->cycleOrder();
    m_window->cycleOrder();
    m_window->cycleOrder();
    m_window->saveParams();
    say(u"DONE b.wav"_s);
    EXPECT_TRUE(readUserSetting(settings::resumePath).isEmpty());
    at(7.);
    m_window->stopPlayback();
    settle();
    EXPECT_EQ(onDisk("resume_sec"), secondsBefore) << "the file was not held";
    EXPECT_EQ(onDisk("order_axis"), orderBefore);
    const QString last = fileAt(start().currentRow);
    held.unlock();
    m_window.reset();
    EXPECT_EQ(onDisk("resume_path"), last.toUtf8());
    EXPECT_EQ(onDisk("resume_sec"), "7");
    EXPECT_EQ(onDisk("vol"), "40");
    EXPECT_EQ(onDisk("speed_ratio"), "1.25");
    EXPECT_EQ(onDisk("order_axis"), "1");
}

TEST_P(SettingsWait, APeriodicSaveComesToTheDiskByItself)
{
    m_window->startPlayback(0);
    at(5.);
    EXPECT_TRUE(comesToDisk("resume_sec", "5"));
    at(10.);
    EXPECT_TRUE(comesToDisk("resume_sec", "10"));
    EXPECT_EQ(onDisk("resume_path"), fileAt(0).toUtf8());
}

TEST_P(SettingsWait, AStopsPositionComesToTheDisk)
{
    m_window->startPlayback(0);
    at(5.);
    at(8.25);
    m_window->stopPlayback();
    EXPECT_TRUE(comesToDisk("resume_sec", "8.25"));
}

TEST_P(SettingsWait, APausesPositionComesToTheDisk)
{
    m_window->startPlayback(0);
    at(5.);
    at(8.5);
    m_window->togglePause();
    EXPECT_TRUE(comesToDisk("resume_sec", "8.5"));
}

TEST_P(SettingsWait, TheEndOfATrackClearsItsPositionOnTheDisk)
{
    m_window->startPlayback(2);
    at(98.);
    say(u"DONE c.wav"_s);
    EXPECT_TRUE(comesToDisk("resume_sec", "0"));
    EXPECT_TRUE(onDisk("resume_path").isEmpty());
}

TEST_P(SettingsWait, AClosedWindowLeavesTheFinalValuesInTheFile)
{
    m_window->startPlayback(0);
    at(5.);
    at(11.);
    ui().dock->volume->setValue(33);
    m_window->show();
    ASSERT_TRUE(m_window->close());
    // At once: whoever sees the window gone may pull the plug.
    EXPECT_EQ(onDisk("resume_sec"), "11");
    EXPECT_EQ(onDisk("vol"), "33");
}

TEST_P(SettingsWait, AWindowThatGoesWithoutACloseLeavesTheFinalValuesInTheFile)
{
    m_window->startPlayback(0);
    at(5.);
    at(12.);
    m_window.reset();
    EXPECT_EQ(onDisk("resume_sec"), "12");
}

TEST_P(SettingsWait, ASavedListIsOnTheDiskWhenSavingReturns)
{
    m_window->startPlayback(0);
    at(5.);
    m_window->moveRow(0, 2);
    const QByteArray rows = onDisk("playlist");
    EXPECT_LT(rows.indexOf("b.wav"), rows.indexOf("a.wav"));
    EXPECT_EQ(onDisk("resume_sec"), "5") << "and with it what was to be written before";
}

TEST_P(SettingsWait, AVolumeIsRememberedAsItIsMoved)
{
    ui().dock->volume->setValue(55);
    EXPECT_TRUE(comesToDisk("vol", "55")) << "by keys and the wheel too, without a close";
}

TEST_P(SettingsWait, AVolumeThatFadesOutIsNotTheOneThatWasChosen)
{
    ui().dock->volume->setValue(80);
    m_window->startPlayback(0);
    transport().sleep.volumeBefore = 80;
    ui().dock->volume->setValue(20);
    EXPECT_EQ(readUserSetting(settings::volume), 80);
    transport().sleep.volumeBefore = -1;
}

TEST_P(SettingsWait, TwoWindowsOfTwoDirectoriesShareNothing)
{
    m_window->startPlayback(0);
    at(5.);
    const QString former = file();
    const QTemporaryDir other;
    qputenv("KELP_SETTINGS_DIR", QFile::encodeName(other.path()));
    ASSERT_TRUE(applySettingsDirOverride());
    ASSERT_NE(file(), former);
    EXPECT_TRUE(readUserSetting(settings::resumePath).isEmpty());
    open();
    EXPECT_FALSE(start().resumeEnabled);
    m_window->startPlayback(1);
    at(9.);
    m_window.reset();
    EXPECT_EQ(onDisk("resume_sec"), "9");
    const QSettings first(former, QSettings::IniFormat);
    EXPECT_EQ(first.value(settings::resumeSec.key).toDouble(), 5.);
}
