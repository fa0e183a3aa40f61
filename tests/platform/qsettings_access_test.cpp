#include "platform/qsettings_access.h"

#include "platform/settings_table.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class QSettingsAccessTest : public testing::Test
{
protected:
    QString path() const { return m_folder.filePath(u"KelpPlayer.ini"_s); }
    QTemporaryDir m_folder;
};

TEST_F(QSettingsAccessTest, WhatOneOpeningWroteTheNextReads)
{
    {
        QSettings file(path(), QSettings::IniFormat);
        QSettingsAccess store(file);
        writeSetting(store, settings::gapless, false);
        writeSetting(store, settings::speedRatio, 1.25);
        writeSetting(store, settings::vizMode, 3);
        writeSetting(store, settings::playlist, {u"/音乐/一, 二.dsf"_s, u"%x;\"=\\"_s});
        writeSetting(store, settings::geometry, QByteArray("\0\1\xff@", 4));
        writeSetting(store, settings::deviceProfiles, u"a=b\nc=d, e"_s);
    }
    ASSERT_TRUE(QFile::exists(path()));
    QSettings file(path(), QSettings::IniFormat);
    const QSettingsAccess store(file);
    EXPECT_FALSE(readSetting(store, settings::gapless));
    EXPECT_EQ(readSetting(store, settings::speedRatio), 1.25);
    EXPECT_EQ(readSetting(store, settings::vizMode), 3);
    EXPECT_EQ(readSetting(store, settings::playlist), (QStringList{u"/音乐/一, 二.dsf"_s, u"%x;\"=\\"_s}));
    EXPECT_EQ(readSetting(store, settings::geometry), QByteArray("\0\1\xff@", 4));
    EXPECT_EQ(readSetting(store, settings::deviceProfiles), u"a=b\nc=d, e"_s);
}

TEST_F(QSettingsAccessTest, RemovesOneKeyAndNoOther)
{
    QSettings file(path(), QSettings::IniFormat);
    QSettingsAccess store(file);
    writeSetting(store, settings::theme, 2);
    writeSetting(store, settings::volume, 50);
    store.remove(settings::theme.key);
    EXPECT_EQ(storedSetting(store, settings::theme), std::nullopt);
    EXPECT_EQ(storedSetting(store, settings::volume), 50);
}

TEST_F(QSettingsAccessTest, AFileThatCannotBeReadGivesDefaults)
{
    // A folder where the file should be: it can be neither read nor written, not even by root.
    ASSERT_TRUE(QDir().mkpath(path()));
    {
        QSettings file(path(), QSettings::IniFormat);
        QSettingsAccess store(file);
        writeSetting(store, settings::theme, 2);
    }
    QSettings file(path(), QSettings::IniFormat);
    const QSettingsAccess store(file);
    EXPECT_EQ(readSetting(store, settings::theme), 0);
    EXPECT_TRUE(readSetting(store, settings::engineInproc));
}

TEST_F(QSettingsAccessTest, ADamagedFileGivesDefaults)
{
    QFile damaged(path());
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("[param\n\xff\xfe=\0\n]]vol=@Invalid(\n[param]\ngapless=@Size(1\nvol=\"5\n");
    damaged.close();
    QSettings file(path(), QSettings::IniFormat);
    const QSettingsAccess store(file);
    EXPECT_EQ(storedSetting(store, settings::volume), std::nullopt);
    EXPECT_TRUE(readSetting(store, settings::gapless));
}

} // namespace
