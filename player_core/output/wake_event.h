#pragma once

#include <chrono>

namespace kelp_core {

/// A flag that one thread waits for and any thread may set, as a descriptor, so that it can be waited for
/// together with a device. Setting it neither blocks nor allocates.
class WakeEvent
{
public:
    WakeEvent();
    ~WakeEvent();
    WakeEvent(const WakeEvent &) = delete;
    WakeEvent &operator=(const WakeEvent &) = delete;

    /// Sets it; it stays set until it is taken. Any thread.
    void signal();
    /// Clears it; true when it was set. Waiting thread.
    bool take();
    /// Waits until it is set or the time is over, then takes it. Waiting thread.
    bool waitFor(std::chrono::nanoseconds time);
    /// For poll(); below 0 when the system gave none, which poll() passes over.
    int descriptor() const { return descriptor_; }

private:
    int descriptor_;
};

} // namespace kelp_core
