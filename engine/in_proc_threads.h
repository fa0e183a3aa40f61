/// \file
/// The three threads of an in-process session. Each owns its share of the state and may outlive the runner.
#pragma once

#include "engine/in_proc_runner.h"

#include <memory>
#include <string>
#include <vector>

namespace kelp {

/// Flushes stdout and stderr every 50 ms: the engine's C streams are fully buffered once they point at a
/// pipe, and its telemetry would arrive in lumps.
void runFlusher(const std::shared_ptr<InProcRunner::WorkerState> &worker);

/// Reads outReadFd until its end, delivers line by line, and closes it.
void runReader(const std::shared_ptr<InProcRunner::ReaderState> &reader, int outReadFd);

struct EngineThreadStart
{
    InProcRunner::Entry entry = nullptr;
    std::vector<std::string> args;
    std::shared_ptr<InprocCtlQueue> queue; ///< null: the engine reads descriptor 0
    std::shared_ptr<InProcRunner::WorkerState> worker;
    std::shared_ptr<InProcRunner::ReaderState> reader;
    std::string diagnosticLog;
};

/// Calls the entry and records how it ended.
void runEngineThread(const EngineThreadStart &start);

} // namespace kelp
