// The facts for the engine's command line, gathered from the controls and the settings.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "app/stored_params.h"
#include "engine/audible_effects.h"
#include "engine/engine_location.h"
#include "engine/engine_log.h"
#include "engine/session_kind.h"
#include "output/engine_controls.h"
#include "platform/settings_table.h"
#include "ui/dock_bar.h"

#include <QCoreApplication>
#include <QMessageBox>

using namespace Qt::StringLiterals;

void PlayerGuiWindow::locateEngine()
{
    const EngineLocation found = ::locateEngine(engineLocationFacts());
    m_link.playerBin = found.path;
    m_link.playerBinSource = found.source;
}

bool PlayerGuiWindow::isInProcessPreferred() const
{
    const bool stored = readUserSetting(settings::engineInproc);
    return ::isInProcessPreferred(sessionKindFacts(stored));
}

bool PlayerGuiWindow::effectsAudible() const
{
    AudibleEffectsFacts facts;
    facts.denoiseTier = m_ui.engine->denoiseTier->currentIndex();
    return effectsWantPcm(facts);
}

EngineArgsInput PlayerGuiWindow::engineArgsInput() const
{
    SettingsStore file;
    const QSettingsAccess store(file);
    const EngineControls &engine = *m_ui.engine;
    EngineArgsInput input;
    input.parentPid = QCoreApplication::applicationPid();
    input.dspPlugins = readSetting(store, settings::dspPlugins);
    input.prefetchDecode = readSetting(store, settings::prefetchDecode);
    input.vizMode = vizModeAtTrackStart(store);
    input.effectsAudible = effectsAudible();
    input.mode = engine.mode->currentText();
    input.channelCount = engine.channelCount();
    for (const QComboBox *combo : engine.channelDevices)
        input.channelDevices.append(combo->currentData().toString());
    input.primaryDevice = m_ui.device->currentData().toString();
    input.crossoverHz = engine.crossoverHz->value();
    input.crossoverBridged = engine.crossoverBridged->isChecked();
    input.rigValue = engine.rig->currentData().toString();
    input.dop = engine.dop->currentText();
    input.outputPath = engine.outputPath->currentText();
    input.exclusiveFallback =
        m_start.exclusiveFallbackRow >= 0 && m_start.exclusiveFallbackRow == m_start.currentRow;
    input.peakGuard = engine.peakGuard->isChecked();
    input.denoiseTier = engine.denoiseTier->currentIndex();
    input.keepHarmonics = engine.keepHarmonics->isChecked();
    input.resample = engine.resample->isChecked();
    input.resampleQuality = engine.resampleQuality->currentData().toString();
    input.streamingRead = engine.streamingRead->isChecked();
    input.crossfadeSec = engine.crossfadeSec->value();
    input.gapless = engine.gapless->isChecked();
    input.replayGainMode = engine.replayGain->currentData().toInt();
    input.speedRatio = engine.speedRatio->value();
    input.forcedPcm = engine.forcedPcm->isChecked();
    input.pcmBits = engine.pcmBits->currentText();
    input.pcmFilter = engine.pcmFilter->currentData().toString();
    input.pcmFilterExplicit = m_pcmFilterExplicit;
    input.pcmToDsd = engine.pcmToDsd->isChecked();
    input.pcmToDsdTargetHz = engine.pcmToDsdTarget->currentData().toInt();
    input.pcmToDsdTaps = engine.pcmToDsdTaps->currentData().toInt();
    input.volume = m_ui.dock->volume->value();
    input.volumeTouched = m_volumeTouched;
    input.extDecoder = engine.extDecoder->text();
    return input;
}

void PlayerGuiWindow::tellNotices(const QList<EngineArgsNotice> &notices)
{
    for (const EngineArgsNotice &notice : notices) {
        if (notice.kind == EngineArgsNotice::Kind::LogLine)
            logLine(notice.text);
        else
            QMessageBox::warning(this, notice.title, notice.text);
    }
}

void PlayerGuiWindow::prepareSessionLog()
{
    const bool keep = readUserSetting(settings::keepEngineLog);
    m_link.logPath = prepareEngineLog(u"kelp-player"_s, &m_link.logHolder, keep);
    m_link.hostCopy.reset();
    m_link.hostLineCount = 0;
    if (m_link.session->isInProcess() && !m_link.logPath.isEmpty()) {
        auto copy = std::make_unique<QFile>(m_link.logPath);
        if (copy->open(QIODevice::WriteOnly | QIODevice::Append)) {
            copy->write("=== host-side copy (in-process session) ===\n");
            copy->flush();
            m_link.hostCopy = std::move(copy);
        }
    }
    if (m_link.logPath.isEmpty())
        logLine(tr("引擎日志: 由引擎放在它自己的默认位置"));
    else if (keep)
        logLine(tr("引擎日志（保留，退出时不删）: %1").arg(m_link.logPath));
    else
        logLine(tr("引擎日志（本次会话，退出时删除）: %1").arg(m_link.logPath));
}
