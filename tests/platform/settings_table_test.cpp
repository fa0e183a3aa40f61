#include "platform/settings_table.h"

#include "platform/settings_access.h"
#include "tests/support/memory_settings.h"

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

/// Fails to compile where the type is another one.
template<class Value>
void expectSetting(const Setting<Value> &setting, const char *key,
                   const std::type_identity_t<Value> &fallback)
{
    const MemorySettings empty;
    EXPECT_EQ(QString(setting.key), QString::fromLatin1(key));
    EXPECT_TRUE(setting.fallback.has_value()) << key;
    EXPECT_EQ(readSetting(empty, setting), fallback) << key;
}

template<class Value>
void expectOfWidget(const Setting<Value> &setting, const char *key)
{
    EXPECT_EQ(QString(setting.key), QString::fromLatin1(key));
    EXPECT_FALSE(setting.fallback.has_value()) << key;
}

TEST(SettingsTable, KeysTypesAndDefaultsAreThoseOfEveryStoredFile)
{
    namespace s = settings;
    expectSetting<bool>(s::engineInproc, "engine/inproc", true);
    expectOfWidget<QString>(s::engineSrcQuality, "engine/srcQuality");
    expectSetting<bool>(s::keepEngineLog, "keep_engine_log", false);
    expectSetting<QString>(s::mode, "param/mode", u"standard"_s);
    expectOfWidget<QString>(s::layout, "param/layout");
    expectOfWidget<QString>(s::rig, "param/rig");
    expectSetting<QString>(s::pcmBits, "param/pcm_bits", u"24"_s);
    expectSetting<QString>(s::dop, "param/dop", u"auto"_s);
    expectSetting<QString>(s::outputPath, "param/output_path", u"auto"_s);
    expectOfWidget<bool>(s::peakGuard, "param/peak_guard");
    expectSetting<int>(s::denoiseTier, "param/denoise_tier", 0);
    expectSetting<bool>(s::keepHarmonics, "param/keep_harmonics", false);
    expectSetting<QString>(s::extDecoder, "param/ext_decoder", {});
    expectOfWidget<bool>(s::forcedPcm, "param/pcm");
    expectSetting<double>(s::speedRatio, "param/speed_ratio", 1.);
    expectSetting<double>(s::crossfadeSec, "param/crossfade_sec", 0.);
    expectSetting<bool>(s::gapless, "param/gapless", true);
    expectSetting<bool>(s::lyrics, "param/lyrics", true);
    expectSetting<bool>(s::lyricsOnline, "param/lyrics_online", false);
    expectSetting<bool>(s::dspPlugins, "param/dsp_plugins", false);
    expectSetting<int>(s::theme, "param/theme", 0);
    expectSetting<int>(s::vizMode, "param/viz_mode", 0);
    expectSetting<bool>(s::hotkeys, "param/hotkeys", false);
    expectSetting<int>(s::replayGain, "param/replaygain", 0);
    expectSetting<QString>(s::pcmFilter, "param/pcm_filter", u"standard"_s);
    expectSetting<bool>(s::pcmFilterExplicit, "param/pcm_filter_explicit", false);
    expectSetting<bool>(s::pcmToDsd, "param/pcm2dsd", false);
    expectSetting<int>(s::pcmToDsdTarget, "param/pcm2dsd_target", 2822400);
    expectSetting<int>(s::pcmToDsdTaps, "param/pcm2dsd_taps", 0);
    expectSetting<int>(s::playOrder, "param/play_order", -1);
    expectSetting<int>(s::orderAxis, "param/order_axis", 0);
    expectSetting<int>(s::repeatAxis, "param/repeat_axis", 0);
    expectOfWidget<double>(s::crossoverHz, "param/xo_hz");
    expectOfWidget<bool>(s::crossoverBridged, "param/xo_br");
    expectOfWidget<int>(s::volume, "param/vol");
    expectSetting<bool>(s::prefetchDecode, "param/prefetch_decode", false);
    expectOfWidget<bool>(s::resample, "param/resample");
    expectOfWidget<bool>(s::streamRead, "param/stream_read");
    expectSetting<QString>(s::customRig, "param/custom_rig", {});
    expectSetting<int>(s::sideWidth, "ui/sideWidth", 240);
    expectSetting<QByteArray>(s::geometry, "ui/geometry", {});
    expectOfWidget<bool>(s::showInfo, "ui/show_info");
    expectOfWidget<bool>(s::showStats, "ui/show_stats");
    expectSetting<bool>(s::reduceMotion, "ui/reduce_motion", false);
    expectSetting<QString>(s::accent, "ui/accent", u"#C9A96E"_s);
    expectSetting<bool>(s::coverAccent, "ui/coverAccent", true);
    expectSetting<QString>(s::language, "ui-language/ui_lang", u"system"_s);
    expectSetting<QStringList>(s::playlist, "playlist", {});
    expectSetting<int>(s::playlistRow, "playlistRow", 0);
    expectSetting<QString>(s::lastPlayed, "lastPlayed", {});
    expectSetting<QString>(s::lastPlayedKey, "lastPlayedKey", {});
    expectSetting<QString>(s::resumePath, "play/resume_path", {});
    expectSetting<double>(s::resumeSec, "play/resume_sec", 0.);
}

TEST(SettingsTable, HoldsTheKeysOfPagesAndServices)
{
    QSet<QString> keys;
    for (const SettingRow &row : settings::all)
        keys += QString(row.key);
    const auto expectAll = [&](const QString &group, const char *names) {
        for (const QString &name : QString::fromLatin1(names).split(u' '))
            EXPECT_TRUE(keys.contains(group + name)) << qPrintable(group + name);
    };
    expectAll(u"param/"_s,
              "chain_hide chain_show container_tags device_profiles dlna_server dlna_uuid fx_order "
              "lyric_float lyric_float_bg lyric_float_fg lyric_float_font lyric_float_frameless "
              "lyric_float_geom lyric_float_pt lyrics_save_local offline_mode readahead readahead_mb "
              "remote_on remote_port scan_root smart tray_close tray_enable tray_items");
    expectAll(u"param/sc/"_s,
              "fullscreen lyrics mute next openfiles playpause prev settings stop viz voldown volup");
    expectAll(u"fx/"_s,
              "balance width reverb_on rv_wet rv_filter rv_fade rv_pre rv_premix rv_size rv_mix tone_on "
              "tone_bass_gain tone_bass_freq tone_bass_q tone_treb_gain tone_treb_freq tone_treb_q "
              "denoise_tier keep_harmonics spatial_on spatial_az spatial_spread spatial_mix eq_on eq_preamp "
              "eq_count eq_preset eq_bands");
}

TEST(SettingsTable, ASmartPlaylistsKeyIsItsTrimmedNameInTheGroup)
{
    EXPECT_EQ(settings::smartListKey(u"  粤语 often "_s), u"param/smart/粤语 often"_s);
}

} // namespace
