#include "app/settings_store.h"

#include "platform/settings_table.h"
#include "tests/support/settings_on_disk.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(SettingsDirectory, BlankVariablesLeaveTheStoreAlone)
{
    qunsetenv("KELP_SETTINGS_DIR");
    EXPECT_FALSE(applySettingsDirOverride());
    qputenv("KELP_SETTINGS_DIR", "   ");
    EXPECT_FALSE(applySettingsDirOverride());
    qunsetenv("KELP_SETTINGS_DIR");
}

TEST(SettingsDirectory, TheDirectoryIsMadeAndUsed)
{
    const QTemporaryDir temp;
    const QString directory = temp.filePath(u"a/b"_s);
    qputenv("KELP_SETTINGS_DIR", (u" "_s + directory + u" "_s).toLocal8Bit());
    EXPECT_TRUE(applySettingsDirOverride());
    {
        SettingsOnDisk store;
        store.setValue(u"param/vol"_s, 33);
    }
    EXPECT_TRUE(QFile::exists(directory + u"/KELP/KelpPlayer.ini"_s));
    EXPECT_EQ(SettingsOnDisk().value(u"param/vol"_s).toInt(), 33);
    qunsetenv("KELP_SETTINGS_DIR");
}

TEST(SettingsDirectory, ADirectoryThatCannotBeMadeGivesDefaults)
{
    qputenv("KELP_SETTINGS_DIR", "/proc/nonexistent/x");
    EXPECT_TRUE(applySettingsDirOverride());
    EXPECT_EQ(SettingsOnDisk().value(u"param/vol"_s, 7).toInt(), 7);
    qunsetenv("KELP_SETTINGS_DIR");
}

namespace {

class UserSettingsTest : public testing::Test
{
protected:
    void SetUp() override { use(u"one"_s); }
    void TearDown() override
    {
        userSettingsFile().flush(); // else it is still being written when the process ends
        qunsetenv("KELP_SETTINGS_DIR");
    }
    void use(const QString &name)
    {
        qputenv("KELP_SETTINGS_DIR", QFile::encodeName(m_folder.filePath(name)));
        ASSERT_TRUE(applySettingsDirOverride());
    }
    QByteArray bytesOf(const QString &name) const
    {
        QFile file(m_folder.filePath(name + u"/KELP/KelpPlayer.ini"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(UserSettingsTest, AnObjectReadsItsOwnChangesAndOthersReadThemAtItsEnd)
{
    writeUserSetting(settings::volume, 20);
    {
        UserSettings store;
        writeSetting(store, settings::volume, 30);
        store.remove(settings::resumePath.key);
        EXPECT_EQ(readSetting(store, settings::volume), 30);
        EXPECT_EQ(readUserSetting(settings::volume), 20);
    }
    EXPECT_EQ(readUserSetting(settings::volume), 30);
}

TEST_F(UserSettingsTest, TheFileOpenedForItselfHoldsWhatWasJustWritten)
{
    for (int volume = 0; volume < 5; ++volume) {
        writeUserSetting(settings::volume, volume);
        EXPECT_EQ(SettingsOnDisk().value(settings::volume.key).toInt(), volume);
        SettingsOnDisk().setValue(settings::volume.key, volume + 50);
        EXPECT_EQ(readUserSetting(settings::volume), volume + 50);
    }
}

TEST_F(UserSettingsTest, AFlushedObjectIsInTheFile)
{
    UserSettings store;
    writeSetting(store, settings::volume, 61);
    store.flush();
    EXPECT_TRUE(bytesOf(u"one"_s).contains("vol=61"));
}

TEST_F(UserSettingsTest, WhatIsStillToBeWrittenGoesToItsOwnDirectory)
{
    writeUserSetting(settings::volume, 11);
    writeUserSetting(settings::volume, 12);
    use(u"two"_s);
    EXPECT_TRUE(bytesOf(u"one"_s).contains("vol=12"));
    EXPECT_FALSE(SettingsOnDisk().contains(settings::volume.key)) << "two directories share nothing";
    writeUserSetting(settings::volume, 99);
    use(u"one"_s);
    EXPECT_EQ(readUserSetting(settings::volume), 12);
    EXPECT_TRUE(bytesOf(u"two"_s).contains("vol=99"));
}
