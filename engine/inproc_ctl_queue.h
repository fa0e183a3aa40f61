/// \file
/// The control channel of an in-process session: lines go in here, the engine fetches them through a C
/// function.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace kelp {

/// Safe from any thread.
///
/// A queue lives until its owner and every thread that reads from it have let go of it. The engine knows
/// it only by its address and learns of a session's end only from the closed queue, so one of its threads
/// may still be waiting in here, or on its way back, when the session has gone. Such a thread holds a lease
/// from its first read until it has been told the end, or until it ends.
class InprocCtlQueue
{
public:
    static constexpr std::size_t capacityLines = 4096;

    /// Makes a closed queue. The only way to make one: its address is registered for kelp_inproc_ctl_read.
    static std::shared_ptr<InprocCtlQueue> create();
    ~InprocCtlQueue();
    InprocCtlQueue(const InprocCtlQueue &) = delete;
    InprocCtlQueue &operator=(const InprocCtlQueue &) = delete;

    /// Forgets all lines and takes new ones.
    void open();
    /// Takes no more lines and wakes all who wait; what is in the queue can still be fetched.
    void close();

    enum class Accept
    {
        WithinLimits, ///< only into an open queue that is not full
        Always        ///< even into a closed or full one: the engine must always be able to get "stop"
    };
    bool push(std::string_view line, Accept accept = Accept::WithinLimits);

    /// The oldest line; waits for one. None once the queue is closed and empty.
    std::optional<std::string> take();

    /// Queues that exist in this process, retired ones included; for tests.
    static std::size_t aliveCount();

private:
    InprocCtlQueue() = default;

    std::mutex m_mutex; ///< guards all below
    std::condition_variable m_changed;
    std::deque<std::string> m_lines;
    bool m_closed = true;
};

} // namespace kelp

/// The read function handed to the engine. Takes the oldest line of the queue (an InprocCtlQueue's address),
/// without its line end, into buffer with a terminating zero, and returns its length; waits for one. Returns
/// 0 when the queue is closed and empty, or unknown; -1 for a missing buffer, a sizeBytes below 2, or a line
/// that does not fit, which is lost. Lines without a character are passed over, because 0 means the end.
extern "C" int kelp_inproc_ctl_read(void *queue, char *buffer, int sizeBytes);
