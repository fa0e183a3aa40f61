#include "engine/pipe_write.h"

#include <cerrno>
#include <csignal>
#include <ctime>
#include <pthread.h>
#include <unistd.h>

namespace kelp {

ssize_t writeWithoutSignal(int fd, std::string_view bytes)
{
    sigset_t pipeSignal, former, pending;
    sigemptyset(&pipeSignal);
    sigaddset(&pipeSignal, SIGPIPE);
    sigpending(&pending);
    pthread_sigmask(SIG_BLOCK, &pipeSignal, &former);
    const ssize_t written = write(fd, bytes.data(), bytes.size());
    const int error = errno;
    if (written < 0 && error == EPIPE && sigismember(&pending, SIGPIPE) == 0) {
        const timespec now{0, 0};
        while (sigtimedwait(&pipeSignal, nullptr, &now) < 0 && errno == EINTR) {
        }
    }
    pthread_sigmask(SIG_SETMASK, &former, nullptr);
    errno = error;
    return written;
}

} // namespace kelp
