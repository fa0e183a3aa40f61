#include "app/stored_params.h"

#include "app/settings_rules.h"
#include "platform/settings_table.h"

namespace {

constexpr int vizModeOfNewUser = 1;

/// Pairs each plain field with its setting, once for both directions and in the order of the table. The tier
/// and the harmonics have two places each and are not here.
template<class Params, class Visit>
void eachParam(Params &params, const Visit &visit)
{
    visit(settings::mode, params.mode);
    visit(settings::layout, params.layout);
    visit(settings::rig, params.rig);
    visit(settings::pcmBits, params.pcmBits);
    visit(settings::dop, params.dop);
    visit(settings::outputPath, params.outputPath);
    visit(settings::peakGuard, params.peakGuard);
    visit(settings::extDecoder, params.extDecoder);
    visit(settings::forcedPcm, params.forcedPcm);
    visit(settings::speedRatio, params.speedRatio);
    visit(settings::crossfadeSec, params.crossfadeSec);
    visit(settings::gapless, params.gapless);
    visit(settings::lyrics, params.lyrics);
    visit(settings::lyricsOnline, params.lyricsOnline);
    visit(settings::dspPlugins, params.dspPlugins);
    visit(settings::theme, params.theme);
    visit(settings::vizMode, params.vizMode);
    visit(settings::hotkeys, params.hotkeys);
    visit(settings::replayGain, params.replayGain);
    visit(settings::pcmFilter, params.pcmFilter);
    visit(settings::pcmFilterExplicit, params.pcmFilterExplicit);
    visit(settings::pcmToDsd, params.pcmToDsd);
    visit(settings::pcmToDsdTarget, params.pcmToDsdTargetHz);
    visit(settings::pcmToDsdTaps, params.pcmToDsdTaps);
    visit(settings::orderAxis, params.orderAxis);
    visit(settings::repeatAxis, params.repeatAxis);
    visit(settings::crossoverHz, params.crossoverHz);
    visit(settings::crossoverBridged, params.crossoverBridged);
    visit(settings::volume, params.volume);
    visit(settings::prefetchDecode, params.prefetchDecode);
    visit(settings::resample, params.resample);
    visit(settings::streamRead, params.streamRead);
    visit(settings::customRig, params.customRig);
}

struct Load
{
    const SettingsAccess &store;

    template<class Value>
    void operator()(const Setting<Value> &setting, Value &field) const
    {
        field = readSetting(store, setting);
    }
    template<class Value>
    void operator()(const Setting<Value> &setting, std::optional<Value> &field) const
    {
        field = storedSetting(store, setting);
    }
};

struct Save
{
    SettingsAccess &store;

    template<class Value>
    void operator()(const Setting<Value> &setting, const Value &field) const
    {
        writeSetting(store, setting, field);
    }
    template<class Value>
    void operator()(const Setting<Value> &setting, const std::optional<Value> &field) const
    {
        if (field)
            writeSetting(store, setting, *field);
    }
};

/// The panel's own value where there is one; the copy is read only without it.
template<class Value>
Value ofPanel(const SettingsAccess &store, const Setting<Value> &panel, const Setting<Value> &copy)
{
    return storedSetting(store, panel).value_or(readSetting(store, copy));
}

} // namespace

StoredParams loadParams(SettingsAccess &store)
{
    StoredParams params;
    eachParam(params, Load{store});
    params.denoiseTier = clampedDenoiseTier(ofPanel(store, settings::fxDenoiseTier, settings::denoiseTier));
    params.keepHarmonics =
        harmonicsKept(params.denoiseTier, ofPanel(store, settings::fxKeepHarmonics, settings::keepHarmonics));
    const PlayOrderFacts facts{readSetting(store, settings::playOrder),
                               storedSetting(store, settings::orderAxis).has_value(),
                               storedSetting(store, settings::repeatAxis).has_value()};
    if (const std::optional<PlayAxes> axes = migratedPlayOrder(facts)) {
        params.orderAxis = axes->order;
        params.repeatAxis = axes->repeat;
        writeSetting(store, settings::orderAxis, axes->order);
        writeSetting(store, settings::repeatAxis, axes->repeat);
    }
    return params;
}

void saveParams(const StoredParams &params, SettingsAccess &store)
{
    eachParam(params, Save{store});
    const int tier = clampedDenoiseTier(params.denoiseTier);
    const bool kept = harmonicsKept(tier, params.keepHarmonics);
    writeSetting(store, settings::denoiseTier, tier);
    writeSetting(store, settings::fxDenoiseTier, tier);
    writeSetting(store, settings::keepHarmonics, kept);
    writeSetting(store, settings::fxKeepHarmonics, kept);
}

int vizModeAtTrackStart(const SettingsAccess &store)
{
    return storedSetting(store, settings::vizMode).value_or(vizModeOfNewUser);
}
