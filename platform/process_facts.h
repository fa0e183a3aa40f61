/// \file
/// What the system knows about this process.
#pragma once

#include <QtGlobal>
#include <optional>

/// Milliseconds since the process was started; none where the system does not tell. Resolution 10 ms.
std::optional<qint64> processAgeMs();

/// Memory in use by this process (resident set) in bytes; none where the system does not tell.
std::optional<qint64> residentBytes();
