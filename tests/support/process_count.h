/// \file
/// What a process holds of the system, for tests that nothing is left behind.
#pragma once

#include "tests/support/patience.h"
#include "tests/support/sanitizers.h"

#include <filesystem>
#include <iterator>

namespace kelp_test {

/// Of this process and this moment; also what is just being opened or ended counts.
inline int entriesOf(const char *folder)
{
    std::error_code ignored;
    const std::filesystem::directory_iterator entries(folder, ignored);
    return static_cast<int>(std::distance(begin(entries), end(entries)));
}
inline int openDescriptors()
{
    return entriesOf("/proc/self/fd");
}
inline int runningThreads()
{
    return entriesOf("/proc/self/task");
}

/// Threads of a process in which nothing runs but the test; ThreadSanitizer has one of its own.
inline constexpr int idleThreads = KELP_TEST_THREAD_SANITIZER ? 2 : 1;

/// What the count comes to, once it is not above the wanted one or patience is at its end: what was ended may
/// be on its last instructions still.
inline int fallsTo(int wanted, int (*count)())
{
    waitUntil([&] { return count() <= wanted; });
    return count();
}

} // namespace kelp_test
