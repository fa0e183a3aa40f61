/// \file
/// The results that all ways of running an engine share.
#pragma once

/// Failures stand below zero, where an engine's own exit codes do not reach.
namespace session_code {
inline constexpr int ok = 0;
inline constexpr int refused = -1;
inline constexpr int alreadyRunning = -2;
inline constexpr int couldNotStart = -3;
inline constexpr int crashed = -4;
inline constexpr int timedOut = -1000;
} // namespace session_code
