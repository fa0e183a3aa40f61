/// \file
/// The program's own icon.
#pragma once

#include <QIcon>
#include <QString>

/// An icon of one PNG of the resources. A plain icon loads every image plug-in of the system to learn what
/// kind of file it is, and is sent to the window system in its full size. GUI thread. \param path of the PNG,
/// which ends in ".png"; where it cannot be read the icon's pictures are empty. A picture that lies beside it
/// in one of the sizes, such as "kelp-32.png" beside "kelp.png", need not be scaled. \param sizes of the
/// pictures that it offers, pixels, smallest first, at least one
QIcon programIcon(const QString &path, const QList<QSize> &sizes);
