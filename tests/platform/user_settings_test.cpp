#include "platform/user_settings.h"

#include "platform/settings_table.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The user's store in a private folder.
class UserSettingsTest : public testing::Test
{
protected:
    UserSettingsTest() { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path()); }

    QString filePath() const { return m_folder.filePath(u"KELP/KelpPlayer.ini"_s); }
    QTemporaryDir m_folder;
};

TEST_F(UserSettingsTest, WhatOneOpeningWroteTheNextReads)
{
    {
        UserSettings store;
        writeSetting(store, settings::gapless, false);
        writeSetting(store, settings::speedRatio, 1.25);
        writeSetting(store, settings::vizMode, 3);
        writeSetting(store, settings::playlist, {u"/音乐/一, 二.dsf"_s, u"%x;\"=\\"_s});
        writeSetting(store, settings::geometry, QByteArray("\0\1\xff@", 4));
        writeSetting(store, settings::deviceProfiles, u"a=b\nc=d, e"_s);
    }
    ASSERT_TRUE(QFile::exists(filePath()));
    const UserSettings store;
    EXPECT_FALSE(readSetting(store, settings::gapless));
    EXPECT_EQ(readSetting(store, settings::speedRatio), 1.25);
    EXPECT_EQ(readSetting(store, settings::vizMode), 3);
    EXPECT_EQ(readSetting(store, settings::playlist), (QStringList{u"/音乐/一, 二.dsf"_s, u"%x;\"=\\"_s}));
    EXPECT_EQ(readSetting(store, settings::geometry), QByteArray("\0\1\xff@", 4));
    EXPECT_EQ(readSetting(store, settings::deviceProfiles), u"a=b\nc=d, e"_s);
}

TEST_F(UserSettingsTest, ListsTheKeysOfAGroupAndRemovesOne)
{
    UserSettings store;
    store.setValue("param/smart/one"_L1, u"x"_s);
    store.setValue("param/smart/two"_L1, u"y"_s);
    EXPECT_EQ(store.childKeys(settings::smart.key), (QStringList{u"one"_s, u"two"_s}));
    store.remove("param/smart/one"_L1);
    store.sync();
    EXPECT_EQ(store.childKeys(settings::smart.key), QStringList{u"two"_s});
}

TEST_F(UserSettingsTest, AFileThatCannotBeReadGivesDefaults)
{
    // A folder where the file should be: it can be neither read nor written, not even by root.
    ASSERT_TRUE(QDir().mkpath(filePath()));
    {
        UserSettings store;
        writeSetting(store, settings::theme, 2);
    }
    const UserSettings store;
    EXPECT_EQ(readSetting(store, settings::theme), 0);
    EXPECT_TRUE(readSetting(store, settings::engineInproc));
}

TEST_F(UserSettingsTest, ADamagedFileGivesDefaults)
{
    ASSERT_TRUE(QDir().mkpath(m_folder.filePath(u"KELP"_s)));
    QFile file(filePath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[param\n\xff\xfe=\0\n]]vol=@Invalid(\ngapless=@Size(1\n");
    file.close();
    const UserSettings store;
    EXPECT_EQ(storedSetting(store, settings::volume), std::nullopt);
    EXPECT_TRUE(readSetting(store, settings::gapless));
}

} // namespace
