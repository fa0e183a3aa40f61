// What the tests of the in-process runner share.
#pragma once

#include "engine/in_proc_runner.h"

#include "tests/support/patience.h"
#include "tests/support/process_count.h"

#include <mutex>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <utility>
#include <vector>

namespace runner_support {

using kelp_test::fallsTo;
using kelp_test::idleThreads;
using kelp_test::openDescriptors;
using kelp_test::patienceMs;
using kelp_test::runningThreads;
using kelp_test::waitUntil;

// The entry of the test engine's library.
kelp::InProcRunner::Entry testEngine();

// {"KelpPlayer", "-test", mode, operand}
std::vector<std::string> engineArgs(const std::string &mode, const std::string &operand = {});

// Collects pieces from any thread.
class Pieces
{
public:
    kelp::InProcRunner::LineSink sink();
    std::vector<std::string> all() const;
    std::string text() const;
    bool contains(std::string_view piece) const;
    // Lines of the engine's own, without those of the host.
    std::vector<std::string> ofTheEngine() const;

private:
    mutable std::mutex m_mutex;
    std::vector<std::string> m_pieces;
};

// Which files descriptors 0, 1 and 2 are, and their flags.
struct StandardDescriptors
{
    struct One
    {
        dev_t device = 0;
        ino_t inode = 0;
        int flags = -1;
        bool operator==(const One &) const = default;
    };
    One descriptor[3];
    static StandardDescriptors now();
    bool operator==(const StandardDescriptors &) const = default;
};

// A directory of this test's own, removed with all it holds.
class ScratchDirectory
{
public:
    ScratchDirectory();
    ~ScratchDirectory();
    std::string file(const std::string &name) const { return m_path + "/" + name; }
    void touch(const std::string &name) const;

private:
    std::string m_path;
};

std::string contents(const std::string &path);

// A runner whose destructor does not wait as long as the program's does.
kelp::InProcRunner::Options quickOptions();

} // namespace runner_support
