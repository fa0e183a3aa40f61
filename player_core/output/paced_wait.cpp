#include "player_core/output/paced_wait.h"

#include <algorithm>

namespace kelp_core {

bool waitForRoom(FrameClock &clock, WakeEvent &wake, size_t frames)
{
    using namespace std::chrono_literals;
    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + 200ms;
    const auto wanted = static_cast<int64_t>(frames);
    while (true) {
        const auto now = Clock::now();
        const std::chrono::nanoseconds wait = clock.untilRoom(wanted, now);
        if (wait.count() == 0)
            return true;
        if (now >= deadline || wake.waitFor(std::min<std::chrono::nanoseconds>(wait, deadline - now)))
            return false;
    }
}

} // namespace kelp_core
