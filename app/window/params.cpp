// What the listener chose, from run to run.
#include "ui/window/player_gui_window.h"

#include "app/combo_restore.h"
#include "app/settings_store.h"
#include "app/stored_params.h"
#include "output/engine_controls.h"
#include "platform/settings_table.h"
#include "ui/dock_bar.h"

namespace {

template<class Value>
void setIfStored(const std::optional<Value> &stored, Value &field)
{
    field = stored.value_or(field);
}

} // namespace

int PlayerGuiWindow::restoredItem(const QString &stored, const QList<ComboItem> &items)
{
    const QString wanted = stored.trimmed();
    if (wanted.isEmpty())
        return -1;
    const int index = findComboItem(items, wanted);
    if (index < 0)
        logLine(tr("参数恢复: 找不到匹配项 %1 (保持默认)").arg(wanted));
    return index;
}

void PlayerGuiWindow::restoreCombo(const QString &stored, const QList<ChoiceItem> &choices, QString &code)
{
    QList<ComboItem> items;
    for (const ChoiceItem &choice : choices)
        items.append({choice.text, choice.code});
    if (const int index = restoredItem(stored, items); index >= 0)
        code = choices.at(index).code;
}

void PlayerGuiWindow::loadParams()
{
    UserSettings store;
    const StoredParams params = ::loadParams(store);
    EngineChoices &choices = m_choices;
    restoreCombo(params.mode, engineItems::modes(), choices.mode);
    QString channels = QString::number(choices.channelCount);
    restoreCombo(params.layout, engineItems::layouts(), channels);
    choices.channelCount = channels.toInt();
    restoreCombo(params.rig, engineItems::rigs(), choices.rig);
    restoreCombo(params.pcmBits, engineItems::pcmBits(), choices.pcmBits);
    restoreCombo(params.dop, engineItems::dops(), choices.dop);
    restoreCombo(params.outputPath, engineItems::outputPaths(), choices.outputPath);
    setIfStored(params.peakGuard, choices.peakGuard);
    choices.denoiseTier = params.denoiseTier;
    choices.keepHarmonics = params.keepHarmonics;
    choices.extDecoder = params.extDecoder;
    setIfStored(params.forcedPcm, choices.forcedPcm);
    choices.speedRatio = params.speedRatio;
    choices.crossfadeSec = params.crossfadeSec;
    choices.gapless = params.gapless;
    choices.replayGainMode = params.replayGain;
    restoreCombo(params.pcmFilter, engineItems::pcmFilters(), choices.pcmFilter);
    choices.pcmFilterExplicit = params.pcmFilterExplicit;
    choices.pcmToDsd = params.pcmToDsd;
    choices.pcmToDsdTargetHz = params.pcmToDsdTargetHz;
    choices.pcmToDsdTaps = params.pcmToDsdTaps;
    setIfStored(params.crossoverHz, choices.crossoverHz);
    setIfStored(params.crossoverBridged, choices.crossoverBridged);
    m_ui.dock->showVolume(std::clamp(params.volume.value_or(m_ui.dock->volume->value()), 0, 100));
    setIfStored(params.resample, choices.resample);
    setIfStored(params.streamRead, choices.streamingRead);
    restoreCombo(readSetting(store, settings::engineSrcQuality), engineItems::qualities(),
                 choices.resampleQuality);
    choices = withinRanges(choices);
    // What is restored was not chosen now: a running session is told nothing.
    showChoices();

    m_transport.order.order = orderAxisOf(params.orderAxis);
    m_transport.order.repeat = repeatAxisOf(params.repeatAxis);
    m_start.resumeFile = readSetting(store, settings::resumePath);
    m_start.resumePosSec = std::max(0., readSetting(store, settings::resumeSec));
    m_start.resumeEnabled = !m_start.resumeFile.isEmpty();
    m_start.lastPlayed = readSetting(store, settings::lastPlayed);
    m_start.lastPlayedKey = readSetting(store, settings::lastPlayedKey);
}

void PlayerGuiWindow::saveParams()
{
    UserSettings store;
    const EngineChoices &choices = m_choices;
    // What has no control in the window keeps its stored value.
    StoredParams params = ::loadParams(store);
    // A choice is written as its code, which is its text unless the text is translated: a file is to be read
    // again in another language.
    params.mode = choices.mode;
    params.layout = QString::number(choices.channelCount);
    params.rig = choices.rig.isEmpty() ? engineItems::rigs().first().text : choices.rig;
    params.pcmBits = choices.pcmBits;
    params.dop = choices.dop;
    params.outputPath = choices.outputPath;
    params.peakGuard = choices.peakGuard;
    params.denoiseTier = choices.denoiseTier;
    params.keepHarmonics = choices.keepHarmonics;
    params.extDecoder = choices.extDecoder;
    params.forcedPcm = choices.forcedPcm;
    params.speedRatio = choices.speedRatio;
    params.crossfadeSec = choices.crossfadeSec;
    params.gapless = choices.gapless;
    params.replayGain = choices.replayGainMode;
    params.pcmFilter = choices.pcmFilter;
    params.pcmFilterExplicit = choices.pcmFilterExplicit;
    params.pcmToDsd = choices.pcmToDsd;
    params.pcmToDsdTargetHz = choices.pcmToDsdTargetHz;
    params.pcmToDsdTaps = choices.pcmToDsdTaps;
    params.crossoverHz = choices.crossoverHz;
    params.crossoverBridged = choices.crossoverBridged;
    params.orderAxis = static_cast<int>(m_transport.order.order);
    params.repeatAxis = static_cast<int>(chosenRepeat());
    // A volume that is just fading out was not chosen.
    const int faded = m_transport.sleep.volumeBefore;
    params.volume = faded >= 0 ? faded : m_ui.dock->volume->value();
    params.resample = choices.resample;
    params.streamRead = choices.streamingRead;
    ::saveParams(params, store);
    writeSetting(store, settings::engineSrcQuality, choices.resampleQuality);
    if (m_devices.devicesRestored)
        writeSetting(store, settings::devices,
                     QStringList{m_ui.device->currentData().toString()} + choices.channelDevices);
    writeSetting(store, settings::lastPlayed, m_start.lastPlayed);
    writeSetting(store, settings::lastPlayedKey, m_start.lastPlayedKey);
}
