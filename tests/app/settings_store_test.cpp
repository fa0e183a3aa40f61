#include "app/settings_store.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(SettingsStore, BlankVariablesLeaveTheStoreAlone)
{
    qunsetenv("KELP_SETTINGS_DIR");
    EXPECT_FALSE(applySettingsDirOverride());
    qputenv("KELP_SETTINGS_DIR", "   ");
    EXPECT_FALSE(applySettingsDirOverride());
    qunsetenv("KELP_SETTINGS_DIR");
}

TEST(SettingsStore, TheDirectoryIsMadeAndUsed)
{
    const QTemporaryDir temp;
    const QString directory = temp.filePath(u"a/b"_s);
    qputenv("KELP_SETTINGS_DIR", (u" "_s + directory + u" "_s).toLocal8Bit());
    EXPECT_TRUE(applySettingsDirOverride());
    {
        SettingsStore store;
        store.setValue(u"param/vol"_s, 33);
    }
    EXPECT_TRUE(QFile::exists(directory + u"/KELP/KelpPlayer.ini"_s));
    EXPECT_EQ(SettingsStore().value(u"param/vol"_s).toInt(), 33);
    qunsetenv("KELP_SETTINGS_DIR");
}

TEST(SettingsStore, ADirectoryThatCannotBeMadeGivesDefaults)
{
    qputenv("KELP_SETTINGS_DIR", "/proc/nonexistent/x");
    EXPECT_TRUE(applySettingsDirOverride());
    EXPECT_EQ(SettingsStore().value(u"param/vol"_s, 7).toInt(), 7);
    qunsetenv("KELP_SETTINGS_DIR");
}
