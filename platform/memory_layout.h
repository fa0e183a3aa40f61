/// \file
/// Where the memory of this process comes from, and when.
#pragma once

#include <cstddef>
#include <cstdint>

/// Keeps the C library from giving each of the many short-lived threads of engine sessions an arena of its
/// own: what such arenas hold grows by some 60 KiB a session and never comes back. Call before the first
/// thread starts.
void keepMemoryTogether();

/// Has the system lay out memory that is mapped and will be written: a page that is touched first while the
/// window paints costs some two microseconds. What stands in it stays. Any thread; memory that is not mapped
/// any more is left alone.
void layOutMemory(std::uintptr_t begin, std::size_t bytes);
