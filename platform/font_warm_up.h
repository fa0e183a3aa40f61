/// \file
/// The list of the system's fonts, read beside the start of the toolkit; and the matching of fonts whose file
/// is known, made quick.
#pragma once

#include <fontconfig/fontconfig.h>

/// Reads the system's font configuration on a thread of its own, which ends by itself. The toolkit would read
/// it when it draws its first letter, while nothing else goes on; begun before the toolkit starts, the
/// reading costs the listener no time. Without fontconfig, or without a thread, nothing happens. Call once,
/// first thing.
void warmUpFonts();

/// The font of the set that a request means which names a file, as the toolkit's requests do.
/// \return null where the request names none, where the set does not hold exactly one font of that file, and
/// where that font is variable: there the whole set has to be searched
FcPattern *fontOfNamedFile(const FcFontSet *set, const FcPattern *request);
