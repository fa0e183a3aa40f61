#pragma once

#include <csignal>

namespace kelp_core {

/// While it lives, a signal that asks the process to end (SIGTERM, and in plain console use SIGINT and
/// SIGHUP) is an event on a descriptor, so that a session can end as at `stop` and leave the device as it
/// should be left. A second one ends the process at once. In a session of a host SIGINT and SIGHUP are the
/// host's business, which gets them too. Signals that whoever started the process has switched off stay off.
/// One at a time in a process.
class StopSignals
{
public:
    /// hosted: another process drives this one.
    explicit StopSignals(bool hosted);
    /// Puts things back as they were.
    ~StopSignals();
    StopSignals(const StopSignals &) = delete;
    StopSignals &operator=(const StopSignals &) = delete;

    /// Readable from the first signal on; below 0 when there is none to be had. Owned.
    int descriptor() const { return descriptor_; }

private:
    static constexpr int watched_[] = {SIGTERM, SIGINT, SIGHUP};

    int descriptor_ = -1;
    struct sigaction former_[3] = {};
};

} // namespace kelp_core
