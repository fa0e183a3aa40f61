#pragma once

namespace kelp_core::test {

/// What threads of the name "kelp-audio" have done since the start of this program. A program that links
/// wait_counter.cpp counts them, but not under a sanitizer, which has its own of these functions.
struct WaitCounts
{
    long allocations = 0;
    long locks = 0; ///< mutexes locked and conditions waited for
    long files = 0; ///< read, write and open
};

WaitCounts waitCounts();
bool countsWaits();

} // namespace kelp_core::test
