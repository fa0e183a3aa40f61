#include "platform/settings_table.h"

#include <QMap>
#include <QSet>
#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(SettingsTable, NoKeyStandsTwice)
{
    QSet<QString> keys;
    for (const SettingRow &row : settings::all) {
        EXPECT_FALSE(keys.contains(QString(row.key).toLower())) << row.key.data();
        keys += QString(row.key).toLower();
    }
}

TEST(SettingsTable, EveryRowHasAKeyOfAKnownGroupAndAPurpose)
{
    const QStringList groups{u"engine"_s, u"param"_s, u"ui"_s, u"ui-language"_s, u"play"_s, u"fx"_s};
    for (const SettingRow &row : settings::all) {
        const QString key(row.key);
        EXPECT_FALSE(key.isEmpty());
        EXPECT_TRUE(!key.contains(u'/') || groups.contains(key.section(u'/', 0, 0))) << row.key.data();
        EXPECT_EQ(key, key.trimmed());
        EXPECT_FALSE(row.purpose.isEmpty()) << row.key.data();
    }
}

TEST(SettingsTable, HoldsTheGroupsWhole)
{
    QMap<QString, int> rows;
    for (const SettingRow &row : settings::all)
        rows[QString(row.key).contains(u"/sc/"_s) ? u"sc"_s
             : QString(row.key).contains(u'/')    ? QString(row.key).section(u'/', 0, 0)
                                                  : u"top"_s]++;
    EXPECT_EQ(rows.value(u"sc"_s), 12);
    EXPECT_EQ(rows.value(u"fx"_s), 28);
    EXPECT_EQ(rows.value(u"engine"_s), 2);
    EXPECT_EQ(rows.value(u"ui"_s), 7);
    EXPECT_EQ(rows.value(u"play"_s), 2);
    EXPECT_EQ(rows.value(u"top"_s), 6);
    EXPECT_EQ(rows.value(u"param"_s), 61);
}

TEST(SettingsTable, TypesAreThoseOfTheConstants)
{
    const auto find = [](QLatin1StringView key) {
        return *std::find_if(settings::all.begin(), settings::all.end(),
                             [&](const SettingRow &row) { return row.key == key; });
    };
    EXPECT_EQ(find(settings::playlist.key).type, SettingType::List);
    EXPECT_EQ(find(settings::geometry.key).type, SettingType::Bytes);
    EXPECT_EQ(find(settings::speedRatio.key).type, SettingType::Double);
    EXPECT_EQ(find(settings::mode.key).type, SettingType::Text);
    EXPECT_EQ(find(settings::gapless.key).type, SettingType::Bool);
    EXPECT_EQ(find(settings::theme.key).type, SettingType::Int);
    EXPECT_FALSE(find(settings::volume.key).hasFallback);
    EXPECT_TRUE(find(settings::playlistRow.key).hasFallback);
}

TEST(SettingsTable, ASmartPlaylistsKeyIsItsTrimmedNameInTheGroup)
{
    EXPECT_EQ(settings::smartListKey(u"  粤语 often "_s), u"param/smart/粤语 often"_s);
}

} // namespace
