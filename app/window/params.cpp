// What the listener chose, from run to run.
#include "ui/window/player_gui_window.h"

#include "app/combo_restore.h"
#include "app/settings_keys.h"
#include "app/settings_store.h"
#include "output/engine_controls.h"
#include "ui/dock_bar.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int mostDenoiseTier = 3;

void restoreCheck(const QSettings &store, QLatin1StringView key, QCheckBox *check)
{
    check->setChecked(store.value(key, check->isChecked()).toBool());
}

/// For combos whose stored form is the number in their data.
void restoreNumber(const QSettings &store, QLatin1StringView key, QComboBox *combo, int fallback)
{
    const int index = combo->findData(store.value(key, fallback).toInt());
    if (index >= 0)
        combo->setCurrentIndex(index);
}

} // namespace

void PlayerGuiWindow::restoreCombo(QSettings &store, QLatin1StringView key, QComboBox *combo)
{
    const QString stored = store.value(key).toString().trimmed();
    if (stored.isEmpty())
        return;
    QList<ComboItem> items;
    for (int i = 0; i < combo->count(); ++i)
        items.append({combo->itemText(i), combo->itemData(i).toString()});
    const int index = findComboItem(items, stored);
    if (index >= 0)
        combo->setCurrentIndex(index);
    else
        logLine(tr("参数恢复: 找不到匹配项 %1 (保持默认)").arg(stored));
}

void PlayerGuiWindow::saveCombo(QSettings &store, QLatin1StringView key, const QComboBox *combo)
{
    store.setValue(key, combo->currentText());
}

void PlayerGuiWindow::loadParams()
{
    namespace key = settings_key;
    SettingsStore store;
    EngineControls &engine = *m_ui.engine;
    const QSignalBlocker blockEngine(m_ui.engine);

    restoreCombo(store, key::engineSrcQuality, engine.resampleQuality);
    restoreCombo(store, key::mode, engine.mode);
    restoreCombo(store, key::layout, engine.layoutChoice);
    restoreCombo(store, key::rig, engine.rig);
    restoreCombo(store, key::pcmBits, engine.pcmBits);
    restoreCombo(store, key::dop, engine.dop);
    restoreCombo(store, key::outputPath, engine.outputPath);
    restoreCheck(store, key::peakGuard, engine.peakGuard);
    const int tier = std::clamp(store.value(key::denoiseTier, 0).toInt(), 0, mostDenoiseTier);
    engine.denoiseTier->setCurrentIndex(tier);
    engine.keepHarmonics->setChecked(tier >= 1 && store.value(key::keepHarmonics, false).toBool());
    engine.extDecoder->setText(store.value(key::extDecoder).toString());
    restoreCheck(store, key::forcedPcm, engine.forcedPcm);
    engine.speedRatio->setValue(store.value(key::speedRatio, 1.).toDouble());
    engine.crossfadeSec->setValue(store.value(key::crossfadeSec, 0.).toDouble());
    engine.gapless->setChecked(store.value(key::gapless, true).toBool());
    restoreNumber(store, key::replayGain, engine.replayGain, 0);
    restoreCombo(store, key::pcmFilter, engine.pcmFilter);
    m_pcmFilterExplicit = store.value(key::pcmFilterExplicit, false).toBool();
    restoreCheck(store, key::pcmToDsd, engine.pcmToDsd);
    restoreNumber(store, key::pcmToDsdTarget, engine.pcmToDsdTarget, 2822400);
    restoreNumber(store, key::pcmToDsdTaps, engine.pcmToDsdTaps, 0);
    engine.crossoverHz->setValue(store.value(key::crossoverHz, engine.crossoverHz->value()).toDouble());
    restoreCheck(store, key::crossoverBridged, engine.crossoverBridged);
    const int volume = std::clamp(store.value(key::volume, m_ui.dock->volume->value()).toInt(), 0, 100);
    m_ui.dock->showVolume(volume);
    engine.refreshDependents();

    m_start.resumeFile = store.value(key::resumePath).toString();
    m_start.resumePosSec = std::max(0., store.value(key::resumeSec, 0.).toDouble());
    m_start.resumeEnabled = !m_start.resumeFile.isEmpty();
    m_start.lastPlayed = store.value(key::lastPlayed).toString();
    m_start.lastPlayedKey = store.value(key::lastPlayedKey).toString();
    if (const QByteArray geometry = store.value(key::geometry).toByteArray(); !geometry.isEmpty())
        restoreGeometry(geometry);
}

void PlayerGuiWindow::saveParams()
{
    namespace key = settings_key;
    SettingsStore store;
    const EngineControls &engine = *m_ui.engine;
    saveCombo(store, key::mode, engine.mode);
    saveCombo(store, key::layout, engine.layoutChoice);
    saveCombo(store, key::rig, engine.rig);
    saveCombo(store, key::pcmBits, engine.pcmBits);
    saveCombo(store, key::dop, engine.dop);
    saveCombo(store, key::outputPath, engine.outputPath);
    store.setValue(key::engineSrcQuality, engine.resampleQuality->currentData());
    store.setValue(key::peakGuard, engine.peakGuard->isChecked());
    store.setValue(key::denoiseTier, engine.denoiseTier->currentIndex());
    store.setValue(key::keepHarmonics, engine.keepHarmonics->isChecked());
    store.setValue(key::extDecoder, engine.extDecoder->text());
    store.setValue(key::forcedPcm, engine.forcedPcm->isChecked());
    store.setValue(key::speedRatio, engine.speedRatio->value());
    store.setValue(key::crossfadeSec, engine.crossfadeSec->value());
    store.setValue(key::gapless, engine.gapless->isChecked());
    store.setValue(key::replayGain, engine.replayGain->currentData());
    store.setValue(key::pcmFilter, engine.pcmFilter->currentData());
    store.setValue(key::pcmFilterExplicit, m_pcmFilterExplicit);
    store.setValue(key::pcmToDsd, engine.pcmToDsd->isChecked());
    store.setValue(key::pcmToDsdTarget, engine.pcmToDsdTarget->currentData());
    store.setValue(key::pcmToDsdTaps, engine.pcmToDsdTaps->currentData());
    store.setValue(key::crossoverHz, engine.crossoverHz->value());
    store.setValue(key::crossoverBridged, engine.crossoverBridged->isChecked());
    store.setValue(key::volume, m_ui.dock->volume->value());
    QStringList devices;
    for (const QComboBox *combo : m_devices.deviceCombos)
        devices.append(combo->currentData().toString());
    if (m_devices.devicesRestored)
        store.setValue(key::devices, devices);
    store.setValue(key::lastPlayed, m_start.lastPlayed);
    store.setValue(key::lastPlayedKey, m_start.lastPlayedKey);
}
