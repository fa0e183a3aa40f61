/// \file
/// Sends the effects' control lines beside the GUI thread.
#pragma once

#include <QString>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

/// One thread that sends lines first in, first out, so that a slider never waits for the engine.
///
/// push() on any thread; the callbacks run on the worker. Its thread starts with the first push. What a
/// callback refers to has to live until the callback has run: call waitUntilIdle() before it goes.
class EffectsWorker
{
public:
    using Send = std::function<void(const QString &line)>;

    /// The worker of the process. It ends when the process does: a line that is being sent is finished, lines
    /// that wait are dropped, since there is no engine left to hear them.
    static EffectsWorker &ofProcess();

    EffectsWorker() = default;
    ~EffectsWorker();
    EffectsWorker(const EffectsWorker &) = delete;
    EffectsWorker &operator=(const EffectsWorker &) = delete;

    /// Appends a line. An exception of the callback ends that line only.
    void push(Send send, const QString &line);
    /// \return whether all lines pushed so far were sent within the time
    bool waitUntilIdle(std::chrono::milliseconds timeout);

private:
    struct Task
    {
        Send send;
        QString line;
    };

    void work();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Task> m_tasks; ///< guarded by m_mutex
    bool m_sending = false;   ///< guarded by m_mutex; a task is out of the queue and not done yet
    bool m_ending = false;    ///< guarded by m_mutex
    std::thread m_thread;     ///< guarded by m_mutex until the destructor
};
