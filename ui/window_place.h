/// \file
/// Where the window comes up again, also when the screen it stood on has gone.
#pragma once

#include <QList>
#include <QRect>

/// That size, or as much of it as fits, in the middle of a screen's usable area.
QRect centredPlace(const QSize &size, const QRect &screen);

/// A place in which the title bar can be reached.
/// \param wanted the remembered place
/// \param screens the usable areas of the screens, the primary one first; at least one
/// \return `wanted` where enough of its title bar stands on a screen; otherwise the same size, or as much of
///         it as fits, centred on the primary screen
QRect reachablePlace(const QRect &wanted, const QList<QRect> &screens);
