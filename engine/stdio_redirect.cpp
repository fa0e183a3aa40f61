#include "engine/stdio_redirect.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace kelp {
namespace {

constexpr char nullDevice[] = "/dev/null";

/// Standard descriptors in the order in which they are saved and replaced.
constexpr std::array<int, 3> order{STDOUT_FILENO, STDERR_FILENO, STDIN_FILENO};

int duplicateOntoRetrying(int fd, int target)
{
    int result = -1;
    do
        result = dup2(fd, target);
    while (result < 0 && (errno == EINTR || errno == EBUSY));
    return result;
}

} // namespace

DescriptorCalls DescriptorCalls::system()
{
    return {[](int fds[2]) { return pipe2(fds, O_CLOEXEC); },
            [](int fd) { return fcntl(fd, F_DUPFD_CLOEXEC, STDERR_FILENO + 1); }, duplicateOntoRetrying};
}

bool ensureStandardDescriptors()
{
    for (int fd = STDIN_FILENO; fd <= STDERR_FILENO; ++fd) {
        if (fcntl(fd, F_GETFD) >= 0)
            continue;
        const int opened = open(nullDevice, O_RDWR);
        if (opened < 0)
            return false;
        if (opened == fd)
            continue;
        const bool moved = duplicateOntoRetrying(opened, fd) >= 0;
        close(opened);
        if (!moved)
            return false;
    }
    return true;
}

void ensureStandardStreams()
{
    for (std::FILE *stream : {stdout, stderr}) {
        std::fflush(stream);
        // What cannot be reopened stays without a descriptor: what is printed there goes nowhere, as before.
        if (fileno(stream) < 0) [[maybe_unused]]
            const std::FILE *reopened = std::freopen(nullDevice, "w", stream);
    }
}

StdioRedirect::StdioRedirect(DescriptorCalls calls)
    : m_calls(std::move(calls))
{
}

StdioRedirect::~StdioRedirect()
{
    restore();
}

bool StdioRedirect::begin(int outFd, int inFd)
{
    restore();
    m_results = {};
    m_active = true;
    for (const int fd : order) {
        if (!save(fd)) {
            restore();
            return false;
        }
    }
    m_results.out = replace(STDOUT_FILENO, outFd);
    m_results.err = replace(STDERR_FILENO, outFd);
    m_results.in = inFd < 0 ? STDIN_FILENO : replace(STDIN_FILENO, inFd);
    if (m_results.out < 0 || m_results.err < 0 || m_results.in < 0) {
        restore();
        return false;
    }
    return true;
}

bool StdioRedirect::save(int standardFd)
{
    Saved &saved = m_saved[standardFd];
    saved.flags = fcntl(standardFd, F_GETFD);
    saved.fd = m_calls.duplicate(standardFd);
    return saved.fd >= 0;
}

int StdioRedirect::replace(int standardFd, int with)
{
    const int result = m_calls.duplicateOnto(with, standardFd);
    if (result < 0)
        return result;
    m_saved[standardFd].replaced = true;
    fcntl(standardFd, F_SETFD, FD_CLOEXEC);
    return result;
}

void StdioRedirect::restore()
{
    if (!m_active)
        return;
    for (const int fd : order) {
        Saved &saved = m_saved[fd];
        if (saved.replaced) {
            // Not through m_calls: a failure that a test injects must not keep the old ones away.
            duplicateOntoRetrying(saved.fd, fd);
            if (saved.flags >= 0)
                fcntl(fd, F_SETFD, saved.flags);
        }
        if (saved.fd >= 0)
            close(saved.fd);
        saved = {};
    }
    m_active = false;
}

} // namespace kelp
