#pragma once

#include <cstdint>

namespace kelp_core {

/// Watches whether a process still lives. Session thread.
class ProcessWatch
{
public:
    /// 0 and the own process are never gone.
    explicit ProcessWatch(int64_t pid);
    ~ProcessWatch();
    ProcessWatch(const ProcessWatch &) = delete;
    ProcessWatch &operator=(const ProcessWatch &) = delete;

    /// The process has ended, whether or not its parent has collected it.
    bool gone() const;

private:
    int64_t pid_;
    int fd_ = -1;
};

} // namespace kelp_core
