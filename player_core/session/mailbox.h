#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>
#include <string>

namespace kelp_core {

/// What the session thread is told by the other threads.
enum class MessageKind
{
    controlLine,  ///< text: the line without its end
    controlLost,  ///< text: a sentence on a line that could not be taken
    controlEnd,   ///< nothing more will come: end of standard input, or the host closed its queue
    trackHeard,   ///< serial, speed: the track has just become audible
    speedHeard,   ///< serial, speed: the track is heard at another speed from now on
    guardActed,   ///< serial: the peak guard has acted on the track, for the first time
    trackOver,    ///< serial: its last frame has been heard and nothing follows
    sourceFailed, ///< serial, text: the rest of the track cannot be read
    deckFree,     ///< serial: the deck's number; the audio thread has let go of it
    deviceGone,   ///< serial: the opening's number; text: why
};

struct Message
{
    MessageKind kind;
    std::string text;
    uint32_t serial = 0;
    double speed = 1.0; ///< seconds of music in one second
};

/// Messages on their way to the session thread. Any thread posts, the session thread waits. Shared by
/// std::shared_ptr with the control reader, which may outlive its session while it blocks in a host's queue.
class Mailbox
{
public:
    void post(Message message)
    {
        {
            const std::lock_guard lock(mutex_);
            messages_.push_back(std::move(message));
        }
        ready_.notify_one();
    }

    /// The oldest message, or nothing when none came in time.
    std::optional<Message> wait(std::chrono::milliseconds most)
    {
        std::unique_lock lock(mutex_);
        ready_.wait_for(lock, most, [this] { return !messages_.empty(); });
        if (messages_.empty())
            return std::nullopt;
        Message message = std::move(messages_.front());
        messages_.pop_front();
        return message;
    }

    bool empty()
    {
        const std::lock_guard lock(mutex_);
        return messages_.empty();
    }

private:
    std::mutex mutex_;
    std::condition_variable ready_;
    std::deque<Message> messages_; // guarded by mutex_
};

} // namespace kelp_core
