/// \file
/// Work that goes on beside the start of the program, so that the first picture of the window need not wait
/// for it.
#pragma once

#include <functional>
#include <future>
#include <memory>
#include <type_traits>
#include <utility>

/// Runs the work once on a thread of its own, which begins on another core than the caller's and steps back
/// (by a nice value that it keeps, and that programs it starts inherit) behind whatever the window waits for.
/// The thread ends with the work. Any thread.
/// \param work may outlive its caller, and must not throw
/// \return false where there is no thread to be had; the work has then not been done
[[nodiscard]] bool runBeside(std::function<void()> work);

/// The same with a result. Where there is no thread, the caller does the work at once.
template<typename Work>
[[nodiscard]] auto besideTheStart(Work work) -> std::future<std::invoke_result_t<Work>>
{
    auto task = std::make_shared<std::packaged_task<std::invoke_result_t<Work>()>>(std::move(work));
    auto result = task->get_future();
    if (!runBeside([task] { (*task)(); }))
        (*task)();
    return result;
}
