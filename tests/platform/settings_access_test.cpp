#include "platform/settings_access.h"

#include "platform/settings_table.h"
#include "tests/support/memory_settings.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

TEST(SettingsAccess, AnEmptyStoreGivesTheDefaultsOfTheTable)
{
    const MemorySettings store;
    EXPECT_TRUE(readSetting(store, settings::engineInproc));
    EXPECT_FALSE(readSetting(store, settings::keepEngineLog));
    EXPECT_EQ(readSetting(store, settings::mode), u"standard"_s);
    EXPECT_EQ(readSetting(store, settings::pcmBits), u"24"_s);
    EXPECT_EQ(readSetting(store, settings::playOrder), -1);
    EXPECT_EQ(readSetting(store, settings::speedRatio), 1.0);
    EXPECT_EQ(readSetting(store, settings::playlist), QStringList());
    EXPECT_EQ(readSetting(store, settings::geometry), QByteArray());
    EXPECT_EQ(readSetting(store, settings::peakGuard), false);
    EXPECT_EQ(storedSetting(store, settings::peakGuard), std::nullopt);
    EXPECT_EQ(storedSetting(store, settings::gapless), std::nullopt);
}

TEST(SettingsAccess, ReadsBackWhatItWrote)
{
    MemorySettings store;
    writeSetting(store, settings::gapless, false);
    writeSetting(store, settings::volume, 37);
    writeSetting(store, settings::crossfadeSec, 2.5);
    writeSetting(store, settings::customRig, u"{\"a\": 1, \"b\": 2}"_s);
    writeSetting(store, settings::devices, {u"hw:0,0"_s, QString()});
    writeSetting(store, settings::geometry, QByteArray("\0\xff", 2));
    EXPECT_FALSE(readSetting(store, settings::gapless));
    EXPECT_EQ(storedSetting(store, settings::volume), 37);
    EXPECT_EQ(readSetting(store, settings::crossfadeSec), 2.5);
    EXPECT_EQ(readSetting(store, settings::customRig), u"{\"a\": 1, \"b\": 2}"_s);
    EXPECT_EQ(readSetting(store, settings::devices), (QStringList{u"hw:0,0"_s, QString()}));
    EXPECT_EQ(readSetting(store, settings::geometry), QByteArray("\0\xff", 2));
}

TEST(SettingsAccess, ReadsTheTextsOfAnIniFile)
{
    MemorySettings store;
    const auto boolOf = [&](const QString &text) {
        store.values[u"param/gapless"_s] = text;
        return storedSetting(store, settings::gapless);
    };
    EXPECT_EQ(boolOf(u"true"_s), true);
    EXPECT_EQ(boolOf(u" TRUE "_s), true);
    EXPECT_EQ(boolOf(u"1"_s), true);
    EXPECT_EQ(boolOf(u"false"_s), false);
    EXPECT_EQ(boolOf(u"0"_s), false);
    EXPECT_EQ(boolOf(u"perhaps"_s), std::nullopt);
    EXPECT_TRUE(readSetting(store, settings::gapless));
    store.values[u"param/vol"_s] = u"55"_s;
    EXPECT_EQ(storedSetting(store, settings::volume), 55);
    store.values[u"param/vol"_s] = u"loud"_s;
    EXPECT_EQ(storedSetting(store, settings::volume), std::nullopt);
    store.values[u"param/vol"_s] = u"99999999999"_s;
    EXPECT_EQ(storedSetting(store, settings::volume), std::nullopt);
    store.values[u"playlist"_s] = u"/music/one.flac"_s;
    EXPECT_EQ(readSetting(store, settings::playlist), QStringList{u"/music/one.flac"_s});
    store.values[u"param/ext_decoder"_s] = QStringList{u"/opt/a"_s, u"b"_s};
    EXPECT_EQ(readSetting(store, settings::extDecoder), u"/opt/a, b"_s);
}

TEST(SettingsAccess, ANumberThatIsNoneGivesTheDefault)
{
    MemorySettings store;
    for (const QString &text : {u"nan"_s, u"inf"_s, u"-inf"_s, u"fast"_s, QString()}) {
        store.values[u"param/speed_ratio"_s] = text;
        EXPECT_EQ(readSetting(store, settings::speedRatio), 1.0) << text.toStdString();
    }
    store.values[u"param/speed_ratio"_s] = std::numeric_limits<double>::infinity();
    EXPECT_EQ(readSetting(store, settings::speedRatio), 1.0);
}

} // namespace
