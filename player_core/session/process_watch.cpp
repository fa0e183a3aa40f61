#include "player_core/session/process_watch.h"

#include <cerrno>
#include <csignal>
#include <limits>

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace kelp_core {

ProcessWatch::ProcessWatch(int64_t pid)
    : pid_(pid == ::getpid() || pid > std::numeric_limits<pid_t>::max() ? 0 : pid)
{
    // A descriptor names this very process; the bare number may be given to another one later.
    if (pid_ > 0)
        fd_ = static_cast<int>(::syscall(SYS_pidfd_open, static_cast<pid_t>(pid_), 0));
}

ProcessWatch::~ProcessWatch()
{
    if (fd_ >= 0)
        ::close(fd_);
}

bool ProcessWatch::gone() const
{
    if (pid_ <= 0)
        return false;
    if (fd_ >= 0) {
        pollfd ended{fd_, POLLIN, 0};
        return ::poll(&ended, 1, 0) > 0;
    }
    return ::kill(static_cast<pid_t>(pid_), 0) != 0 && errno == ESRCH;
}

} // namespace kelp_core
