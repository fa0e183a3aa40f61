/// \file
/// Work that goes on beside the start of the program, so that the first picture of the window need not wait
/// for it.
#pragma once

#include <functional>
#include <future>
#include <memory>
#include <type_traits>
#include <utility>

/// Whose turn it is first when several works wait for theirs: one goes on at a time.
enum class WorkRank
{
    InTime,
    Last, ///< what is wanted when the window is nearly built
};

/// Runs the work once on a thread that is not the caller's, as soon as it is its turn. The thread begins on
/// another core and gives way to whoever wakes up: the display and the session bus, whose answers the window
/// waits for. It steps back by a nice value of ten, which programs that it starts inherit; a busy machine
/// still gives it a share, for the window may come to wait for it. Any thread.
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
