/// \file
/// Every persistent choice of the program: key, type, default, purpose. No other file spells a key.
/// The store is INI text that users copy from machine to machine: a key, once released, never changes its
/// meaning.
#pragma once

#include "platform/setting.h"

#include <array>

namespace settings {

using namespace Qt::StringLiterals;

// clang-format off

// The session with the engine.
inline constexpr Setting<bool> engineInproc{"engine/inproc"_L1, true, "kind of session: inside this process, or a child process"_L1};
inline constexpr Setting<QString> engineSrcQuality{"engine/srcQuality"_L1, ofWidget, "quality of the resampler"_L1};
inline constexpr Setting<bool> keepEngineLog{"keep_engine_log"_L1, false, "keep the log file of the engine"_L1};

// Playback and output, restored by loadParams in this order.
inline constexpr Setting<QString> mode{"param/mode"_L1, "standard"_L1, "playback mode (combo)"_L1};
inline constexpr Setting<QString> layout{"param/layout"_L1, ofWidget, "channel count (combo)"_L1};
inline constexpr Setting<QString> rig{"param/rig"_L1, ofWidget, "channel rig (combo)"_L1};
inline constexpr Setting<QString> pcmBits{"param/pcm_bits"_L1, "24"_L1, "depth of PCM output (combo)"_L1};
inline constexpr Setting<QString> dop{"param/dop"_L1, "auto"_L1, "DSD over PCM (combo)"_L1};
inline constexpr Setting<QString> outputPath{"param/output_path"_L1, "auto"_L1, "exclusive, shared, or a ladder (combo)"_L1};
inline constexpr Setting<bool> peakGuard{"param/peak_guard"_L1, ofWidget, "peak guard"_L1};
inline constexpr Setting<int> denoiseTier{"param/denoise_tier"_L1, 0, "0 to 3; a copy, fx/ is the truth"_L1};
inline constexpr Setting<bool> keepHarmonics{"param/keep_harmonics"_L1, false, "forced off while the tier is 0; a copy, fx/ is the truth"_L1};
inline constexpr Setting<QString> extDecoder{"param/ext_decoder"_L1, ""_L1, "path of an external decoder"_L1};
inline constexpr Setting<bool> forcedPcm{"param/pcm"_L1, ofWidget, "DSD is decoded to PCM in any case"_L1};
inline constexpr Setting<double> speedRatio{"param/speed_ratio"_L1, 1.0, "playback speed"_L1};
inline constexpr Setting<double> crossfadeSec{"param/crossfade_sec"_L1, 0.0, "crossfade in seconds"_L1};
inline constexpr Setting<bool> gapless{"param/gapless"_L1, true, "seamless track change"_L1};
inline constexpr Setting<bool> lyrics{"param/lyrics"_L1, true, "lyrics on"_L1};
inline constexpr Setting<bool> lyricsOnline{"param/lyrics_online"_L1, false, "lyrics are looked up online"_L1};
inline constexpr Setting<bool> dspPlugins{"param/dsp_plugins"_L1, false, "plugin host"_L1};
inline constexpr Setting<int> theme{"param/theme"_L1, 0, "index of the theme"_L1};
inline constexpr Setting<int> vizMode{"param/viz_mode"_L1, 0, "bit 0 spectrum, bit 1 scope; written once the user has chosen"_L1};
inline constexpr Setting<bool> hotkeys{"param/hotkeys"_L1, false, "global hotkeys"_L1};
inline constexpr Setting<int> replayGain{"param/replaygain"_L1, 0, "0 off, 1 track, 2 album"_L1};
inline constexpr Setting<QString> pcmFilter{"param/pcm_filter"_L1, "standard"_L1, "filter from DSD to PCM"_L1};
inline constexpr Setting<bool> pcmFilterExplicit{"param/pcm_filter_explicit"_L1, false, "the filter was chosen by the user"_L1};
inline constexpr Setting<bool> pcmToDsd{"param/pcm2dsd"_L1, false, "PCM to DSD"_L1};
inline constexpr Setting<int> pcmToDsdTarget{"param/pcm2dsd_target"_L1, 2822400, "its target rate in Hz"_L1};
inline constexpr Setting<int> pcmToDsdTaps{"param/pcm2dsd_taps"_L1, 0, "its taps, 0 automatic"_L1};
inline constexpr Setting<int> playOrder{"param/play_order"_L1, -1, "former single key for order and repeat, read once"_L1};
inline constexpr Setting<int> orderAxis{"param/order_axis"_L1, 0, "0 sequential, 1 random"_L1};
inline constexpr Setting<int> repeatAxis{"param/repeat_axis"_L1, 0, "0 none, 1 list, 2 track"_L1};
inline constexpr Setting<double> crossoverHz{"param/xo_hz"_L1, ofWidget, "crossover in Hz"_L1};
inline constexpr Setting<bool> crossoverBridged{"param/xo_br"_L1, ofWidget, "bridged crossover"_L1};
inline constexpr Setting<int> volume{"param/vol"_L1, ofWidget, "volume slider"_L1};
inline constexpr Setting<bool> prefetchDecode{"param/prefetch_decode"_L1, false, "the next track is decoded ahead"_L1};
inline constexpr Setting<bool> resample{"param/resample"_L1, ofWidget, "resampling"_L1};
inline constexpr Setting<bool> streamRead{"param/stream_read"_L1, ofWidget, "reading as a stream"_L1};
inline constexpr Setting<QString> customRig{"param/custom_rig"_L1, ""_L1, "text of the custom rig"_L1};

// The window.
inline constexpr Setting<int> sideWidth{"ui/sideWidth"_L1, 240, "side panel in pixels, see sideWidthFromStored"_L1};
inline constexpr Setting<QByteArray> geometry{"ui/geometry"_L1, nullptr, "window geometry"_L1};
inline constexpr Setting<bool> showInfo{"ui/show_info"_L1, ofWidget, "audio facts beside the cover"_L1};
inline constexpr Setting<bool> showStats{"ui/show_stats"_L1, ofWidget, "play count"_L1};
inline constexpr Setting<bool> reduceMotion{"ui/reduce_motion"_L1, false, "no interpolation, faster fall"_L1};
inline constexpr Setting<QString> accent{"ui/accent"_L1, "#C9A96E"_L1, "accent colour"_L1};
inline constexpr Setting<bool> coverAccent{"ui/coverAccent"_L1, true, "accent follows the cover"_L1};
inline constexpr Setting<QString> language{"ui-language/ui_lang"_L1, "system"_L1, "code of the language"_L1};

// The playlist and where it stood.
inline constexpr Setting<QStringList> playlist{"playlist"_L1, nullptr, "saved rows"_L1};
inline constexpr Setting<int> playlistRow{"playlistRow"_L1, 0, "current row"_L1};
inline constexpr Setting<QString> lastPlayed{"lastPlayed"_L1, ""_L1, "path last played"_L1};
inline constexpr Setting<QString> lastPlayedKey{"lastPlayedKey"_L1, ""_L1, "row last played"_L1};
inline constexpr Setting<QString> resumePath{"play/resume_path"_L1, ""_L1, "track to go on with"_L1};
inline constexpr Setting<double> resumeSec{"play/resume_sec"_L1, 0.0, "where to go on, in seconds"_L1};
inline constexpr Setting<QStringList> devices{"devices"_L1, nullptr, "device of each device combo, empty for the default"_L1};

// Owned by single pages and services.
inline constexpr Setting<QString> chainHide{"param/chain_hide"_L1, ""_L1, "hidden groups of the signal chain"_L1};
inline constexpr Setting<QString> chainShow{"param/chain_show"_L1, ""_L1, "shown groups of the signal chain"_L1};
inline constexpr Setting<QString> containerTags{"param/container_tags"_L1, ""_L1, "table of tags kept beside containers"_L1};
inline constexpr Setting<QString> deviceProfiles{"param/device_profiles"_L1, ""_L1, "settings of single devices"_L1};
inline constexpr Setting<bool> dlnaServer{"param/dlna_server"_L1, false, "media server"_L1};
inline constexpr Setting<QString> dlnaUuid{"param/dlna_uuid"_L1, ""_L1, "its identity, made at first use"_L1};
inline constexpr Setting<QString> fxOrder{"param/fx_order"_L1, ""_L1, "order of the effects, name=weight"_L1};
inline constexpr Setting<bool> lyricFloat{"param/lyric_float"_L1, false, "floating lyrics"_L1};
inline constexpr Setting<QString> lyricFloatBackground{"param/lyric_float_bg"_L1, "#96000000"_L1, "their background"_L1};
inline constexpr Setting<QString> lyricFloatForeground{"param/lyric_float_fg"_L1, "#ffffffff"_L1, "their text"_L1};
inline constexpr Setting<QString> lyricFloatFont{"param/lyric_float_font"_L1, ""_L1, "their font, empty for the system's"_L1};
inline constexpr Setting<bool> lyricFloatFrameless{"param/lyric_float_frameless"_L1, ofWidget, "without a title bar"_L1};
inline constexpr Setting<QByteArray> lyricFloatGeometry{"param/lyric_float_geom"_L1, nullptr, "their place"_L1};
inline constexpr Setting<int> lyricFloatPoints{"param/lyric_float_pt"_L1, ofWidget, "their size"_L1};
inline constexpr Setting<bool> lyricsSaveLocal{"param/lyrics_save_local"_L1, false, "found lyrics are saved beside the track"_L1};
inline constexpr Setting<bool> offlineMode{"param/offline_mode"_L1, false, "no network at all"_L1};
inline constexpr Setting<bool> readAhead{"param/readahead"_L1, ofWidget, "read-ahead of network files"_L1};
inline constexpr Setting<int> readAheadMegabytes{"param/readahead_mb"_L1, ofWidget, "its size"_L1};
inline constexpr Setting<bool> remoteOn{"param/remote_on"_L1, false, "phone remote"_L1};
inline constexpr Setting<int> remotePort{"param/remote_port"_L1, 7788, "its port"_L1};
inline constexpr Setting<QString> scanRoot{"param/scan_root"_L1, ""_L1, "music folder"_L1};
inline constexpr Setting<QString> smart{"param/smart"_L1, ""_L1, "group of the saved smart playlists, see smartListKey"_L1};
inline constexpr Setting<bool> trayClose{"param/tray_close"_L1, ofWidget, "closing hides in the tray"_L1};
inline constexpr Setting<bool> trayEnable{"param/tray_enable"_L1, ofWidget, "tray icon"_L1};
inline constexpr Setting<QStringList> trayItems{"param/tray_items"_L1, nullptr, "items of the tray menu"_L1};

// Shortcuts inside the window; an empty sequence means none.
inline constexpr Setting<QString> shortcutFullscreen{"param/sc/fullscreen"_L1, "F11"_L1, "key sequence"_L1};
inline constexpr Setting<QString> shortcutLyrics{"param/sc/lyrics"_L1, "L"_L1, "key sequence"_L1};
inline constexpr Setting<QString> shortcutMute{"param/sc/mute"_L1, "M"_L1, "key sequence"_L1};
inline constexpr Setting<QString> shortcutNext{"param/sc/next"_L1, "Ctrl+Right"_L1, "key sequence"_L1};
inline constexpr Setting<QString> shortcutOpenFiles{"param/sc/openfiles"_L1, "Ctrl+O"_L1, "key sequence"_L1};
inline constexpr Setting<QString> shortcutPlayPause{"param/sc/playpause"_L1, "Space"_L1, "key sequence"_L1};
inline constexpr Setting<QString> shortcutPrevious{"param/sc/prev"_L1, "Ctrl+Left"_L1, "key sequence"_L1};
inline constexpr Setting<QString> shortcutSettings{"param/sc/settings"_L1, "Ctrl+,"_L1, "key sequence"_L1};
inline constexpr Setting<QString> shortcutStop{"param/sc/stop"_L1, "Ctrl+Space"_L1, "key sequence"_L1};
inline constexpr Setting<QString> shortcutViz{"param/sc/viz"_L1, "V"_L1, "key sequence"_L1};
inline constexpr Setting<QString> shortcutVolumeDown{"param/sc/voldown"_L1, "Ctrl+Down"_L1, "key sequence"_L1};
inline constexpr Setting<QString> shortcutVolumeUp{"param/sc/volup"_L1, "Ctrl+Up"_L1, "key sequence"_L1};

// The effects panel.
inline constexpr Setting<double> fxBalance{"fx/balance"_L1, 50.0, "0 left, 50 centre, 100 right"_L1};
inline constexpr Setting<double> fxWidth{"fx/width"_L1, 100.0, "stereo width in percent"_L1};
inline constexpr Setting<bool> fxReverbOn{"fx/reverb_on"_L1, false, "reverb"_L1};
inline constexpr Setting<double> fxReverbWet{"fx/rv_wet"_L1, 100.0, "percent"_L1};
inline constexpr Setting<double> fxReverbFilter{"fx/rv_filter"_L1, 50.0, "percent"_L1};
inline constexpr Setting<double> fxReverbFade{"fx/rv_fade"_L1, 50.0, "percent"_L1};
inline constexpr Setting<double> fxReverbPre{"fx/rv_pre"_L1, 20.0, "pre-delay"_L1};
inline constexpr Setting<double> fxReverbPreMix{"fx/rv_premix"_L1, 50.0, "percent"_L1};
inline constexpr Setting<double> fxReverbSize{"fx/rv_size"_L1, 50.0, "percent"_L1};
inline constexpr Setting<double> fxReverbMix{"fx/rv_mix"_L1, 30.0, "percent"_L1};
inline constexpr Setting<bool> fxToneOn{"fx/tone_on"_L1, false, "tone controls"_L1};
inline constexpr Setting<double> fxToneBassGain{"fx/tone_bass_gain"_L1, 0.0, "dB"_L1};
inline constexpr Setting<double> fxToneBassFreq{"fx/tone_bass_freq"_L1, 100.0, "Hz"_L1};
inline constexpr Setting<double> fxToneBassQ{"fx/tone_bass_q"_L1, 0.7, "quality factor"_L1};
inline constexpr Setting<double> fxToneTrebleGain{"fx/tone_treb_gain"_L1, 0.0, "dB"_L1};
inline constexpr Setting<double> fxToneTrebleFreq{"fx/tone_treb_freq"_L1, 8000.0, "Hz"_L1};
inline constexpr Setting<double> fxToneTrebleQ{"fx/tone_treb_q"_L1, 0.7, "quality factor"_L1};
inline constexpr Setting<int> fxDenoiseTier{"fx/denoise_tier"_L1, 0, "0 to 3"_L1};
inline constexpr Setting<bool> fxKeepHarmonics{"fx/keep_harmonics"_L1, false, "only while the tier is 1 or above"_L1};
inline constexpr Setting<bool> fxSpatialOn{"fx/spatial_on"_L1, false, "binaural rendering"_L1};
inline constexpr Setting<double> fxSpatialAzimuth{"fx/spatial_az"_L1, 0.0, "degrees, negative is left"_L1};
inline constexpr Setting<double> fxSpatialSpread{"fx/spatial_spread"_L1, 30.0, "degrees"_L1};
inline constexpr Setting<double> fxSpatialMix{"fx/spatial_mix"_L1, 100.0, "percent"_L1};
inline constexpr Setting<bool> fxEqOn{"fx/eq_on"_L1, false, "equalizer"_L1};
inline constexpr Setting<double> fxEqPreamp{"fx/eq_preamp"_L1, 0.0, "dB"_L1};
inline constexpr Setting<int> fxEqCount{"fx/eq_count"_L1, 10, "bands in use"_L1};
inline constexpr Setting<QString> fxEqPreset{"fx/eq_preset"_L1, "flat"_L1, "name of the preset"_L1};
inline constexpr Setting<QString> fxEqBands{"fx/eq_bands"_L1, ""_L1, "freq:gain:q:type, joined by commas"_L1};

/// All of them, in the order above.
inline constexpr std::array all{
    rowOf(engineInproc), rowOf(engineSrcQuality), rowOf(keepEngineLog), rowOf(mode), rowOf(layout),
    rowOf(rig), rowOf(pcmBits), rowOf(dop), rowOf(outputPath), rowOf(peakGuard), rowOf(denoiseTier),
    rowOf(keepHarmonics), rowOf(extDecoder), rowOf(forcedPcm), rowOf(speedRatio), rowOf(crossfadeSec),
    rowOf(gapless), rowOf(lyrics), rowOf(lyricsOnline), rowOf(dspPlugins), rowOf(theme), rowOf(vizMode),
    rowOf(hotkeys), rowOf(replayGain), rowOf(pcmFilter), rowOf(pcmFilterExplicit), rowOf(pcmToDsd),
    rowOf(pcmToDsdTarget), rowOf(pcmToDsdTaps), rowOf(playOrder), rowOf(orderAxis), rowOf(repeatAxis),
    rowOf(crossoverHz), rowOf(crossoverBridged), rowOf(volume), rowOf(prefetchDecode), rowOf(resample), rowOf(streamRead),
    rowOf(customRig), rowOf(sideWidth), rowOf(geometry), rowOf(showInfo), rowOf(showStats),
    rowOf(reduceMotion), rowOf(accent), rowOf(coverAccent), rowOf(language), rowOf(playlist),
    rowOf(playlistRow), rowOf(lastPlayed), rowOf(lastPlayedKey), rowOf(resumePath), rowOf(resumeSec),
    rowOf(devices), rowOf(chainHide), rowOf(chainShow), rowOf(containerTags), rowOf(deviceProfiles),
    rowOf(dlnaServer), rowOf(dlnaUuid), rowOf(fxOrder), rowOf(lyricFloat), rowOf(lyricFloatBackground),
    rowOf(lyricFloatForeground), rowOf(lyricFloatFont), rowOf(lyricFloatFrameless),
    rowOf(lyricFloatGeometry), rowOf(lyricFloatPoints), rowOf(lyricsSaveLocal), rowOf(offlineMode),
    rowOf(readAhead), rowOf(readAheadMegabytes), rowOf(remoteOn), rowOf(remotePort), rowOf(scanRoot),
    rowOf(smart), rowOf(trayClose), rowOf(trayEnable), rowOf(trayItems), rowOf(shortcutFullscreen),
    rowOf(shortcutLyrics), rowOf(shortcutMute), rowOf(shortcutNext), rowOf(shortcutOpenFiles),
    rowOf(shortcutPlayPause), rowOf(shortcutPrevious), rowOf(shortcutSettings), rowOf(shortcutStop),
    rowOf(shortcutViz), rowOf(shortcutVolumeDown), rowOf(shortcutVolumeUp), rowOf(fxBalance),
    rowOf(fxWidth), rowOf(fxReverbOn), rowOf(fxReverbWet), rowOf(fxReverbFilter), rowOf(fxReverbFade),
    rowOf(fxReverbPre), rowOf(fxReverbPreMix), rowOf(fxReverbSize), rowOf(fxReverbMix), rowOf(fxToneOn),
    rowOf(fxToneBassGain), rowOf(fxToneBassFreq), rowOf(fxToneBassQ), rowOf(fxToneTrebleGain),
    rowOf(fxToneTrebleFreq), rowOf(fxToneTrebleQ), rowOf(fxDenoiseTier), rowOf(fxKeepHarmonics),
    rowOf(fxSpatialOn), rowOf(fxSpatialAzimuth), rowOf(fxSpatialSpread), rowOf(fxSpatialMix), rowOf(fxEqOn),
    rowOf(fxEqPreamp), rowOf(fxEqCount), rowOf(fxEqPreset), rowOf(fxEqBands),
};
// clang-format on

/// The group of the play counts, one value a path.
inline constexpr QLatin1StringView playCountsGroup{"stats"_L1};

/// The key of the smart playlist called \p name (trimmed).
inline QString smartListKey(const QString &name)
{
    return smart.key + u'/' + name.trimmed();
}

} // namespace settings
