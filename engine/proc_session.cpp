#include "engine/proc_session.h"

#include <QDeadlineTimer>
#include <QThread>
#include <chrono>
#include <future>
#include <memory>

namespace {

constexpr int startWaitMs = 3000;
constexpr int writeWaitMs = 200;
constexpr int killWaitMs = 2000;

} // namespace

ProcSession::ProcSession(QObject *parent)
    : m_process(new QProcess(parent))
{
    QProcess *process = m_process;
    process->setProcessChannelMode(QProcess::SeparateChannels);
    QObject::connect(process, &QProcess::stateChanged, process,
                     [this](QProcess::ProcessState state) { m_running = state != QProcess::NotRunning; });
    QObject::connect(process, &QProcess::readyReadStandardOutput, process,
                     [this] { drainChannel(QProcess::StandardOutput); });
    QObject::connect(process, &QProcess::readyReadStandardError, process,
                     [this] { drainChannel(QProcess::StandardError); });
    QObject::connect(process, &QProcess::finished, process, [this](int, QProcess::ExitStatus status) {
        drain();
        reportEnd(status == QProcess::CrashExit);
    });
}

ProcSession::~ProcSession()
{
    if (!m_process)
        return;
    // The end that comes with the object's own is nobody's news any more.
    m_process->disconnect();
    if (m_process->state() != QProcess::NotRunning) {
        m_process->kill();
        m_process->waitForFinished(killWaitMs);
    }
    delete m_process;
}

int ProcSession::start(const QString &program, const QStringList &args)
{
    if (!m_process)
        return session_code::couldNotStart;
    if (isRunning())
        return session_code::alreadyRunning;
    m_started = false;
    m_doneReported = false;
    m_outLines = {};
    m_errLines = {};
    m_process->start(program, args, QIODevice::ReadWrite);
    m_started = m_process->waitForStarted(startWaitMs);
    return m_started ? session_code::ok : session_code::couldNotStart;
}

bool ProcSession::isRunning() const
{
    return m_running;
}

int ProcSession::writeLine(const QString &line, bool &flushed)
{
    flushed = false;
    if (!m_process || !isRunning())
        return session_code::refused;
    // The engine would take what stands behind a break for a line of its own.
    if (line.contains(u'\n'))
        return 0;
    const QByteArray bytes = line.toUtf8() + '\n';
    if (QThread::currentThread() != m_process->thread())
        return writeFromOtherThread(bytes, flushed);
    const Written written = writeAndWait(*m_process, bytes);
    flushed = written.flushed;
    return written.bytes;
}

ProcSession::Written ProcSession::writeAndWait(QProcess &process, const QByteArray &bytes)
{
    if (process.state() == QProcess::NotRunning)
        return {session_code::refused, false};
    const qint64 taken = process.write(bytes);
    if (taken <= 0)
        return {};
    const QDeadlineTimer deadline(writeWaitMs);
    while (process.bytesToWrite() > 0 && !deadline.hasExpired()) {
        if (!process.waitForBytesWritten(static_cast<int>(deadline.remainingTime())))
            break;
    }
    return {static_cast<int>(taken), process.bytesToWrite() == 0};
}

/// A process object belongs to its thread. The line is handed over there, and its fate waited for no longer
/// than an ordinary write; a GUI thread that is busy writes it later.
int ProcSession::writeFromOtherThread(const QByteArray &bytes, bool &flushed)
{
    const auto promise = std::make_shared<std::promise<Written>>();
    std::future<Written> fate = promise->get_future();
    QProcess *const process = m_process;
    QMetaObject::invokeMethod(
        process, [process, promise, bytes] { promise->set_value(writeAndWait(*process, bytes)); },
        Qt::QueuedConnection);
    if (fate.wait_for(std::chrono::milliseconds(writeWaitMs)) != std::future_status::ready)
        return static_cast<int>(bytes.size());
    try {
        const Written written = fate.get();
        flushed = written.flushed;
        return written.bytes;
    } catch (const std::future_error &) {
        return session_code::refused; // the process object went away with the call still queued
    }
}

int ProcSession::stop(int timeoutMs)
{
    bool flushed = false;
    writeLine(QStringLiteral("stop"), flushed);
    if (!waitFinished(timeoutMs))
        return session_code::timedOut;
    return m_process && m_started ? m_process->exitCode() : session_code::refused;
}

bool ProcSession::waitFinished(int timeoutMs)
{
    return !m_process || !isRunning() || m_process->waitForFinished(timeoutMs) || !isRunning();
}

void ProcSession::terminate()
{
    if (m_process)
        m_process->terminate();
}

void ProcSession::kill()
{
    if (m_process)
        m_process->kill();
}

void ProcSession::close()
{
    if (!m_process)
        return;
    if (isRunning()) {
        // Closing waits until all bytes have left, for ever with an engine that does not read. It ends the
        // process anyway, so that happens first.
        m_process->waitForBytesWritten(writeWaitMs);
        m_process->kill();
    }
    m_process->close();
}

void ProcSession::poll()
{
    if (!m_process)
        return;
    drain();
    if (!isRunning())
        reportEnd(false);
}

void ProcSession::drainChannel(QProcess::ProcessChannel channel)
{
    const bool isStderr = channel == QProcess::StandardError;
    LineCutter &lines = isStderr ? m_errLines : m_outLines;
    const QByteArray bytes =
        isStderr ? m_process->readAllStandardError() : m_process->readAllStandardOutput();
    lines.append({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    while (const auto line = lines.next()) {
        if (lineSink)
            lineSink(QString::fromStdString(*line), isStderr);
    }
}

void ProcSession::drain()
{
    if (!m_process->isOpen())
        return;
    drainChannel(QProcess::StandardOutput);
    drainChannel(QProcess::StandardError);
}

void ProcSession::reportEnd(bool crashed)
{
    if (!m_started || m_doneReported)
        return;
    m_doneReported = true;
    if (const DoneSink done = doneSink)
        done(m_process->exitCode(), crashed);
}
