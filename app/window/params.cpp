// What the listener chose, from run to run.
#include "ui/window/player_gui_window.h"

#include "app/combo_restore.h"
#include "app/settings_store.h"
#include "app/stored_params.h"
#include "output/engine_controls.h"
#include "platform/settings_table.h"
#include "ui/dock_bar.h"

namespace {

template<class Value, class Widget, class Setter>
void setIfStored(const std::optional<Value> &stored, Widget *widget, Setter setter)
{
    if (stored)
        (widget->*setter)(*stored);
}

/// For combos whose stored form is the number in their data.
void selectNumber(QComboBox *combo, int number)
{
    const int index = combo->findData(number);
    if (index >= 0)
        combo->setCurrentIndex(index);
}

} // namespace

void PlayerGuiWindow::restoreCombo(QSettings &store, QLatin1StringView key, QComboBox *combo)
{
    restoreComboText(store.value(key).toString(), combo);
}

void PlayerGuiWindow::restoreComboText(const QString &stored, QComboBox *combo)
{
    const QString wanted = stored.trimmed();
    if (wanted.isEmpty())
        return;
    QList<ComboItem> items;
    for (int i = 0; i < combo->count(); ++i)
        items.append({combo->itemText(i), combo->itemData(i).toString()});
    const int index = findComboItem(items, wanted);
    if (index >= 0)
        combo->setCurrentIndex(index);
    else
        logLine(tr("参数恢复: 找不到匹配项 %1 (保持默认)").arg(wanted));
}

void PlayerGuiWindow::saveCombo(QSettings &store, QLatin1StringView key, const QComboBox *combo)
{
    store.setValue(key, combo->currentText());
}

void PlayerGuiWindow::loadParams()
{
    SettingsStore file;
    QSettingsAccess store(file);
    const StoredParams params = ::loadParams(store);
    EngineControls &engine = *m_ui.engine;
    const QSignalBlocker blockEngine(m_ui.engine);
    // These two tell a running session at once; what is restored was not chosen now.
    const QSignalBlocker blockGuard(engine.peakGuard);
    const QSignalBlocker blockSpeed(engine.speedRatio);

    restoreComboText(params.mode, engine.mode);
    restoreComboText(params.layout, engine.layoutChoice);
    restoreComboText(params.rig, engine.rig);
    restoreComboText(params.pcmBits, engine.pcmBits);
    restoreComboText(params.dop, engine.dop);
    restoreComboText(params.outputPath, engine.outputPath);
    setIfStored(params.peakGuard, engine.peakGuard, &QCheckBox::setChecked);
    engine.denoiseTier->setCurrentIndex(params.denoiseTier);
    engine.keepHarmonics->setChecked(params.keepHarmonics);
    engine.extDecoder->setText(params.extDecoder);
    setIfStored(params.forcedPcm, engine.forcedPcm, &QCheckBox::setChecked);
    engine.speedRatio->setValue(params.speedRatio);
    engine.crossfadeSec->setValue(params.crossfadeSec);
    engine.gapless->setChecked(params.gapless);
    selectNumber(engine.replayGain, params.replayGain);
    restoreComboText(params.pcmFilter, engine.pcmFilter);
    m_pcmFilterExplicit = params.pcmFilterExplicit;
    engine.pcmToDsd->setChecked(params.pcmToDsd);
    selectNumber(engine.pcmToDsdTarget, params.pcmToDsdTargetHz);
    selectNumber(engine.pcmToDsdTaps, params.pcmToDsdTaps);
    setIfStored(params.crossoverHz, engine.crossoverHz, &QDoubleSpinBox::setValue);
    setIfStored(params.crossoverBridged, engine.crossoverBridged, &QCheckBox::setChecked);
    m_ui.dock->showVolume(std::clamp(params.volume.value_or(m_ui.dock->volume->value()), 0, 100));
    setIfStored(params.resample, engine.resample, &QCheckBox::setChecked);
    setIfStored(params.streamRead, engine.streamingRead, &QCheckBox::setChecked);
    restoreCombo(file, settings::engineSrcQuality.key, engine.resampleQuality);
    engine.refreshDependents();

    m_transport.order.order = orderAxisOf(params.orderAxis);
    m_transport.order.repeat = repeatAxisOf(params.repeatAxis);
    m_start.resumeFile = readSetting(store, settings::resumePath);
    m_start.resumePosSec = std::max(0., readSetting(store, settings::resumeSec));
    m_start.resumeEnabled = !m_start.resumeFile.isEmpty();
    m_start.lastPlayed = readSetting(store, settings::lastPlayed);
    m_start.lastPlayedKey = readSetting(store, settings::lastPlayedKey);
    if (const QByteArray geometry = readSetting(store, settings::geometry); !geometry.isEmpty())
        restoreGeometry(geometry);
}

void PlayerGuiWindow::saveParams()
{
    SettingsStore file;
    QSettingsAccess store(file);
    const EngineControls &engine = *m_ui.engine;
    // What has no control in the window keeps its stored value.
    StoredParams params = ::loadParams(store);
    params.mode = engine.mode->currentText();
    params.layout = engine.layoutChoice->currentText();
    params.rig = engine.rig->currentText();
    params.pcmBits = engine.pcmBits->currentText();
    params.dop = engine.dop->currentText();
    params.outputPath = engine.outputPath->currentText();
    params.peakGuard = engine.peakGuard->isChecked();
    params.denoiseTier = engine.denoiseTier->currentIndex();
    params.keepHarmonics = engine.keepHarmonics->isChecked();
    params.extDecoder = engine.extDecoder->text();
    params.forcedPcm = engine.forcedPcm->isChecked();
    params.speedRatio = engine.speedRatio->value();
    params.crossfadeSec = engine.crossfadeSec->value();
    params.gapless = engine.gapless->isChecked();
    params.replayGain = engine.replayGain->currentData().toInt();
    params.pcmFilter = engine.pcmFilter->currentData().toString();
    params.pcmFilterExplicit = m_pcmFilterExplicit;
    params.pcmToDsd = engine.pcmToDsd->isChecked();
    params.pcmToDsdTargetHz = engine.pcmToDsdTarget->currentData().toInt();
    params.pcmToDsdTaps = engine.pcmToDsdTaps->currentData().toInt();
    params.crossoverHz = engine.crossoverHz->value();
    params.crossoverBridged = engine.crossoverBridged->isChecked();
    params.orderAxis = static_cast<int>(m_transport.order.order);
    params.repeatAxis = static_cast<int>(chosenRepeat());
    // A volume that is just fading out was not chosen.
    const int faded = m_transport.sleep.volumeBefore;
    params.volume = faded >= 0 ? faded : m_ui.dock->volume->value();
    params.resample = engine.resample->isChecked();
    params.streamRead = engine.streamingRead->isChecked();
    ::saveParams(params, store);
    writeSetting(store, settings::engineSrcQuality, engine.resampleQuality->currentData().toString());
    QStringList devices;
    for (const QComboBox *combo : m_devices.deviceCombos)
        devices.append(combo->currentData().toString());
    if (m_devices.devicesRestored)
        writeSetting(store, settings::devices, devices);
    writeSetting(store, settings::lastPlayed, m_start.lastPlayed);
    writeSetting(store, settings::lastPlayedKey, m_start.lastPlayedKey);
}
