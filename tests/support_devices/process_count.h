#pragma once

namespace test_devices {

/// Descriptors that this process has open.
int openDescriptors();
/// Threads of this process.
int runningThreads();

} // namespace test_devices
