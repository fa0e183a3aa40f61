/// \file
/// A trace of the guards round start and end, for whoever set KELP_GUARD_TRACE.
#pragma once

/// Appends one formatted line to the file that KELP_GUARD_TRACE names and closes it; without the variable
/// nothing happens. Any thread.
[[gnu::format(printf, 1, 2)]] void guardTrace(const char *format, ...);
