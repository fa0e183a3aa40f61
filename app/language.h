/// \file
/// Which language the interface speaks. The source texts are Simplified Chinese; every other language has a
/// catalogue among the program's resources.
#pragma once

#include <QList>
#include <QLocale>
#include <QString>
#include <span>

struct LanguageRow
{
    QLatin1StringView code;
    QStringView nativeName;
    QLocale::Language language;
    bool rightToLeft;
};

/// All languages in the order in which they are offered.
std::span<const LanguageRow> languageTable();

/// The stored value, and that of KELP_LANG, which means: as the environment says.
inline constexpr QLatin1StringView languageFollowsSystem{"system"};

struct LanguageFacts
{
    QString environmentChoice; ///< KELP_LANG
    QString storedChoice;
    /// LC_ALL, LC_MESSAGES, LANG, LANGUAGE in this order; unset ones are empty.
    QStringList localeVariables;
    QLocale systemLocale;
};

struct LanguageChoice
{
    QString code;       ///< of the table, unless a choice named one that is not in it
    QString localeName; ///< what it was derived from
};

LanguageChoice chooseLanguage(const LanguageFacts &facts);
/// The facts of this process and of its settings.
LanguageFacts languageFacts();

/// The code for a locale; "en" for a language without a row.
QString matchLocale(const QLocale &locale);

/// Whether the code is one of the Chinese ones.
bool isChinese(const QString &code);
bool isRightToLeft(const QString &code);
