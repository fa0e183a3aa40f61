// The one door for control lines.
#include "ui/window/player_gui_window.h"

#include "engine/control_report.h"

#include <QElapsedTimer>
#include <QThread>

bool PlayerGuiWindow::sendCmd(const QString &line)
{
    // An effects line is sent by a worker. What the window remembers and shows of it belongs to the GUI
    // thread.
    const bool onGuiThread = QThread::currentThread() == thread();
    const auto onGui = [&](auto &&task) {
        if (onGuiThread)
            task();
        else
            QMetaObject::invokeMethod(this, std::forward<decltype(task)>(task), Qt::QueuedConnection);
    };
    onGui([this, line] {
        if (const std::optional<QString> effect = effectNameOf(line))
            m_link.fxLast.insert(*effect, line);
        if (expectsSound(line))
            startNoAudioTimer();
    });

    QElapsedTimer clock;
    clock.start();
    ControlSendFacts facts;
    facts.line = line;
    if (m_link.session) {
        facts.hasSession = true;
        facts.queues = m_link.session->isQueuedWrite();
        facts.bytes = m_link.session->writeLine(line, facts.flushed);
        facts.sessionError = m_link.session->lastError();
    }
    facts.tookMs = clock.elapsed();

    const ControlSendReport report = controlSendReport(facts);
    onGui([this, report] {
        if (report.counts)
            ++m_link.queuedCtlCount;
        if (!report.slowComplaint.isEmpty())
            logLine(report.slowComplaint, true);
        logLine(report.logText, !report.taken);
    });
    return report.taken;
}

void PlayerGuiWindow::startNoAudioTimer()
{
    if (!m_link.noAudioTimer) {
        m_link.noAudioTimer = new QTimer(this);
        m_link.noAudioTimer->setSingleShot(true);
        connect(m_link.noAudioTimer, &QTimer::timeout, this, &PlayerGuiWindow::noAudioWatchdog);
    }
    m_link.noAudioTimer->start(m_options.times.noAudio);
}
