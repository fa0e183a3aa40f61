#pragma once

#include "player_core/session/mailbox.h"

#include "kelp_player_core.h"

#include <atomic>
#include <memory>
#include <string>
#include <thread>

namespace kelp_core {

/// Where control lines come from. Plain value.
struct ControlOrigin
{
    int fd = -1;                             ///< read when readLine is null
    kelp_player_ctl_read readLine = nullptr; ///< the host's function
    void *queue = nullptr;                   ///< its argument
    int stopFd = -1;                         ///< beside fd: readable when the process is asked to end
};

/// Cuts a stream of bytes into lines. A line longer than maxControlLine is thrown away whole; takeLost() then
/// says true once.
class LineCutter
{
public:
    void add(const char *data, size_t size);
    /// The next complete line without its end; false when there is none.
    bool next(std::string &line);
    bool takeLost();
    /// What stands behind the last line end, at the end of the stream.
    std::string rest();

private:
    std::string pending_;
    size_t searched_ = 0;
    bool skipping_ = false;
    bool lost_ = false;
};

/// Reads control lines on a thread of its own and posts them. It raises the cancel flag by itself at `stop`
/// and at the end of its input, so that a session which is just opening a slow source hears of it too.
class ControlReader
{
public:
    ControlReader(const ControlOrigin &origin, std::shared_ptr<Mailbox> mailbox,
                  std::shared_ptr<std::atomic<bool>> cancel);
    /// Ends the thread. One that blocks in the host's function is left behind: what it holds is shared, and
    /// it ends as soon as the host closes its queue.
    ~ControlReader();
    ControlReader(const ControlReader &) = delete;
    ControlReader &operator=(const ControlReader &) = delete;

private:
    struct Shared;
    static void readQueue(const std::shared_ptr<Shared> &shared);
    static void readDescriptor(const std::shared_ptr<Shared> &shared);

    std::shared_ptr<Shared> shared_;
    std::thread thread_;
};

} // namespace kelp_core
