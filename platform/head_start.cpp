#include "platform/head_start.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <pthread.h>
#include <sched.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// How long the work goes on before who has been woken gets its turn. Of its own accord the kernel lets it
/// run for milliseconds.
constexpr std::uint64_t sliceNs = 100'000;

struct Beginning
{
    std::function<void()> work;
    WorkRank rank;
    cpu_set_t allowed = {}; ///< the cores of the thread that asked
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
/// \param steps as a nice value
void stepBack(int steps)
{
    if (sched_getscheduler(0) != SCHED_OTHER)
        return;
    Scheduling wanted;
    wanted.nice = getpriority(PRIO_PROCESS, 0) + steps;
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
    const std::unique_ptr<Beginning> beginning(static_cast<Beginning *>(raw));
    if (CPU_COUNT(&beginning->allowed) > 0)
        sched_setaffinity(0, sizeof beginning->allowed, &beginning->allowed);
    stepBack(static_cast<int>(beginning->rank));
    layOutArena();
    beginning->work();
    return nullptr;
}

} // namespace

bool runBeside(WorkRank rank, std::function<void()> work)
{
    auto beginning = std::make_unique<Beginning>(Beginning{std::move(work), rank});
    pthread_attr_t attributes;
    if (pthread_attr_init(&attributes) != 0)
        return false;
    pthread_attr_setdetachstate(&attributes, PTHREAD_CREATE_DETACHED);
    if (sched_getaffinity(0, sizeof beginning->allowed, &beginning->allowed) == 0)
        beginElsewhere(attributes, beginning->allowed);
    else
        CPU_ZERO(&beginning->allowed);
    pthread_t thread = {};
    const bool began = pthread_create(&thread, &attributes, run, beginning.get()) == 0;
    pthread_attr_destroy(&attributes);
    if (began)
        (void)beginning.release(); // the thread's now
    return began;
}
