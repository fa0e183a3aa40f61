/// \file
/// Where the memory of this process comes from, and when.
#pragma once

#include <cstddef>
#include <cstdint>

/// Keeps the C library from giving each of the many short-lived threads of engine sessions an arena of its
/// own: what such arenas hold grows by some 60 KiB a session and never comes back. Call before the first
/// thread starts.
void keepMemoryTogether();

/// A piece of this process's memory.
struct MemoryPart
{
    std::uintptr_t begin = 0;
    std::size_t bytes = 0;
};

/// Where the calling thread's next small blocks will stand, and nothing does yet: the end of the heap, some
/// MiB after keepMemoryTogether(). GUI thread; empty where the heap is not the system's own.
MemoryPart spareHeap();

/// Gives back what the start has left over, to the system, and lets the heap grow in smaller steps from now
/// on. Takes about a millisecond. Call when the first picture stands.
void settleHeap();

/// Has the system lay out memory that is mapped and will be written: a page that is touched first while the
/// window paints costs some two microseconds. What stands in it stays. Any thread; memory that is not mapped
/// any more is left alone.
void layOutMemory(MemoryPart part);
