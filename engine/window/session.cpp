// The one current session: its making, its timers, its account of control lines.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "app/stall_report.h"
#include "engine/control_closure.h"
#include "engine/telemetry_mailbox.h"
#include "platform/settings_table.h"

#include <QDateTime>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

constexpr int pollIntervalMs = 50;
constexpr int lagTestAfterMs = 1500;
constexpr int lagTestMs = 600;

} // namespace

SessionOptions PlayerGuiWindow::sessionOptions()
{
    SessionOptions options;
    options.kind = sessionKindFacts(readUserSetting(settings::engineInproc));
    options.exchangeStage = [this](const QString &label) { return markStage(label); };
    return options;
}

bool PlayerGuiWindow::sessionRuns() const
{
    return m_link.session && m_link.session->isRunning();
}

void PlayerGuiWindow::ensureSession()
{
    if (m_link.session && m_link.session->isInProcess() &&
        m_link.session->stop(m_options.times.replace) == session_code::timedOut) {
        logLine(tr("上一个进程内会话 2 秒内没有收尾 —— 本进程可能仍占着独占设备，下一首可能打不开它"), true);
    }
    m_link.session.reset();
    // What a session that would not end still says is no news of the next one.
    if (m_link.mailbox)
        m_link.mailbox->close();
    clearDelayedTelemetry();
    delete m_link.pollTimer;
    m_link.pollTimer = nullptr;

    m_link.session = m_options.makeSession(this, sessionOptions());
    logLine(u"[gui] 播放会话: %1"_s.arg(
        m_link.session->isInProcess()
            ? u"进程内 (GUI 直接调播放器核)"_s
            : u"独立进程 (KelpPlayerEngine.exe; 设置 engine/inproc=0 或设备降级时)"_s));
    installSinks();
    startSessionTimers();
}

void PlayerGuiWindow::installSinks()
{
    // The sinks run on threads of the session's and may outlive this session, never this window: they queue.
    m_link.mailbox = std::make_shared<TelemetryMailbox>(
        [this](const QString &line, bool isStderr) {
            QMetaObject::invokeMethod(
                this,
                [this, line, isStderr] { guarded(u"onEngineLine"_s, [&] { onEngineLine(line, isStderr); }); },
                Qt::QueuedConnection);
        },
        [this] {
            QMetaObject::invokeMethod(
                this, [this] { guarded(u"drainMailbox"_s, [this] { drainMailbox(); }); },
                Qt::QueuedConnection);
        });
    m_link.session->lineSink = [mailbox = m_link.mailbox](const QString &line, bool isStderr) {
        mailbox->put(line, isStderr);
    };
    m_link.session->doneSink = [this](int exitCode, bool crashed) {
        const int startIndex = m_link.startCount;
        QMetaObject::invokeMethod(
            this,
            [this, exitCode, crashed, startIndex] {
                guarded(u"onEngineDone"_s, [&] { onEngineDone(exitCode, crashed, startIndex); });
            },
            Qt::QueuedConnection);
    };
}

void PlayerGuiWindow::startSessionTimers()
{
    m_link.pollTimer = new QTimer(this);
    connect(m_link.pollTimer, &QTimer::timeout, this, [this] {
        if (m_link.session)
            m_link.session->poll();
    });
    m_link.pollTimer->start(pollIntervalMs);
    addStallReporter();
    if (qEnvironmentVariableIsSet("KELP_GUI_LAG_TEST"))
        QTimer::singleShot(lagTestAfterMs, this, [] { QThread::msleep(lagTestMs); });
}

void PlayerGuiWindow::addStallReporter()
{
    // Every session adds one, for the life of the window.
    auto *timer = new QTimer(this);
    auto last = std::make_shared<qint64>(QDateTime::currentMSecsSinceEpoch());
    connect(timer, &QTimer::timeout, this, [this, last] {
        const qint64 now = QDateTime::currentMSecsSinceEpoch();
        const QString report = stallReport(now - std::exchange(*last, now), m_log.stage.label());
        if (!report.isEmpty())
            logLine(report);
    });
    timer->start(stallTickMs);
}

void PlayerGuiWindow::dropSessionOfOtherKind()
{
    if (!m_link.session || m_link.session->isRunning())
        return;
    if (m_link.session->isInProcess() != factoryWantsInProcess(sessionOptions().kind))
        m_link.session.reset();
}

void PlayerGuiWindow::checkControlClosure()
{
    ControlClosureFacts facts;
    facts.queued = m_link.queuedCtlCount;
    const QString holderDir = m_link.logHolder ? m_link.logHolder->path() : QString();
    facts.source = m_link.logPath.isEmpty() ? holderDir : m_link.logPath;
    facts.receivedCount = m_link.received.countNew(m_link.logPath, holderDir);
    for (const ControlClosureLine &line : closureVerdict(facts))
        logLine(line.text, line.isError);
    m_link.queuedCtlCount = 0;
}

void PlayerGuiWindow::shutdown()
{
    killProc(true);
    checkControlClosure();
    m_link.hostCopy.reset();
}
