/// \file
/// The signs of the transport, drawn by code from the theme's colours: sharp at every scale.
#pragma once

#include <QIcon>

enum class Glyph
{
    Play,
    Pause,
    Stop,
    Previous,
    Next,
    Refresh,
    Speaker
};

/// Normal in ink 3, active in ink 1, disabled in the colour of what cannot be used; play and pause, which
/// stand for the signal, in the accent.
QIcon glyphIcon(Glyph glyph);
