/// \file
/// What the toolkit will ask of the system's fonts, begun beside its start.
#pragma once

#include "platform/font_wishes.h"

/// Reads the system's font configuration, lists its fonts and prepares the wished ones beside the start
/// (head_start.h). The toolkit would do all that when it draws its first letter, while nothing
/// else goes on; begun before the toolkit starts, it costs the listener no time. Without fontconfig, or
/// without a thread, nothing happens. Call once, first thing.
void warmUpFonts(std::vector<FontWish> wishes);
