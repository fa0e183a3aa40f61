#include "player_core/output/wake_event.h"

#include <algorithm>
#include <cstdint>

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace kelp_core {

WakeEvent::WakeEvent()
    : descriptor_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
}

WakeEvent::~WakeEvent()
{
    if (descriptor_ >= 0)
        ::close(descriptor_);
}

void WakeEvent::signal()
{
    const uint64_t one = 1;
    // A full counter is a set flag, so there is nothing to do about a failure.
    [[maybe_unused]] const ssize_t written = ::write(descriptor_, &one, sizeof one);
}

bool WakeEvent::take()
{
    uint64_t count = 0;
    return ::read(descriptor_, &count, sizeof count) == sizeof count;
}

bool WakeEvent::waitFor(std::chrono::nanoseconds time)
{
    pollfd entry{descriptor_, POLLIN, 0};
    const auto wait = std::max(time, std::chrono::nanoseconds(0));
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(wait);
    const timespec limit{static_cast<time_t>(seconds.count()), static_cast<long>((wait - seconds).count())};
    ::ppoll(&entry, 1, &limit, nullptr);
    return take();
}

} // namespace kelp_core
