// The start of a track.
#include "ui/window/player_gui_window.h"

#include "engine/command_line.h"
#include "engine/stage_label.h"
#include "playback/playlist_widget.h"
#include "playback/track_start.h"

#include <QElapsedTimer>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 slowStageMs = 50;
constexpr int mostDenoiseTier = 3;

/// What the engine calls itself when it runs inside this process.
constexpr auto inProcessProgram = "KelpPlayer"_L1;
constexpr auto engineName = "KelpPlayerEngine"_L1;

} // namespace

void PlayerGuiWindow::playCurrent()
{
    const ExchangeStage exchange = [this](const QString &label) { return markStage(label); };
    const StageLabel stage(exchange, u"playCurrent(起播/换曲)"_s);
    if (!guarded(u"playCurrent"_s, [this] { playCurrentUnguarded(); }))
        setPlayingUi(false);
}

void PlayerGuiWindow::playCurrentUnguarded()
{
    QElapsedTimer clock;
    clock.start();
    m_preload = {};
    // Started again by a session and not by hand: what stands in its place now takes its turn.
    if (std::exchange(m_start.currentRowGone, false))
        ++m_start.currentRow;
    if (!skipMissingFiles()) {
        leaveUnstarted();
        logLine(tr("播放列表结束"));
        return;
    }
    if (!findEngine()) {
        leaveUnstarted();
        return;
    }

    const PlaylistEntry entry = m_ui.playlist->entryAt(m_start.currentRow);
    const TrackStartFacts facts = trackStartFacts(entry);
    const TrackStartPlan plan = planTrackStart(facts);
    if (plan.rebuild)
        closeForRebuild();
    if (!plan.reuse)
        dropSessionOfOtherKind();
    m_start.lastStartedRow = m_start.currentRow;

    EngineArgsInput input = engineArgsInput();
    input.file = plan.argFile;
    input.cuePath = plan.argCue;
    input.isoPath = plan.argIso;
    input.track = plan.argTrack;
    input.startSec = plan.startSec;
    const EngineArgsResult built = buildEngineArgs(input);
    tellNotices(built.notices);
    if (built.args.isEmpty()) {
        leaveUnstarted();
        return;
    }
    logStart(plan, entry, built.args);

    ++m_start.playGeneration;
    if (m_start.startedEnded)
        m_start.former.forget();
    else
        m_start.former.left(m_progress.lastPosSec, m_progress.lastTotalSec);
    resetTrackState(std::max(0., plan.startSec));
    showTrackOf(m_start.currentRow);
    noteStarted(entry);
    setPlayingUi(true);
    logElapsed(u"prepare"_s, clock.restart());
    if (!plan.reuse && !startSession(plan, built.args, facts.wanted)) {
        setPlayingUi(false);
        return;
    }
    logElapsed(u"session"_s, clock.restart());
    refreshStartButton();
    refreshNavButtons();
    sendLoadLine(plan);
    // Behind the load line: the loop is one of the new track.
    applyAbLoop();
    logElapsed(u"load"_s, clock.restart());
}

void PlayerGuiWindow::leaveUnstarted()
{
    // Nothing was sent, so a track that sounds goes on, and the listener must be able to stop it.
    setPlayingUi(m_start.uiPlaying && !m_start.startedEnded && sessionRuns());
}

void PlayerGuiWindow::logElapsed(const QString &stage, qint64 elapsedMs)
{
    if (elapsedMs > slowStageMs)
        logLine(tr("[耗时] %1 %2 ms").arg(stage).arg(elapsedMs));
}

bool PlayerGuiWindow::skipMissingFiles()
{
    for (; m_ui.playlist->hasRow(m_start.currentRow); ++m_start.currentRow) {
        const PlaylistEntry entry = m_ui.playlist->entryAt(m_start.currentRow);
        const QString path = entry.path.trimmed();
        if (path.isEmpty() || !QFileInfo(path).isFile())
            logLine(tr("跳过（文件不存在）: %1").arg(path), true);
        else if (!canBeNamed(entry))
            logLine(tr("跳过（路径里有换行，控制行装不下它）: %1").arg(path.simplified()), true);
        else
            return true;
    }
    return false;
}

bool PlayerGuiWindow::canBeNamed(const PlaylistEntry &entry) const
{
    const bool queued = m_link.session ? m_link.session->isQueuedWrite() : isInProcessPreferred();
    return fitsControlLine(entry, queued);
}

bool PlayerGuiWindow::findEngine()
{
    if (m_link.playerBin.isEmpty())
        locateEngine();
    if (!m_link.playerBin.isEmpty() || isInProcessPreferred())
        return true;
    logLine(tr("错误: 找不到播放引擎 %1 —— 请把它放在本程序同目录、加入 PATH，或用 KELP_PLAYER_BIN 指向它。")
                .arg(engineName),
            true);
    return false;
}

SessionShape PlayerGuiWindow::wantedShape() const
{
    return {m_ui.device->currentData().toString(), m_choices.mode, effectsAudible()};
}

TrackStartFacts PlayerGuiWindow::trackStartFacts(const PlaylistEntry &entry) const
{
    TrackStartFacts facts;
    facts.entry = entry;
    facts.absolutePath = QFileInfo(entry.path).absoluteFilePath();
    facts.row = m_start.currentRow;
    facts.lastStartedRow = m_start.lastStartedRow;
    facts.sessionLive = m_start.sessionLive;
    facts.sessionRuns = sessionRuns();
    facts.opened = m_start.opened;
    facts.wanted = wantedShape();
    facts.lastPosSec = m_progress.lastPosSec;
    facts.lastPosRow = m_progress.lastPosRow;
    facts.resumeEnabled = m_start.resumeEnabled;
    facts.resumeFile = m_start.resumeFile;
    facts.resumePosSec = m_start.resumePosSec;
    return facts;
}

void PlayerGuiWindow::closeForRebuild()
{
    logLine(tr("设备或布局有变 -> 关闭当前会话（释放设备）"));
    m_start.sessionLive = false;
    m_start.sessionClosing = true;
    m_start.sessionDenoiseTier = -1;
    sendCmd(u"stop"_s);
    if (!m_link.session->waitFinished(m_options.times.rebuild)) {
        logLine(tr("旧会话 10 秒内没有退出 —— 强制结束它（设备可能要再等一会儿才释放）"), true);
        m_link.session->kill();
        m_link.session->waitFinished(m_options.times.rebuildKill);
    }
    m_link.session->close();
}

void PlayerGuiWindow::logStart(const TrackStartPlan &plan, const PlaylistEntry &entry,
                               const QStringList &args)
{
    if (plan.reuse) {
        logLine(tr("复用当前会话（换曲只发 load，不重发参数）: %1").arg(entry.path));
        return;
    }
    const bool inProcess = m_link.session ? m_link.session->isInProcess() : isInProcessPreferred();
    if (inProcess)
        logLine(tr("[进程内 DLL] 会话参数: %1").arg(args.join(u' ')));
    else
        logLine(tr("播放命令: %1").arg(printableCommand(m_link.playerBin, args)));
}

bool PlayerGuiWindow::startSession(const TrackStartPlan &plan, const QStringList &args,
                                   const SessionShape &wanted)
{
    markStage(u"ensureSession(建会话)"_s);
    if (!m_link.session)
        ensureSession();
    markStage(u"下发 load"_s);
    if (m_link.queuedCtlCount > 0)
        checkControlClosure();
    prepareSessionLog();
    const int code = m_link.session->start(
        m_link.playerBin.isEmpty() ? QString(inProcessProgram) : m_link.playerBin, args);
    if (code != session_code::ok) {
        const QString reason = m_link.session->lastError();
        logLine(tr("播放器启动失败（会话 start 返回 %1）⇒ 回到未播放状态").arg(code), true);
        if (!reason.isEmpty())
            logLine(reason, true);
        return false;
    }
    ++m_link.startCount;
    m_start.sessionDenoiseTier = std::clamp(m_choices.denoiseTier, 0, mostDenoiseTier);
    m_start.sessionHarmonics = m_choices.keepHarmonics;
    m_start.sessionGuard = m_choices.peakGuard;
    m_start.sessionLive = plan.becomesLive;
    m_start.opened = wanted;
    m_start.sessionClosing = false;
    return true;
}

void PlayerGuiWindow::sendLoadLine(const TrackStartPlan &plan)
{
    if (plan.loadLine.isEmpty())
        return;
    const bool sent = sendCmd(plan.loadLine);
    if (plan.announcesResume)
        logLine(resumeAnnouncement(plan.startSec));
    if (!sent)
        return;
    markStage(u"applyDeviceProfile(设备设置)"_s);
    applyDeviceProfile();
    resendSessionDifferences();
}

void PlayerGuiWindow::resendSessionDifferences()
{
    static const std::array tierWords = {u"off"_s, u"light"_s, u"standard"_s, u"deep"_s};
    const auto onOff = [](bool on) { return on ? u"on"_s : u"off"_s; };

    const int tier = std::clamp(m_choices.denoiseTier, 0, mostDenoiseTier);
    if (tier != std::exchange(m_start.sessionDenoiseTier, tier)) {
        const QString &word = tierWords.at(static_cast<std::size_t>(tier));
        sendCmd(u"fx denoise "_s + word);
        logLine(tr("向运行中的会话补发降噪档: %1（复用会话不会重读命令行参数）").arg(word));
    }
    const bool guard = m_choices.peakGuard;
    if (guard != std::exchange(m_start.sessionGuard, guard)) {
        sendCmd(u"guard "_s + onOff(guard));
        logLine(tr("向运行中的会话补发峰值保护: %1").arg(onOff(guard)));
    }
    const bool harmonics = m_choices.keepHarmonics;
    if (harmonics != std::exchange(m_start.sessionHarmonics, harmonics) && tier >= 1)
        sendCmd(u"fx harmonics "_s + onOff(harmonics));
}
