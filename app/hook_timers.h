/// \file
/// Sets the debug hooks going.
#pragma once

#include "app/debug_hooks.h"

class PlayerGuiWindow;

/// Grabs the window into the file of KELP_GUI_SHOT: as soon as it can be seen, or after the seconds of
/// KELP_GUI_SHOT_AFTER, so that a picture of the playing window can be had.
void takeHookScreenshot(PlayerGuiWindow &window, const HookPlan &plan);

/// Arms every hook of the plan, in the order of the table. Timers belong to the window; the seconds are
/// counted from here.
void armHooks(PlayerGuiWindow &window, const HookPlan &plan);
