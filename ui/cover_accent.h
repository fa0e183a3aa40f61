/// \file
/// An accent colour out of a cover.
#pragma once

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <optional>

/// The mean colour of what is neither grey nor nearly black or white, each pixel by how light and how
/// saturated it is, brought into a range that reads as an accent. None for a cover without colour.
/// Any thread; a null image has no colour.
std::optional<QColor> dominantColour(const QImage &cover);

/// The same for a pixmap. GUI thread. \param found set to whether there is one; an invalid colour is
/// returned when there is none
QColor coverDominantColor(const QPixmap &cover, bool *found);
