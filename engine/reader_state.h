/// \file
/// What the reader thread of an in-process session shares with its owner.
#pragma once

#include "engine/in_proc_runner.h"
#include "engine/line_cutter.h"

#include <atomic>
#include <mutex>
#include <string>
#include <string_view>

namespace kelp {

struct InProcRunner::ReaderState
{
    std::mutex mutex; ///< guards partial
    LineCutter partial;

    LineSink lineSink;             ///< set before the threads start, never changed
    std::atomic<bool> done{false}; ///< the reader has delivered everything and closed its end
    std::atomic<bool> sinkClosed{false};
    std::atomic<int> delivering{0}; ///< calls of the sink that are under way
    int errorFd = -1;               ///< a copy of the program's own stderr; owned
    std::string diagnosticLog;      ///< file of KELP_INPROC_LOG, empty for none

    ReaderState() = default;
    ~ReaderState();
    ReaderState(const ReaderState &) = delete;
    ReaderState &operator=(const ReaderState &) = delete;

    /// Hands a piece to the sink unless that is closed. What the sink throws is reported on the program's own
    /// stderr: printed to the redirected one it would come back to the same sink, for ever.
    void deliver(std::string_view piece, bool tail = false) noexcept;
    /// The sink is not called any more once this returns true. False when a call is still under way after
    /// waitMs.
    bool closeSink(int waitMs);
    /// Closes the sink, but hands it what has come without a newline first.
    void handOverPartial();
};

} // namespace kelp
