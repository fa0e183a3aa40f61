// The facts for the engine's command line, gathered from the controls and the settings.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "app/stored_params.h"
#include "engine/audible_effects.h"
#include "engine/engine_location.h"
#include "engine/engine_log.h"
#include "engine/session_kind.h"
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
    facts.denoiseTier = m_choices.denoiseTier;
    return effectsWantPcm(facts);
}

EngineArgsInput PlayerGuiWindow::engineArgsInput() const
{
    const UserSettings store;
    EngineArgsInput input;
    input.parentPid = QCoreApplication::applicationPid();
    input.dspPlugins = readSetting(store, settings::dspPlugins);
    input.prefetchDecode = readSetting(store, settings::prefetchDecode);
    input.vizMode = vizModeAtTrackStart(store);
    input.effectsAudible = effectsAudible();
    input.mode = m_choices.mode;
    input.channelCount = m_choices.channelCount;
    input.channelDevices = m_choices.channelDevices;
    input.primaryDevice = m_ui.device->currentData().toString();
    input.crossoverHz = m_choices.crossoverHz;
    input.crossoverBridged = m_choices.crossoverBridged;
    input.rigValue = m_choices.rig;
    input.dop = m_choices.dop;
    input.outputPath = m_choices.outputPath;
    input.exclusiveFallback =
        m_start.exclusiveFallbackRow >= 0 && m_start.exclusiveFallbackRow == m_start.currentRow;
    input.peakGuard = m_choices.peakGuard;
    input.denoiseTier = m_choices.denoiseTier;
    input.keepHarmonics = m_choices.keepHarmonics;
    input.resample = m_choices.resample;
    input.resampleQuality = m_choices.resampleQuality;
    input.streamingRead = m_choices.streamingRead;
    input.crossfadeSec = m_choices.crossfadeSec;
    input.gapless = m_choices.gapless;
    input.replayGainMode = m_choices.replayGainMode;
    input.speedRatio = m_choices.speedRatio;
    input.forcedPcm = m_choices.forcedPcm;
    input.pcmBits = m_choices.pcmBits;
    input.pcmFilter = m_choices.pcmFilter;
    input.pcmFilterExplicit = m_choices.pcmFilterExplicit;
    input.pcmToDsd = m_choices.pcmToDsd;
    input.pcmToDsdTargetHz = m_choices.pcmToDsdTargetHz;
    input.pcmToDsdTaps = m_choices.pcmToDsdTaps;
    input.volume = m_ui.dock->volume->value();
    input.volumeTouched = m_volumeTouched;
    input.extDecoder = m_choices.extDecoder;
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
