/// \file
/// The list of the system's fonts, read beside the start of the toolkit.
#pragma once

/// Reads the system's font configuration on a thread of its own, which ends by itself. The toolkit would read
/// it when it draws its first letter, while nothing else goes on; begun before the toolkit starts, the
/// reading costs the listener no time. Without fontconfig, or without a thread, nothing happens. Call once,
/// first thing.
void warmUpFonts();
