/// \file
/// The signs as icons, for widgets that want one, and as pictures for the sheet.
#pragma once

#include "ui/glyph_drawing.h"

#include <QIcon>

/// Normal in ink 3, active in ink 1, disabled in the colour of what cannot be used; play and pause, which
/// stand for the signal, in the accent. Follows the theme.
QIcon glyphIcon(Glyph glyph);
