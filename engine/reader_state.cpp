#include "engine/reader_state.h"

#include <chrono>
#include <cstdio>
#include <exception>
#include <thread>
#include <unistd.h>

namespace kelp {
namespace {

constexpr std::chrono::milliseconds pollStep{5};

} // namespace

InProcRunner::ReaderState::~ReaderState()
{
    if (errorFd >= 0)
        close(errorFd);
}

void InProcRunner::ReaderState::deliver(std::string_view piece, bool tail) noexcept
{
    ++delivering; // before the test below, so that closeSink() cannot miss this call
    if (!sinkClosed && lineSink) {
        try {
            lineSink(piece);
        } catch (const std::exception &thrown) {
            if (tail)
                dprintf(errorFd, "[inproc] log sink threw (tail)\n");
            else
                dprintf(errorFd, "[inproc] log sink threw: %s\n", thrown.what());
        } catch (...) {
            dprintf(errorFd, tail ? "[inproc] log sink threw (tail)\n"
                                  : "[inproc] log sink threw a non-std exception\n");
        }
    }
    --delivering;
}

bool InProcRunner::ReaderState::closeSink(int waitMs)
{
    sinkClosed = true;
    const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(waitMs);
    while (delivering > 0) {
        if (std::chrono::steady_clock::now() >= until)
            return false;
        std::this_thread::sleep_for(pollStep);
    }
    return true;
}

void InProcRunner::ReaderState::handOverPartial()
{
    sinkClosed = true;
    std::string rest;
    {
        const std::lock_guard lock(mutex);
        while (auto line = partial.next())
            rest += *line;
        rest += partial.takePartial();
    }
    if (rest.empty() || !lineSink)
        return;
    try {
        lineSink(rest);
    } catch (...) {
        dprintf(errorFd, "[inproc] log sink threw (tail)\n");
    }
}

} // namespace kelp
