/// \file
/// What the system knows about this process.
#pragma once

#include <QtGlobal>
#include <optional>

/// Milliseconds since the process was started; none where the system does not tell. Resolution 10 ms.
std::optional<qint64> processAgeMs();

/// Memory in use by this process (resident set) in bytes; none where the system does not tell.
std::optional<qint64> residentBytes();

/// Keeps the C library from giving each of the many short-lived threads of engine sessions an arena of its
/// own: what such arenas hold grows by some 60 KiB a session and never comes back. Call before the first
/// thread starts.
void keepMemoryTogether();
