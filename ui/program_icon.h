/// \file
/// The program's own icon.
#pragma once

#include <QIcon>
#include <QString>

/// An icon of one PNG of the resources, decoded on a thread of its own that ends with that. A plain icon
/// decodes its file at once, and loads every image plug-in of the system to learn what kind of file it is.
/// GUI thread.
/// \param path of the PNG; where it cannot be read the icon is empty
/// \param size of the picture, pixels, so that it is known before the file is decoded
QIcon programIcon(const QString &path, const QSize &size);
