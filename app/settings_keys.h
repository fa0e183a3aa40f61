/// \file
/// The names of the stored choices. The window opens the store, uses it and closes it inside each function;
/// parts know no keys.
#pragma once

#include <QLatin1StringView>

namespace settings_key {

using namespace Qt::StringLiterals;

inline constexpr auto engineInproc = "engine/inproc"_L1;
inline constexpr auto engineSrcQuality = "engine/srcQuality"_L1;
inline constexpr auto keepEngineLog = "keep_engine_log"_L1;
inline constexpr auto mode = "param/mode"_L1;
inline constexpr auto layout = "param/layout"_L1;
inline constexpr auto rig = "param/rig"_L1;
inline constexpr auto pcmBits = "param/pcm_bits"_L1;
inline constexpr auto dop = "param/dop"_L1;
inline constexpr auto outputPath = "param/output_path"_L1;
inline constexpr auto peakGuard = "param/peak_guard"_L1;
inline constexpr auto denoiseTier = "param/denoise_tier"_L1;
inline constexpr auto keepHarmonics = "param/keep_harmonics"_L1;
inline constexpr auto extDecoder = "param/ext_decoder"_L1;
inline constexpr auto forcedPcm = "param/pcm"_L1;
inline constexpr auto speedRatio = "param/speed_ratio"_L1;
inline constexpr auto crossfadeSec = "param/crossfade_sec"_L1;
inline constexpr auto gapless = "param/gapless"_L1;
inline constexpr auto replayGain = "param/replaygain"_L1;
inline constexpr auto pcmFilter = "param/pcm_filter"_L1;
inline constexpr auto pcmFilterExplicit = "param/pcm_filter_explicit"_L1;
inline constexpr auto pcmToDsd = "param/pcm2dsd"_L1;
inline constexpr auto pcmToDsdTarget = "param/pcm2dsd_target"_L1;
inline constexpr auto pcmToDsdTaps = "param/pcm2dsd_taps"_L1;
inline constexpr auto crossoverHz = "param/xo_hz"_L1;
inline constexpr auto crossoverBridged = "param/xo_br"_L1;
inline constexpr auto volume = "param/vol"_L1;
inline constexpr auto prefetchDecode = "param/prefetch_decode"_L1;
inline constexpr auto dspPlugins = "param/dsp_plugins"_L1;
inline constexpr auto vizMode = "param/viz_mode"_L1;
inline constexpr auto devices = "devices"_L1;
inline constexpr auto geometry = "ui/geometry"_L1;
inline constexpr auto language = "ui-language/ui_lang"_L1;
inline constexpr auto resumePath = "play/resume_path"_L1;
inline constexpr auto resumeSec = "play/resume_sec"_L1;
inline constexpr auto lastPlayed = "lastPlayed"_L1;
inline constexpr auto lastPlayedKey = "lastPlayedKey"_L1;

} // namespace settings_key
