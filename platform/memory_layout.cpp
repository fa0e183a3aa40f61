#include "platform/memory_layout.h"

#include <algorithm>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

void keepMemoryTogether()
{
    // The GUI thread's; and some for all others, which allocate little while they play. While the window is
    // built its helpers allocate a lot: with one arena for them all, they would wait for each other.
    constexpr int arenas = 8;
    mallopt(M_ARENA_MAX, arenas);
}

void layOutMemory(std::uintptr_t begin, std::size_t bytes)
{
#ifdef MADV_POPULATE_WRITE
    const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const std::uintptr_t first = (begin + page - 1) / page * page;
    const std::uintptr_t end = (begin + bytes) / page * page;
    // In pieces: who wants to map or to enlarge memory meanwhile waits for a piece, not for all of it.
    const std::uintptr_t piece = 32 * page;
    for (std::uintptr_t at = first; at < end; at += piece) {
        if (madvise(reinterpret_cast<void *>(at), std::min(piece, end - at), MADV_POPULATE_WRITE) != 0)
            return;
    }
#else
    (void)begin;
    (void)bytes;
#endif
}
