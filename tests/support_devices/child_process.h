#pragma once

#include "tests/support/patience.h"

#include <string>
#include <vector>

#include <sys/types.h>

namespace test_devices {

/// Full path of a program on PATH; empty when it is not installed.
std::string findProgram(const std::string &name);

/// A program that a test starts and ends by its own process id. Its output goes to a file.
class ChildProcess
{
public:
    /// Starts it; output is the file for its standard output, the log one for standard error.
    ChildProcess(const std::vector<std::string> &command, const std::string &outputFile,
                 const std::string &logFile);
    /// Ends it: politely, after a while by force.
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    bool started() const { return pid_ > 0; }
    bool running();
    /// Ends it now. Done again by the destructor, harmlessly.
    void end();
    /// Ends it by force, as a crash would.
    void kill();

private:
    bool reap(bool block);
    pid_t pid_ = -1;
};

} // namespace test_devices
