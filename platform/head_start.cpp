#include "platform/head_start.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <mutex>
#include <pthread.h>
#include <sched.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// As a nice value. With less, who has just been woken would first owe the work its turn, until the next
/// tick.
constexpr int stepsBack = 10;

/// The longest that the kernel takes: who wakes up with a shorter slice, and everybody has one, takes the
/// core from the work at once.
constexpr std::uint64_t sliceNs = 100'000'000;

struct Beginning
{
    std::function<void()> work;
    WorkRank rank;
    int nice = 0;           ///< of the thread that asked
    cpu_set_t allowed = {}; ///< its cores
};

/// Whose turn it is. One at a time: two works would hold each other up, and on a machine with two cores the
/// display as well.
class Turns
{
public:
    /// Never ends: threads may outlive the program's last line.
    static Turns &ofProcess()
    {
        static auto *turns = new Turns;
        return *turns;
    }

    /// \return false when the work waits for its turn, and is kept here until then
    bool takesTurn(std::unique_ptr<Beginning> &beginning)
    {
        const std::scoped_lock lock(m_mutex);
        if (std::exchange(m_working, true)) {
            (beginning->rank == WorkRank::Last ? m_last : m_inTime).push_back(std::move(beginning));
            return false;
        }
        return true;
    }

    /// \return the work whose turn it is now; none when nothing waits
    std::unique_ptr<Beginning> afterTurn()
    {
        const std::scoped_lock lock(m_mutex);
        auto &waiting = m_inTime.empty() ? m_last : m_inTime;
        m_working = !waiting.empty();
        if (waiting.empty())
            return nullptr;
        auto next = std::move(waiting.front());
        waiting.pop_front();
        return next;
    }

private:
    using Waiting = std::deque<std::unique_ptr<Beginning>>;
    std::mutex m_mutex;
    bool m_working = false;
    Waiting m_inTime;
    Waiting m_last;
};

/// Where the system starts a thread on its parent's core, the parent waits until the next tick.
void beginElsewhere(pthread_attr_t &attributes, const cpu_set_t &allowed)
{
    const int here = sched_getcpu();
    cpu_set_t others = allowed;
    if (here >= 0 && here < CPU_SETSIZE)
        CPU_CLR(here, &others);
    if (CPU_COUNT(&others) > 0)
        pthread_attr_setaffinity_np(&attributes, sizeof others, &others);
}

/// As the kernel has it; glibc has no name for it yet.
struct Scheduling
{
    std::uint32_t size = sizeof(Scheduling);
    std::uint32_t policy = SCHED_OTHER;
    std::uint64_t flags = 0;
    std::int32_t nice = 0;
    std::uint32_t priority = 0;
    std::uint64_t sliceNs = 0;
    std::uint64_t deadlineNs = 0;
    std::uint64_t periodNs = 0;
};

/// This thread alone, as Linux has it. A kernel that knows no slices of a thread's own leaves them out.
void stepBack(const Beginning &beginning)
{
    if (sched_getscheduler(0) != SCHED_OTHER)
        return;
    Scheduling wanted;
    wanted.nice = beginning.nice + stepsBack;
    wanted.sliceNs = sliceNs;
    syscall(SYS_sched_setattr, 0, &wanted, 0);
}

/// glibc enlarges the memory of a thread that is not the first page by page, with a system call each that
/// holds up all other threads' memory. What has been had once stays.
void layOutArena()
{
    constexpr std::size_t blockBytes = 64 * 1024; // larger ones would be mapped by themselves
    std::array<void *, 24> blocks = {};
    for (void *&block : blocks)
        block = std::malloc(blockBytes);
    for (void *block : blocks)
        std::free(block);
}

void *run(void *raw)
{
    std::unique_ptr<Beginning> beginning(static_cast<Beginning *>(raw));
    if (CPU_COUNT(&beginning->allowed) > 0)
        sched_setaffinity(0, sizeof beginning->allowed, &beginning->allowed);
    layOutArena();
    for (; beginning; beginning = Turns::ofProcess().afterTurn()) {
        stepBack(*beginning);
        beginning->work();
    }
    return nullptr;
}

/// \return false where there is no thread to be had
bool begin(Beginning &beginning)
{
    pthread_attr_t attributes;
    if (pthread_attr_init(&attributes) != 0)
        return false;
    pthread_attr_setdetachstate(&attributes, PTHREAD_CREATE_DETACHED);
    if (sched_getaffinity(0, sizeof beginning.allowed, &beginning.allowed) == 0)
        beginElsewhere(attributes, beginning.allowed);
    else
        CPU_ZERO(&beginning.allowed);
    pthread_t thread = {};
    const bool began = pthread_create(&thread, &attributes, run, &beginning) == 0;
    pthread_attr_destroy(&attributes);
    return began;
}

} // namespace

bool runBeside(WorkRank rank, std::function<void()> work)
{
    const int nice = getpriority(PRIO_PROCESS, 0);
    auto beginning = std::make_unique<Beginning>(Beginning{std::move(work), rank, nice});
    if (!Turns::ofProcess().takesTurn(beginning))
        return true;
    if (begin(*beginning)) {
        (void)beginning.release(); // the thread's now
        return true;
    }
    while (const auto waiting = Turns::ofProcess().afterTurn())
        waiting->work();
    return false;
}
