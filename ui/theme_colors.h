/// \file
/// The colours that everything is drawn with. Process-wide; GUI thread.
#pragma once

#include <QColor>
#include <QPalette>

namespace theme {

// The signal's own colour and its companions.
inline constexpr QColor accentColor(0xC9, 0xA9, 0x6E);
inline constexpr QColor accentBright(0xE0, 0xC8, 0x96);
inline constexpr QColor accentDeep(0x22, 0x1E, 0x18);

// Inks, from titles to what cannot be used.
inline constexpr QColor ink1(0xED, 0xEA, 0xE3);
inline constexpr QColor ink3(0xB9, 0xB3, 0xA8);
inline constexpr QColor inkOff(0x4A, 0x48, 0x42);

/// The application's palette, for all colour groups.
QPalette applicationPalette();

} // namespace theme
