// What the tests of sessions and probes share.
#pragma once

#include "engine/engine_library.h"
#include "engine/player_session.h"

#include "tests/support/patience.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <mutex>
#include <utility>

namespace session_support {

using kelp_test::patienceMs;

QString engineLibraryPath();
QString engineProgramPath();
kelp::EngineLibrary &engineLibrary();

// Runs the event loop until the condition holds; false when patience is at its end.
bool eventually(const std::function<bool()> &condition);

// Polls the session besides, as its owner does.
bool eventuallyPolling(PlayerSession &session, const std::function<bool()> &condition);

// Installs both sinks and keeps what comes.
class Heard
{
public:
    explicit Heard(PlayerSession &session);

    QStringList lines() const;
    bool hasLine(const QString &line, bool isStderr = false) const;

    // Only ever touched on the GUI thread.
    struct End
    {
        int code = 0;
        bool crashed = false;
    };
    QList<End> ends;

private:
    mutable std::mutex m_mutex;
    QList<std::pair<QString, bool>> m_lines;
};

// Sets an environment variable for as long as it lives.
class Variable
{
public:
    Variable(const char *name, const QByteArray &value);
    ~Variable();

private:
    const char *m_name;
    bool m_wasSet;
    QByteArray m_old;
};

} // namespace session_support
