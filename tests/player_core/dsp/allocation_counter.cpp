#include "allocation_counter.h"

#include <cstdlib>
#include <new>

namespace {

thread_local long allocations = 0;

} // namespace

long allocationsOfThisThread()
{
    return allocations;
}

// Not inlined: the compiler would see free() on what it takes for the library's operator new.
[[gnu::noinline]] void *operator new(size_t size)
{
    ++allocations;
    if (void *place = std::malloc(size ? size : 1))
        return place;
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void *place) noexcept
{
    std::free(place);
}

[[gnu::noinline]] void operator delete(void *place, size_t) noexcept
{
    std::free(place);
}
