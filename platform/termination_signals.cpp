#include "platform/termination_signals.h"

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array watched = {SIGTERM, SIGINT, SIGHUP};

// Never closed: a handler may be about to write when the watch ends.
std::array<int, 2> channel = {-1, -1};
std::array<struct sigaction, watched.size()> former;

void onSignal(int number)
{
    const int error = errno;
    const auto byte = static_cast<unsigned char>(number);
    [[maybe_unused]] const ssize_t written = ::write(channel[1], &byte, 1);
    errno = error;
}

/// The number of the signal that came; 0 when none has.
int takeSignal()
{
    unsigned char number = 0;
    return ::read(channel[0], &number, 1) == 1 ? number : 0;
}

bool openChannel()
{
    if (channel[0] < 0 && ::pipe2(channel.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return false;
    while (takeSignal() != 0) {
        // of an earlier watch
    }
    return true;
}

void install()
{
    for (std::size_t i = 0; i < watched.size(); ++i) {
        ::sigaction(watched[i], nullptr, &former[i]);
        if (former[i].sa_handler == SIG_IGN)
            continue;
        struct sigaction action = {};
        action.sa_handler = onSignal;
        action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
        ::sigaction(watched[i], &action, nullptr);
    }
}

void restore()
{
    for (std::size_t i = 0; i < watched.size(); ++i)
        ::sigaction(watched[i], &former[i], nullptr);
}

} // namespace

void onTerminationSignal(QObject *context, std::function<void(int)> act)
{
    if (!openChannel())
        return;
    auto *notifier = new QSocketNotifier(channel[0], QSocketNotifier::Read, context);
    QObject::connect(notifier, &QSocketNotifier::activated, context, [act = std::move(act)] {
        if (const int number = takeSignal(); number != 0)
            act(number);
    });
    QObject::connect(notifier, &QObject::destroyed, &restore);
    install();
}

const char *terminationSignalName(int number)
{
    switch (number) {
    case SIGTERM:
        return "SIGTERM";
    case SIGINT:
        return "SIGINT";
    case SIGHUP:
        return "SIGHUP";
    default:
        return "another signal";
    }
}
