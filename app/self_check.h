/// \file
/// The self-check mode: the program measures itself, prints what it found, and leaves.
#pragma once

#include "app/debug_hooks.h"
#include "app/language.h"

class PlayerGuiWindow;

/// The exit code when the main thread did not come back in time.
inline constexpr int selfCheckHangCode = 97;

/// Starts the watchdog, prints the measurements on stdout, and arms the timers that quit the program.
void runSelfCheck(PlayerGuiWindow &window, const HookPlan &plan, const LanguageChoice &language);
