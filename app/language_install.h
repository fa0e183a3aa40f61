/// \file
/// Puts the chosen language's catalogue to work.
#pragma once

#include <QString>

struct LanguageInstall
{
    QString code;    ///< of the catalogue in force
    QString warning; ///< when it is not the one that was asked for
};

/// Installs the catalogue and sets the layout's direction. Call once, before the first window: a language is
/// fixed for the life of the process.
LanguageInstall installLanguage(const QString &code);
