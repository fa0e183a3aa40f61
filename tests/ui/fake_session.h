/// \file
/// A session that plays nothing and remembers what it was told.
#pragma once

#include "engine/player_session.h"

#include <QElapsedTimer>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>

/// What outlives the session object: the window destroys sessions as it likes.
struct FakeEngine
{
    // What the next session does.
    bool inProcess = true;
    int startCode = session_code::ok;
    bool takesLines = true;
    bool endsOnStop = true;
    int stopAnswer = 3;
    QString lastError;
    /// What it says to a control line, at once; empty: nothing.
    std::function<void(class FakeSession &session, const QString &line)> answer;

    // What sessions did.
    int created = 0;
    int destroyed = 0;
    int polls = 0;
    QStringList calls; ///< "start …", "write …", "stop 2000", "wait 10000", "kill" … in order
    QList<QStringList> startArgs;
    class FakeSession *current = nullptr;

    QStringList lines() const { return calls.filter(QRegularExpression(QStringLiteral("^write "))); }
    bool did(const QString &call) const { return calls.contains(call); }
    void note(const QString &call)
    {
        calls.append(call);
        if (!m_toldAtMs.contains(call))
            m_toldAtMs.insert(call, m_clock.elapsed());
    }
    /// When the call was made first, in milliseconds since the test's beginning; -1 for never.
    qint64 toldAt(const QString &call) const { return m_toldAtMs.value(call, -1); }

    FakeEngine() { m_clock.start(); }

private:
    QElapsedTimer m_clock;
    QHash<QString, qint64> m_toldAtMs;
};

class FakeSession final : public PlayerSession
{
public:
    explicit FakeSession(FakeEngine &engine)
        : m_engine(engine)
    {
        ++m_engine.created;
        m_engine.current = this;
    }
    ~FakeSession() override
    {
        ++m_engine.destroyed;
        if (m_engine.current == this)
            m_engine.current = nullptr;
    }

    int start(const QString &program, const QStringList &args) override
    {
        m_engine.note(QStringLiteral("start ") + program);
        m_engine.startArgs.append(args);
        m_running = m_engine.startCode == session_code::ok;
        return m_engine.startCode;
    }
    bool isRunning() const override { return m_running; }
    int writeLine(const QString &line, bool &flushed) override
    {
        flushed = true;
        if (!m_running)
            return -1;
        m_engine.note(QStringLiteral("write ") + line);
        if (line == QStringLiteral("stop") && m_engine.endsOnStop)
            endWith(m_engine.stopAnswer);
        else if (m_engine.answer)
            m_engine.answer(*this, line);
        return m_engine.takesLines ? static_cast<int>(line.toUtf8().size()) + 1 : 0;
    }
    bool isQueuedWrite() const override { return m_engine.inProcess; }
    QString lastError() const override { return m_engine.lastError; }
    int stop(int timeoutMs) override
    {
        m_engine.note(QStringLiteral("stop %1").arg(timeoutMs));
        if (!m_running)
            return 0;
        if (!m_engine.endsOnStop)
            return session_code::timedOut;
        endWith(m_engine.stopAnswer);
        return m_engine.stopAnswer;
    }
    bool waitFinished(int timeoutMs) override
    {
        m_engine.note(QStringLiteral("wait %1").arg(timeoutMs));
        return !m_running;
    }
    void terminate() override { m_engine.note(QStringLiteral("terminate")); }
    void kill() override
    {
        m_engine.note(QStringLiteral("kill"));
        if (canBeKilled())
            endWith(9);
    }
    bool canBeKilled() const override { return !m_engine.inProcess; }
    bool isInProcess() const override { return m_engine.inProcess; }
    void close() override { m_engine.note(QStringLiteral("close")); }
    void poll() override { ++m_engine.polls; }

    /// The engine ends by itself.
    void endWith(int code, bool crashed = false)
    {
        if (!m_running)
            return;
        m_running = false;
        doneSink(code, crashed);
    }
    void say(const QString &line) { lineSink(line + QLatin1Char('\n'), false); }

private:
    FakeEngine &m_engine;
    bool m_running = false;
};
