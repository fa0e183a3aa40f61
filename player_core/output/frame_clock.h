#pragma once

#include <chrono>
#include <cstdint>

namespace kelp_core {

/// A device that exists only as arithmetic: it plays one frame every 1 / rate seconds out of a buffer of a
/// given size. Time is handed in, so that it can be tested without waiting. One thread.
class FrameClock
{
public:
    using Time = std::chrono::steady_clock::time_point;

    FrameClock(int rateHz, int64_t bufferFrames);

    /// Frames that fit now.
    int64_t room(Time now);
    /// Frames handed over and not yet played.
    int64_t pending(Time now);
    /// Takes frames; the first ones after a start or a drop() start the clock.
    void push(int64_t frames, Time now);
    /// Time until at least so many frames fit; zero when they fit now.
    std::chrono::nanoseconds untilRoom(int64_t frames, Time now);
    /// Forgets what is pending; the clock stands still until the next push().
    void drop();
    /// The buffer ran empty so many times while it should not have.
    unsigned underruns() const { return underruns_; }

private:
    void settle(Time now);

    int rateHz_;
    int64_t bufferFrames_;
    int64_t pushed_ = 0; ///< since start_
    Time start_;
    bool running_ = false;
    unsigned underruns_ = 0;
};

} // namespace kelp_core
