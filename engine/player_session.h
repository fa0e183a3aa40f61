/// \file
/// One running instance of the engine as the window sees it.
#pragma once

#include "engine/session_code.h"

#include <QString>
#include <QStringList>
#include <functional>

/// Tells the stall report what the calling thread is doing: sets a label and returns the former one.
using ExchangeStage = std::function<QString(const QString &label)>;

/// Started with an argument list, fed control lines; delivers output lines and one notice of its end.
///
/// All calls on the GUI thread, except isRunning() and writeLine(), which any thread may make while the
/// session object is stable. Both sinks are installed right after construction, before start().
class PlayerSession
{
public:
    /// One output line with its newline, where it has one. Called on the GUI thread or on threads of the
    /// session's, also two at a time. It must not print to stdout or stderr: in an in-process session those
    /// are the very stream that it is draining.
    using LineSink = std::function<void(const QString &line, bool isStderr)>;
    /// The end of a session, at most once a start, on the GUI thread.
    using DoneSink = std::function<void(int exitCode, bool crashed)>;

    LineSink lineSink;
    DoneSink doneSink;

    PlayerSession() = default;
    PlayerSession(const PlayerSession &) = delete;
    PlayerSession &operator=(const PlayerSession &) = delete;
    virtual ~PlayerSession();

    /// 0, or one of session_code.
    virtual int start(const QString &program, const QStringList &args) = 0;
    virtual bool isRunning() const = 0;
    /// The line goes without its newline. -1 when not running, 0 when refused, else the bytes taken.
    /// \param flushed whether they have left this process within 200 ms
    virtual int writeLine(const QString &line, bool &flushed) = 0;
    /// Whether writeLine only queues, so that lines have to be accounted for against the engine's log.
    virtual bool isQueuedWrite() const = 0;
    /// Why the last line was refused or the last start failed; empty when there is nothing to say.
    virtual QString lastError() const = 0;
    /// Sends "stop" and waits. The exit code, or session_code::timedOut.
    virtual int stop(int timeoutMs) = 0;
    /// True when the session has ended, false on a time-out.
    virtual bool waitFinished(int timeoutMs) = 0;
    virtual void terminate() = 0;
    virtual void kill() = 0;
    virtual bool canBeKilled() const = 0;
    virtual bool isInProcess() const = 0;
    /// Closes the channel to the engine; ends a child process.
    virtual void close() = 0;
    /// Called every 50 ms by the owner: delivers what has come and reports an end that nothing else reported.
    virtual void poll() = 0;
};
