#include "engine/session_support.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>
#include <algorithm>

namespace session_support {

QString engineLibraryPath()
{
    return QString::fromUtf8(KELP_TEST_ENGINE_LIBRARY);
}

QString engineProgramPath()
{
    return QString::fromUtf8(KELP_TEST_ENGINE_PROGRAM);
}

kelp::EngineLibrary &engineLibrary()
{
    static kelp::EngineLibrary library({engineLibraryPath()});
    return library;
}

bool eventually(const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(patienceMs);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents();
        QThread::msleep(2);
    }
    return true;
}

bool eventuallyPolling(PlayerSession &session, const std::function<bool()> &condition)
{
    return eventually([&] {
        session.poll();
        return condition();
    });
}

Heard::Heard(PlayerSession &session)
{
    session.lineSink = [this](const QString &line, bool isStderr) {
        const std::lock_guard lock(m_mutex);
        m_lines.append({line, isStderr});
    };
    session.doneSink = [this](int code, bool crashed) { ends.append({code, crashed}); };
}

QStringList Heard::lines() const
{
    const std::lock_guard lock(m_mutex);
    QStringList lines;
    for (const auto &line : m_lines)
        lines.append(line.first);
    return lines;
}

bool Heard::hasLine(const QString &line, bool isStderr) const
{
    const std::lock_guard lock(m_mutex);
    return m_lines.contains(std::pair(line, isStderr));
}

Variable::Variable(const char *name, const QByteArray &value)
    : m_name(name)
    , m_wasSet(qEnvironmentVariableIsSet(name))
    , m_old(qgetenv(name))
{
    qputenv(name, value);
}

Variable::~Variable()
{
    if (m_wasSet)
        qputenv(m_name, m_old);
    else
        qunsetenv(m_name);
}

} // namespace session_support
