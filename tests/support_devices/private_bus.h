#pragma once

#include "support_devices/child_process.h"
#include "support_devices/private_place.h"

#include <memory>
#include <string>

namespace test_devices {

/// A session bus of the test's own, reached through the place's environment.
class PrivateBus
{
public:
    explicit PrivateBus(PrivatePlace &place);
    /// Empty when it runs; else a sentence why not, for GTEST_SKIP.
    const std::string &missing() const { return missing_; }
    /// Ends it while others are connected.
    void kill() { daemon_->kill(); }

private:
    std::string missing_;
    std::unique_ptr<ChildProcess> daemon_;
};

} // namespace test_devices
