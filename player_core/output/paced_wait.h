#pragma once

#include "player_core/output/frame_clock.h"
#include "player_core/output/wake_event.h"

#include <cstddef>

namespace kelp_core {

/// Waits until a clock has room for so many frames, at most 200 ms. False when that time is over or when
/// the event was signalled; the signal is then taken.
bool waitForRoom(FrameClock &clock, WakeEvent &wake, size_t frames);

} // namespace kelp_core
