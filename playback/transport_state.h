/// \file
/// The window's memory for what shapes the order and the manner of playing.
#pragma once

#include "playback/ab_loop.h"
#include "playback/play_order.h"
#include "playback/sleep_timer.h"

struct TransportState
{
    PlayOrderState order;
    AbLoopState abLoop;
    SleepState sleep;
};
