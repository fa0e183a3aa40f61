#include "platform/memory_layout.h"

#include <algorithm>
#include <cstdlib>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

/// What the window allocates until it is seen, with something over.
constexpr int startHeapBytes = 6 * 1024 * 1024;
/// By what the heap grows later, and what it keeps when something is freed at its end.
constexpr int heapStepBytes = 1024 * 1024;

} // namespace

void keepMemoryTogether()
{
    // The GUI thread's; and some for all others, which allocate little while they play. While the window is
    // built its helpers allocate a lot: with one arena for them all, they would wait for each other.
    constexpr int arenas = 8;
    mallopt(M_ARENA_MAX, arenas);
    // From here on the library keeps its threshold, too: a block of 128 KiB comes from the system and goes
    // back to it, where otherwise a first large one would have those that follow stay in the heap.
    mallopt(M_TOP_PAD, startHeapBytes);
}

MemoryPart spareHeap()
{
    void *const block = std::malloc(1);
    const auto inHeap = reinterpret_cast<std::uintptr_t>(block);
    std::free(block);
    const auto end = reinterpret_cast<std::uintptr_t>(sbrk(0));
    const std::size_t spare = mallinfo2().keepcost;
    // Where the system's own cannot grow, the library takes its heap from elsewhere.
    if (spare > end || inHeap >= end)
        return {};
    return {end - spare, spare};
}

void settleHeap()
{
    mallopt(M_TOP_PAD, heapStepBytes);
    malloc_trim(heapStepBytes);
}

void layOutMemory(MemoryPart part)
{
#ifdef MADV_POPULATE_WRITE
    const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const std::uintptr_t first = (part.begin + page - 1) / page * page;
    const std::uintptr_t end = (part.begin + part.bytes) / page * page;
    // In pieces: who wants to map or to enlarge memory meanwhile waits for a piece, not for all of it.
    const std::uintptr_t piece = 32 * page;
    for (std::uintptr_t at = first; at < end; at += piece) {
        if (madvise(reinterpret_cast<void *>(at), std::min(piece, end - at), MADV_POPULATE_WRITE) != 0)
            return;
    }
#else
    (void)part;
#endif
}
