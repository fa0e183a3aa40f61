/// \file
/// Work that goes on beside the start of the program, so that the first picture of the window need not wait
/// for it.
#pragma once

#include <functional>
#include <future>
#include <memory>
#include <type_traits>
#include <utility>

/// How far a work steps back, as a nice value that programs it starts inherit. Little enough that a busy
/// machine still gives the work its share, for the window may come to wait for it.
enum class WorkRank
{
    Awaited = 0, ///< the window will soon wait for it
    InTime = 5,  ///< the display's and the session bus's answers, for which the window waits, go first
    Last = 10,   ///< wanted when the window is nearly built
};

/// Runs the work once on a thread of its own, which begins on another core than the caller's and gives way to
/// whoever wakes up. The thread ends with the work. Any thread.
/// \param work may outlive its caller, and must not throw
/// \return false where there is no thread to be had; the work has then not been done
[[nodiscard]] bool runBeside(WorkRank rank, std::function<void()> work);

/// The same with a result. Where there is no thread, the caller does the work at once.
template<typename Work>
[[nodiscard]] auto besideTheStart(WorkRank rank, Work work) -> std::future<std::invoke_result_t<Work>>
{
    auto task = std::make_shared<std::packaged_task<std::invoke_result_t<Work>()>>(std::move(work));
    auto result = task->get_future();
    if (!runBeside(rank, [task] { (*task)(); }))
        (*task)();
    return result;
}
