/// \file
/// What the painted instruments have in common.
#pragma once

#include <QPainter>

/// The ground that the views draw on: the frame's own colour, sunk a little. Covers all of the rectangle.
void paintInstrumentGround(QPainter &painter, const QRect &rect);
