/// \file
/// Runs the engine's entry on a thread of this process, its output caught by redirected descriptors.
#pragma once

#include "engine/stdio_redirect.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace kelp {

class InprocCtlQueue;

/// One in-process engine at a time. No Qt in here.
///
/// Owner's thread only, except sendLine(), running() and lastError(), which any thread may call.
/// While a session runs, whatever the process prints to stdout or stderr goes into the engine's line stream.
/// A thread that does not end is never killed but detached; it shares the ownership of its state.
class InProcRunner
{
public:
    using Entry = int (*)(int argc, char **argv);
    /// A piece of output as UTF-8: a line with its newline, or a part of one. Called on the reader thread and
    /// the engine thread, in waitExit() also on the caller's; never with a mutex held. Must be thread-safe.
    using LineSink = std::function<void(std::string_view)>;

    struct WorkerState;
    struct ReaderState;

    static constexpr int pipeSizeBytes = 65536;
    static constexpr int destructorWaitMs = 5000;

    /// What tests replace.
    struct Options
    {
        bool useQueue = true; ///< false: control lines go through a pipe on descriptor 0
        DescriptorCalls calls = DescriptorCalls::system();
        /// Called before each thread is made; what it throws counts as the thread's failure.
        std::function<void(const char *threadName)> beforeThread;
        int destructorWaitMs = InProcRunner::destructorWaitMs;
    };

    explicit InProcRunner(Entry entry);
    InProcRunner(Entry entry, Options options);
    /// Sends "stop" to a running engine and waits for destructorWaitMs; an engine that still runs then is
    /// left to itself on its detached thread, and the descriptors are restored. No sink is called afterwards.
    ~InProcRunner();
    InProcRunner(const InProcRunner &) = delete;
    InProcRunner &operator=(const InProcRunner &) = delete;

    /// args[0] is the program's name. 0; -1 without an entry or arguments; -2 while a session runs; -3 when
    /// pipes, redirection or a thread could not be set up (all that had been done is undone).
    int start(const std::vector<std::string> &args, LineSink sink);
    bool running() const;
    /// Never blocks on the engine. False, with lastError(), when the line was refused.
    bool sendLine(std::string_view line);
    /// The entry's result; -1000 when it has not returned within timeoutMs, and then nothing is torn down;
    /// -1 when nothing was started. Restores the descriptors.
    int waitExit(int timeoutMs);
    int stop(int timeoutMs);
    std::string lastError() const;

private:
    bool makePipes(int out[2], int control[2]);
    bool redirect(int out[2], int control[2]);
    bool startThreads(const std::vector<std::string> &args);
    void undoFailedStart();
    void reapThreads();
    void closeControl();
    void cleanUp();
    bool writeControlPipe(std::string_view line);

    Entry m_entry;
    Options m_options;
    StdioRedirect m_redirect;
    std::string m_diagnosticLog; ///< the file of KELP_INPROC_LOG for this round, empty for none

    /// Guards the four below, which sendLine() uses on any thread.
    mutable std::mutex m_controlMutex;
    std::shared_ptr<InprocCtlQueue> m_queue;
    std::shared_ptr<WorkerState> m_worker;
    int m_ctlWriteFd = -1;
    std::string m_lastError;

    std::shared_ptr<ReaderState> m_reader;
    int m_outReadFd = -1; ///< the reader thread closes it; ours only until that thread exists
    std::thread m_engineThread;
    std::thread m_readerThread;
    std::thread m_flusherThread;
};

/// Atomic throughout.
struct InProcRunner::WorkerState
{
    std::atomic<bool> running{false};
    std::atomic<bool> finished{false};
    std::atomic<int> rc{-1}; ///< -1 while the entry runs
};

} // namespace kelp
