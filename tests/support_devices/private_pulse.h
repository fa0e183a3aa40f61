#pragma once

#include "support_devices/child_process.h"
#include "support_devices/private_place.h"

#include <memory>
#include <string>

namespace test_devices {

/// A PulseAudio server of the test's own, with one null sink, reached through the place's environment.
class PrivatePulse
{
public:
    /// sinkArguments as of module-null-sink: "sink_name=n1 rate=44100 format=s16le".
    PrivatePulse(PrivatePlace &place, const std::string &sinkArguments);

    /// Empty when it runs; else a sentence why not, for GTEST_SKIP.
    const std::string &missing() const { return missing_; }
    /// Ends it as a crash would.
    void kill() { server_->kill(); }

private:
    std::string missing_;
    std::unique_ptr<ChildProcess> server_;
};

/// Records what a sink of that server plays, as raw samples of the sink's format.
class SinkRecorder
{
public:
    SinkRecorder(PrivatePlace &place, const std::string &sink, int rateHz, const std::string &format,
                 int channels);
    const std::string &missing() const { return missing_; }
    /// The bytes recorded so far.
    std::string bytes() const;

private:
    std::string missing_;
    std::string file_;
    std::unique_ptr<ChildProcess> recorder_;
};

} // namespace test_devices
