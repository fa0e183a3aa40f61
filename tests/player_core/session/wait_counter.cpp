#include "player_core/session/wait_counter.h"

#include "support/sanitizers.h"

#include <atomic>
#include <cstddef>
#include <cstring>

#include <dlfcn.h>
#include <pthread.h>
#include <sys/prctl.h>
#include <sys/types.h>

namespace {

std::atomic<long> allocations{0};
std::atomic<long> locks{0};
std::atomic<long> files{0};

} // namespace

namespace kelp_core::test {

WaitCounts waitCounts()
{
    return {allocations, locks, files};
}

bool countsWaits()
{
    return KELP_TEST_ADDRESS_SANITIZER == 0 && KELP_TEST_THREAD_SANITIZER == 0;
}

} // namespace kelp_core::test

#if !KELP_TEST_ADDRESS_SANITIZER && !KELP_TEST_THREAD_SANITIZER

namespace {

void count(std::atomic<long> &what)
{
    char name[16] = "";
    if (prctl(PR_GET_NAME, name) == 0 && std::strcmp(name, "kelp-audio") == 0)
        ++what;
}

/// The function of that name that would be called if it did not stand here.
template<typename Function>
Function next(std::atomic<void *> &known, const char *name)
{
    void *function = known.load(std::memory_order_relaxed);
    if (!function)
        known = function = dlsym(RTLD_NEXT, name);
    return reinterpret_cast<Function>(function);
}

} // namespace

extern "C" {

void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *place, size_t size);

void *malloc(size_t size)
{
    count(allocations);
    return __libc_malloc(size);
}

void *calloc(size_t number, size_t size)
{
    count(allocations);
    return __libc_calloc(number, size);
}

void *realloc(void *place, size_t size)
{
    count(allocations);
    return __libc_realloc(place, size);
}

int pthread_mutex_lock(pthread_mutex_t *mutex)
{
    static std::atomic<void *> known{nullptr};
    count(locks);
    return next<int (*)(pthread_mutex_t *)>(known, "pthread_mutex_lock")(mutex);
}

int pthread_cond_wait(pthread_cond_t *condition, pthread_mutex_t *mutex)
{
    static std::atomic<void *> known{nullptr};
    count(locks);
    return next<int (*)(pthread_cond_t *, pthread_mutex_t *)>(known, "pthread_cond_wait")(condition, mutex);
}

ssize_t read(int descriptor, void *to, size_t size)
{
    static std::atomic<void *> known{nullptr};
    count(files);
    return next<ssize_t (*)(int, void *, size_t)>(known, "read")(descriptor, to, size);
}

ssize_t write(int descriptor, const void *from, size_t size)
{
    static std::atomic<void *> known{nullptr};
    count(files);
    return next<ssize_t (*)(int, const void *, size_t)>(known, "write")(descriptor, from, size);
}
}

#endif
