#include "player_core/session/stop_signals.h"

#include <cerrno>
#include <cstdint>
#include <iterator>

#include <sys/eventfd.h>
#include <unistd.h>

namespace kelp_core {

namespace {

volatile std::sig_atomic_t eventOfHandler = -1;

void onSignal(int)
{
    const int error = errno;
    const uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(eventOfHandler, &one, sizeof one);
    errno = error;
}

} // namespace

StopSignals::StopSignals(bool hosted)
    : descriptor_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    eventOfHandler = descriptor_;
    for (size_t i = 0; i < std::size(watched_); ++i) {
        ::sigaction(watched_[i], nullptr, &former_[i]);
        if (former_[i].sa_handler == SIG_IGN)
            continue;
        struct sigaction action = {};
        action.sa_handler = hosted && watched_[i] != SIGTERM ? SIG_IGN : onSignal;
        action.sa_flags = SA_RESTART | (action.sa_handler == SIG_IGN ? 0 : static_cast<int>(SA_RESETHAND));
        ::sigaction(watched_[i], &action, nullptr);
    }
}

StopSignals::~StopSignals()
{
    for (size_t i = 0; i < std::size(watched_); ++i)
        ::sigaction(watched_[i], &former_[i], nullptr);
    eventOfHandler = -1;
    if (descriptor_ >= 0)
        ::close(descriptor_);
}

} // namespace kelp_core
