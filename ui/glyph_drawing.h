/// \file
/// Every sign of the interface, drawn by code: sharp at every scale and in the colours of the theme.
#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

enum class Glyph
{
    // What acts on sound is solid …
    Play,
    Pause,
    Stop,
    Previous,
    Next,
    // … the rest is outline.
    OrderSequential,
    OrderRandom,
    RepeatOff,
    RepeatList,
    RepeatTrack,
    Lyrics,
    Report,
    VolumeMuted,
    VolumeLow,
    VolumeMiddle,
    VolumeHigh,
    Speaker = VolumeHigh,
    ChevronUp,
    ChevronDown,
    ChevronLeft,
    ChevronRight,
    Minimise,
    Maximise,
    Restore,
    Close,
    Search,
    Warning,
    Gear,
    Refresh,
    Tick,
    Dash,
    SliderCapLine, ///< the middle line of a fader's cap
};

/// The side of the square that glyphs are drawn for, in logical pixels.
inline constexpr int glyphSide = 20;

/// \param place a square; its corner is moved onto a whole pixel of the device
void drawGlyph(QPainter &painter, Glyph glyph, const QRectF &place, const QColor &colour);

/// The sign for a volume of 0 … 100.
Glyph volumeGlyph(int percent);
