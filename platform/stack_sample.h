/// \file
/// The stack of another thread of this program, for naming what a frozen thread is doing.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <sys/types.h>

/// The operating system's number of a thread.
using SystemThreadId = pid_t;

/// The calling thread's number.
SystemThreadId currentSystemThreadId();

/// Code addresses of one stack, innermost first: [0] is where the thread stood, the others are return
/// addresses.
struct StackSample
{
    static constexpr int mostFrames = 64;
    std::array<std::uintptr_t, mostFrames> addresses{};
    int count = 0;
};

/// How taking a sample ended.
enum class StackSampleResult
{
    Taken,
    NoSignal,     ///< every real-time signal has a handler of somebody else's
    NoSuchThread, ///< the thread has ended, or is none of this program
    TimedOut,     ///< the thread did not answer: it blocks the signal, or sleeps inside the kernel
    Busy,         ///< an earlier sample is still being taken in a thread that does not come on
};

/// Takes the stack of \p thread, which stands still meanwhile and goes on afterwards.
///
/// The thread is interrupted by a directed real-time signal. Its handler only walks the frames into a buffer
/// that exists already: by the unwind tables that every function has (there are no frame pointers in an
/// optimised build), which are found without a lock. Nothing is allocated and no lock is taken in the
/// stopped thread. The former handler of the signal is put back before this returns, except after TimedOut
/// and Busy: a signal that arrives late must not meet the default action, which ends the program.
///
/// Any thread but \p thread itself; calls are served one at a time.
[[nodiscard]] StackSampleResult sampleStack(SystemThreadId thread, StackSample &sample,
                                            std::chrono::milliseconds wait = std::chrono::milliseconds(500));
