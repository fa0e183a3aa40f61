/// \file
/// The engine as a child process.
#pragma once

#include "engine/line_cutter.h"
#include "engine/player_session.h"

#include <QPointer>
#include <QProcess>
#include <atomic>

class ProcSession final : public PlayerSession
{
public:
    /// The process becomes a child object of parent: it dies with it or with the session.
    explicit ProcSession(QObject *parent);
    ~ProcSession() override;

    int start(const QString &program, const QStringList &args) override;
    bool isRunning() const override;
    int writeLine(const QString &line, bool &flushed) override;
    bool isQueuedWrite() const override { return false; }
    QString lastError() const override { return {}; }
    int stop(int timeoutMs) override;
    bool waitFinished(int timeoutMs) override;
    void terminate() override;
    void kill() override;
    bool canBeKilled() const override { return true; }
    bool isInProcess() const override { return false; }
    void close() override;
    void poll() override;

private:
    struct Written
    {
        int bytes = 0;
        bool flushed = false;
    };
    static Written writeAndWait(QProcess &process, const QByteArray &bytes);
    int writeFromOtherThread(const QByteArray &bytes, bool &flushed);
    void drainChannel(QProcess::ProcessChannel channel);
    void drain();
    void reportEnd(bool crashed);

    QPointer<QProcess> m_process;
    std::atomic<bool> m_running{false}; ///< mirrors the process's state for other threads
    LineCutter m_outLines;
    LineCutter m_errLines;
    bool m_started = false;
    bool m_doneReported = false;
};
