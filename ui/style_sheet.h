/// \file
/// The stylesheet of the dark look. Its vocabulary are the object names that begin with "vesper".
#pragma once

#include <QFont>
#include <QString>

/// The whole sheet.
QString darkStyleSheet();

/// The interface's font: a list of families, so that every script finds one of its own.
QFont interfaceFont();
/// For figures and engraved captions, which must not jump.
QFont figureFont(int pixelSize);
