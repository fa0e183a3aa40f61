/// \file
/// The process's standard descriptors, sent elsewhere for a while.
#pragma once

#include <functional>

namespace kelp {

/// The calls of the operating system that a redirection makes, so that a test can let one fail.
/// All return what the system's own do: -1 and errno on failure.
struct DescriptorCalls
{
    std::function<int(int fds[2])> makePipe; ///< both ends close on exec
    std::function<int(int fd)> duplicate;    ///< the copy closes on exec and is no standard one
    std::function<int(int fd, int target)> duplicateOnto;

    static DescriptorCalls system();
};

/// Opens each of the descriptors 0, 1 and 2 that is closed onto the null device, so that no file or pipe
/// of the program's can become one of them. False when one stays closed.
bool ensureStandardDescriptors();

/// Flushes stdout and stderr, and gives a stream without a descriptor one.
void ensureStandardStreams();

/// Descriptors 1 and 2, and 0 where asked for, point elsewhere from begin() to restore(). Process-wide, so
/// there may be one at a time. Not thread-safe: one owner calls it.
class StdioRedirect
{
public:
    explicit StdioRedirect(DescriptorCalls calls = DescriptorCalls::system());
    ~StdioRedirect(); ///< restores
    StdioRedirect(const StdioRedirect &) = delete;
    StdioRedirect &operator=(const StdioRedirect &) = delete;

    /// Keeps copies of 1, 2 and 0 and puts copies of outFd on 1 and 2 and, unless it is -1, inFd on 0.
    /// False when a step fails; what had been done is then undone already. The caller keeps outFd and inFd.
    ///
    /// The new descriptors close on exec, so that no child can hold the pipe open. A child started without
    /// streams of its own therefore has none: name them (QProcess does, except when it starts detached).
    bool begin(int outFd, int inFd);
    /// Puts the old descriptors back, with their old flags. Does nothing without a begin().
    void restore();

    bool active() const { return m_active; }
    /// The copy of the descriptor 2 that was replaced, -1 when there is none. Stays ours.
    int savedErrorFd() const { return m_saved[2].fd; }
    /// What the last begin() got for descriptors 1, 2 and 0, for the diagnostic log.
    struct Results
    {
        int out = -1;
        int err = -1;
        int in = -1;
    };
    Results results() const { return m_results; }

private:
    struct Saved
    {
        int fd = -1;
        int flags = 0;
        bool replaced = false;
    };
    bool save(int standardFd);
    int replace(int standardFd, int with);

    DescriptorCalls m_calls;
    Saved m_saved[3];
    Results m_results;
    bool m_active = false;
};

} // namespace kelp
