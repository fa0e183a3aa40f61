#include "support_devices/process_count.h"

#include <filesystem>
#include <iterator>

namespace test_devices {
namespace {

int entriesOf(const char *folder)
{
    std::error_code ignored;
    const std::filesystem::directory_iterator entries(folder, ignored);
    return static_cast<int>(std::distance(begin(entries), end(entries)));
}

} // namespace

int openDescriptors()
{
    return entriesOf("/proc/self/fd");
}

int runningThreads()
{
    return entriesOf("/proc/self/task");
}

} // namespace test_devices
