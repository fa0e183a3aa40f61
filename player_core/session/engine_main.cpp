#include "player_core/session/engine_main.h"

#include "player_core/session/help_text.h"
#include "player_core/session/session.h"
#include "player_core/session/stop_signals.h"

#include <cstdlib>
#include <exception>
#include <optional>

#include <unistd.h>

namespace kelp_core {

namespace {

void writeAll(int fd, const std::string &text)
{
    size_t done = 0;
    while (done < text.size()) {
        const ssize_t n = ::write(fd, text.data() + done, text.size() - done);
        if (n <= 0)
            return;
        done += static_cast<size_t>(n);
    }
}

ControlOrigin controlOrigin(const SessionOptions &options)
{
    ControlOrigin origin;
    origin.fd = STDIN_FILENO;
    // The host hands its queue over as two numbers on the command line: that is the whole of the agreement.
    origin.readLine = reinterpret_cast<kelp_player_ctl_read>(static_cast<uintptr_t>(options.inprocReadFn));
    origin.queue = reinterpret_cast<void *>(static_cast<uintptr_t>(options.inprocQueue));
    return origin;
}

int runSession(const SessionOptions &options)
{
    const char *log = std::getenv("KELP_ENGINE_LOG");
    LineWriter lines(STDOUT_FILENO, log ? log : "");
    SessionServices services{openSource, openOutput};
    ControlOrigin origin = controlOrigin(options);
    std::optional<StopSignals> signals;
    if (!origin.readLine) // else the process is the host's
        origin.stopFd = signals.emplace(options.parentPid != 0).descriptor();
    try {
        Session session(options, services, lines);
        return session.run(origin);
    } catch (const std::exception &error) {
        // Out of memory or out of threads: the session is over, the process that holds it is not ours to end.
        lines.say(std::string("The session ended because of an error: ") + error.what());
        return exit_code::unplayable;
    }
}

} // namespace

int runEngine(const std::vector<std::string> &args)
{
    const ParsedCommand command = parseCommandLine(args);
    switch (command.kind) {
    case CommandKind::session:
        return runSession(command.options);
    case CommandKind::help:
        writeAll(STDOUT_FILENO, helpText());
        return exit_code::done;
    case CommandKind::version:
        writeAll(STDOUT_FILENO, versionText());
        return exit_code::done;
    case CommandKind::bad:
        break;
    }
    writeAll(STDERR_FILENO, command.error + '\n');
    return exit_code::usage;
}

} // namespace kelp_core
