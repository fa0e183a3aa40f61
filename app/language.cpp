#include "app/language.h"

#include "app/settings_store.h"
#include "platform/settings_table.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto simplified = "zh"_L1;
constexpr auto traditional = "hant"_L1;

constexpr std::array table = {
    LanguageRow{simplified, u"中文", QLocale::Chinese, false},
    LanguageRow{traditional, u"繁體中文", QLocale::Chinese, false},
    LanguageRow{"en"_L1, u"English", QLocale::English, false},
    LanguageRow{"ja"_L1, u"日本語", QLocale::Japanese, false},
    LanguageRow{"ko"_L1, u"한국어", QLocale::Korean, false},
    LanguageRow{"ru"_L1, u"Русский", QLocale::Russian, false},
    LanguageRow{"de"_L1, u"Deutsch", QLocale::German, false},
    LanguageRow{"fr"_L1, u"Français", QLocale::French, false},
    LanguageRow{"es"_L1, u"Español", QLocale::Spanish, false},
    LanguageRow{"pt"_L1, u"Português", QLocale::Portuguese, false},
    LanguageRow{"ar"_L1, u"العربية", QLocale::Arabic, true},
    LanguageRow{"pl"_L1, u"Polski", QLocale::Polish, false},
};

constexpr std::array traditionalTerritories = {QLocale::Taiwan, QLocale::HongKong, QLocale::Macao};

bool isChoice(const QString &value)
{
    return !value.isEmpty() && value != languageFollowsSystem;
}

/// "de_AT.UTF-8@euro" and the list "de_AT:de" are both named by their first part.
QString localeNameOf(const QString &value)
{
    const auto end = std::find_if(value.cbegin(), value.cend(),
                                  [](QChar c) { return c == u'.' || c == u'@' || c == u':'; });
    return value.left(std::distance(value.cbegin(), end));
}

bool namesNoLanguage(const QString &value)
{
    return value.isEmpty() || value.compare("C"_L1, Qt::CaseInsensitive) == 0 ||
           value.compare("POSIX"_L1, Qt::CaseInsensitive) == 0;
}

} // namespace

std::span<const LanguageRow> languageTable()
{
    return table;
}

LanguageChoice chooseLanguage(const LanguageFacts &facts)
{
    for (const QString &choice : {facts.environmentChoice, facts.storedChoice}) {
        if (isChoice(choice))
            return {choice, choice};
    }
    for (const QString &value : facts.localeVariables) {
        if (!namesNoLanguage(value)) {
            const QString name = localeNameOf(value);
            return {matchLocale(QLocale(name)), name};
        }
    }
    return {matchLocale(facts.systemLocale), facts.systemLocale.name()};
}

LanguageFacts languageFacts()
{
    LanguageFacts facts;
    facts.environmentChoice = qEnvironmentVariable("KELP_LANG");
    facts.storedChoice = readUserSetting(settings::language);
    for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE"})
        facts.localeVariables.append(qEnvironmentVariable(name));
    facts.systemLocale = QLocale::system();
    return facts;
}

QString matchLocale(const QLocale &locale)
{
    if (locale.language() == QLocale::Chinese) {
        const bool isTraditional =
            locale.script() == QLocale::TraditionalHanScript ||
            std::ranges::find(traditionalTerritories, locale.territory()) != traditionalTerritories.end();
        return isTraditional ? traditional : simplified;
    }
    const auto row = std::ranges::find(table, locale.language(), &LanguageRow::language);
    return row != table.end() ? QString(row->code) : u"en"_s;
}

bool isChinese(const QString &code)
{
    return code == simplified || code == traditional;
}

bool isRightToLeft(const QString &code)
{
    const auto row = std::ranges::find_if(table, [&](const LanguageRow &r) { return code == r.code; });
    return row != table.end() && row->rightToLeft;
}
