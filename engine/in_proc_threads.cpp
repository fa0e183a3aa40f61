#include "engine/in_proc_threads.h"

#include "engine/inproc_ctl_queue.h"
#include "engine/inproc_log.h"
#include "engine/reader_state.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <optional>
#include <thread>
#include <unistd.h>

namespace kelp {
namespace {

constexpr std::chrono::milliseconds flushPeriod{50};
constexpr std::size_t readBytes = 4096;

void flushStreams()
{
    std::fflush(stdout);
    std::fflush(stderr);
}

std::string decimalAddress(const void *address)
{
    return std::to_string(static_cast<unsigned long long>(reinterpret_cast<std::uintptr_t>(address)));
}

/// The one hand-shake with the library: where its control lines come from.
std::vector<std::string> withHandshake(const EngineThreadStart &start)
{
    std::vector<std::string> args = start.args;
    args.emplace_back("-inproc-host");
    if (start.queue) {
        args.emplace_back("-inproc-ctl");
        args.push_back(decimalAddress(start.queue.get()));
        args.emplace_back("-inproc-ctl-fn");
        args.push_back(decimalAddress(reinterpret_cast<const void *>(&kelp_inproc_ctl_read)));
    }
    return args;
}

int callEntry(const EngineThreadStart &start, std::vector<std::string> &args)
{
    std::vector<char *> argv;
    for (std::string &arg : args)
        argv.push_back(arg.data());
    argv.push_back(nullptr);
    try {
        return start.entry(static_cast<int>(args.size()), argv.data());
    } catch (const std::exception &thrown) {
        start.reader->deliver(std::string("[inproc] the engine threw an exception: ") + thrown.what() + "\n");
    } catch (...) {
        start.reader->deliver("[inproc] the engine threw a non-std exception\n");
    }
    return -1;
}

} // namespace

void runFlusher(const std::shared_ptr<InProcRunner::WorkerState> &worker)
{
    while (!worker->finished) {
        std::this_thread::sleep_for(flushPeriod);
        flushStreams();
    }
    flushStreams();
}

void runReader(const std::shared_ptr<InProcRunner::ReaderState> &reader, int outReadFd)
{
    std::array<char, readBytes> chunk;
    const auto nextLine = [&]() -> std::optional<std::string> {
        const std::lock_guard lock(reader->mutex);
        return reader->partial.next();
    };
    for (;;) {
        const ssize_t count = read(outReadFd, chunk.data(), chunk.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        {
            const std::lock_guard lock(reader->mutex);
            reader->partial.append({chunk.data(), static_cast<std::size_t>(count)});
        }
        // Once the sink is closed the rest belongs to whoever closed it.
        while (!reader->sinkClosed) {
            const auto line = nextLine();
            if (!line)
                break;
            appendInprocLog(reader->diagnosticLog, *line);
            reader->deliver(*line);
        }
        if (reader->sinkClosed) {
            const std::lock_guard lock(reader->mutex);
            reader->partial.takePartial();
        }
    }
    std::string rest;
    {
        const std::lock_guard lock(reader->mutex);
        rest = reader->partial.takePartial();
    }
    if (!rest.empty()) {
        appendInprocLog(reader->diagnosticLog, rest);
        reader->deliver(rest, true);
    }
    close(outReadFd);
    reader->done = true;
}

void runEngineThread(const EngineThreadStart &start)
{
    std::vector<std::string> args = withHandshake(start);
    appendInprocLog(start.diagnosticLog, "[inproc] calling entry argc=" + std::to_string(args.size()) + "\n");
    const int rc = callEntry(start, args);
    start.worker->rc = rc;
    start.reader->deliver("[inproc] engine entry returned rc=" + std::to_string(rc) +
                          " (args=" + std::to_string(args.size()) + ")\n");
    appendInprocLog(start.diagnosticLog, "[inproc] entry rc=" + std::to_string(rc) + "\n");
    // In this order: whoever sees the end may rely on the result and on running being false.
    start.worker->running = false;
    start.worker->finished = true;
}

} // namespace kelp
