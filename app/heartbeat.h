/// \file
/// The pulse of the GUI thread, and who listens to it.
#pragma once

namespace heartbeat {

/// Starts the timer that beats every 20 ms on the GUI thread; once a process.
void start();
/// Beats so far. Any thread.
unsigned long count();

/// Set right after the event loop has returned. Any thread.
void setEventLoopLeft();
bool eventLoopLeft();

/// Starts the thread that samples the calling thread, the GUI thread, when it has stopped beating.
void startStallSampler();

} // namespace heartbeat
