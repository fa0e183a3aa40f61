/// \file
/// The sheet of the look in force, and its fonts. The sheet's vocabulary are the object names that begin with
/// "vesper", and three properties: "keyFocus" (keyboard_focus.h), "primary" for the one button that is meant,
/// and "sounding" for what lights up while sound flows.
#pragma once

#include <QFont>
#include <QString>
#include <QStringList>

/// As the sheet is written down: dark neutrals, and "@name@" where a colour of the accent stands.
QString darkStyleSheet();

/// The whole sheet in the colours of theme.h. GUI thread.
QString styleSheetInForce();

/// Settles which forms of the Chinese signs the fonts below take. Before the first widget is made.
/// \param code of the interface's language, as the catalogues are named
void setFontLanguage(const QString &code);

/// The families of the two kinds of type, best first. The same for the fonts of widgets and for those of the
/// sheet: a font that differs in anything is matched with the system's all over again.
QStringList interfaceFamilies();
QStringList figureFamilies();

/// The interface's font: a list of families, so that every script finds one of its own.
QFont interfaceFont(int pixelSize = 12);
/// For figures and engraved captions, which must not jump.
QFont figureFont(int pixelSize);
/// For a caption in small engraved capitals. A script without capitals gets the interface's font a size
/// larger and untracked: spacing tears its signs apart.
QFont captionFont(const QString &caption);
