/// \file
/// A thread that stands in a function of a known name, for tests of what looks at frozen threads.
#pragma once

#include "platform/stack_sample.h"

#include <atomic>
#include <csignal>
#include <functional>
#include <semaphore.h>
#include <thread>

/// Stands in the kernel, until \p gate is posted, in a function whose name a test can look for.
[[gnu::noinline]] inline void kelpTestStandsAsleep(sem_t &gate)
{
    while (sem_wait(&gate) != 0) {
    }
    // Keeps the call above from becoming the function's last, which would take its frame off the stack.
    std::atomic_signal_fence(std::memory_order_seq_cst);
    asm volatile("" ::: "memory");
}

/// Runs \p stand on a thread of its own, from construction on.
class StandingThread
{
public:
    explicit StandingThread(std::function<void()> prepare = {})
    {
        sem_init(&m_gate, 0, 0);
        m_thread = std::thread([this, prepare] {
            if (prepare)
                prepare();
            m_id.store(currentSystemThreadId());
            m_id.notify_all();
            kelpTestStandsAsleep(m_gate);
        });
        m_id.wait(0);
    }
    ~StandingThread()
    {
        letGo();
        sem_destroy(&m_gate);
    }
    StandingThread(const StandingThread &) = delete;
    StandingThread &operator=(const StandingThread &) = delete;

    SystemThreadId id() const { return m_id.load(); }
    /// Ends the thread; may be called twice.
    void letGo()
    {
        sem_post(&m_gate);
        if (m_thread.joinable())
            m_thread.join();
    }

private:
    sem_t m_gate;
    std::atomic<SystemThreadId> m_id{0};
    std::thread m_thread;
};
