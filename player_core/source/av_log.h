#pragma once

#include <string>

namespace kelp_core {

/// From the first call on FFmpeg writes nothing to standard error: its lines would mix with the engine's.
/// Instead the last error text of each thread is kept. Safe from any thread.
void quietAvLog();

/// Takes (and clears) the last error text that FFmpeg gave on this thread, one line, or "".
std::string takeAvError();

/// FFmpeg's words for an error code, one line.
std::string avErrorWords(int code);

} // namespace kelp_core
