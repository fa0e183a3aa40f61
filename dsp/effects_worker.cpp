#include "dsp/effects_worker.h"

#include <utility>

namespace {

void sendQuietly(const EffectsWorker::Send &send, const QString &line)
{
    try {
        send(line);
    } catch (...) {
        // Nobody waits for an answer, and the lines behind this one have to go out all the same.
    }
}

} // namespace

EffectsWorker &EffectsWorker::ofProcess()
{
    static EffectsWorker worker;
    return worker;
}

EffectsWorker::~EffectsWorker()
{
    std::deque<Task> dropped;
    {
        const std::lock_guard lock(m_mutex);
        m_ending = true;
        dropped.swap(m_tasks);
    }
    m_changed.notify_all();
    dropped.clear();
    if (m_thread.joinable())
        m_thread.join();
}

void EffectsWorker::push(Send send, const QString &line)
{
    {
        const std::lock_guard lock(m_mutex);
        m_tasks.push_back({std::move(send), line});
        if (!m_thread.joinable())
            m_thread = std::thread([this] { work(); });
    }
    m_changed.notify_all();
}

bool EffectsWorker::waitUntilIdle(std::chrono::milliseconds timeout)
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, timeout, [this] { return m_tasks.empty() && !m_sending; });
}

void EffectsWorker::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_ending || !m_tasks.empty(); });
        if (m_ending)
            return;
        Task task = std::move(m_tasks.front());
        m_tasks.pop_front();
        m_sending = true;
        lock.unlock();
        sendQuietly(task.send, task.line);
        // What the callback holds is freed before anybody is told that it is done.
        task = {};
        lock.lock();
        m_sending = false;
        m_changed.notify_all();
    }
}
