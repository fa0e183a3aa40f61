#include "player_core/output/frame_clock.h"

#include <algorithm>

namespace kelp_core {
namespace {

constexpr int64_t nanosecondsPerSecond = 1'000'000'000;

int64_t framesIn(std::chrono::nanoseconds time, int rateHz)
{
    // Whole seconds apart, so that the product cannot overflow within centuries.
    const int64_t seconds = time.count() / nanosecondsPerSecond;
    const int64_t rest = time.count() % nanosecondsPerSecond;
    return seconds * rateHz + rest * rateHz / nanosecondsPerSecond;
}

} // namespace

FrameClock::FrameClock(int rateHz, int64_t bufferFrames)
    : rateHz_(rateHz)
    , bufferFrames_(bufferFrames)
{
}

void FrameClock::settle(Time now)
{
    if (!running_ || framesIn(now - start_, rateHz_) <= pushed_)
        return;
    running_ = false;
    pushed_ = 0;
    ++underruns_;
}

int64_t FrameClock::pending(Time now)
{
    settle(now);
    return running_ ? pushed_ - framesIn(now - start_, rateHz_) : 0;
}

int64_t FrameClock::room(Time now)
{
    return std::max<int64_t>(0, bufferFrames_ - pending(now));
}

void FrameClock::push(int64_t frames, Time now)
{
    settle(now);
    if (!running_) {
        running_ = true;
        start_ = now;
        pushed_ = 0;
    }
    pushed_ += frames;
}

std::chrono::nanoseconds FrameClock::untilRoom(int64_t frames, Time now)
{
    const int64_t missing = std::min(frames, bufferFrames_) - room(now);
    if (missing <= 0)
        return std::chrono::nanoseconds(0);
    return std::chrono::nanoseconds(missing * nanosecondsPerSecond / rateHz_ + 1);
}

void FrameClock::drop()
{
    running_ = false;
    pushed_ = 0;
}

} // namespace kelp_core
