#include "app/language.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

LanguageFacts facts(const QString &environment, const QString &stored, const QStringList &variables)
{
    return {environment, stored, variables, QLocale(QLocale::Polish)};
}

QString chosen(const QStringList &variables)
{
    return chooseLanguage(facts({}, u"system"_s, variables)).code;
}

} // namespace

TEST(Language, TheEnvironmentsChoiceBeatsTheStoredOne)
{
    EXPECT_EQ(chooseLanguage(facts(u"fr"_s, u"de"_s, {})).code, u"fr"_s);
    EXPECT_EQ(chooseLanguage(facts({}, u"de"_s, {u"ja_JP"_s})).code, u"de"_s);
    EXPECT_EQ(chooseLanguage(facts(u"system"_s, u"de"_s, {})).code, u"de"_s);
}

TEST(Language, VariablesThatNameNoLanguageAreSkipped)
{
    EXPECT_EQ(chosen({{}, {}, u"C"_s, u"ko"_s}), u"ko"_s);
    EXPECT_EQ(chosen({u"posix"_s, u"c"_s, u"ru_RU.UTF-8"_s, u"ko"_s}), u"ru"_s);
    EXPECT_EQ(chosen({{}, {}, u"C"_s, {}}), u"pl"_s) << "the system's locale";
}

TEST(Language, TheVariablesAreReadInTheirOrder)
{
    const QStringList all{u"ja_JP"_s, u"ko_KR"_s, u"ru_RU"_s, u"fr"_s};
    for (qsizetype unset = 0; unset < all.size(); ++unset) {
        QStringList variables = all;
        for (qsizetype i = 0; i < unset; ++i)
            variables[i].clear();
        EXPECT_EQ(chosen(variables), all.at(unset).left(2));
    }
}

TEST(Language, LangCWithoutLcAllGoesOnToLanguageAndThenToTheSystem)
{
    EXPECT_EQ(chosen({{}, {}, u"C"_s, u"ko_KR"_s}), u"ko"_s);
    EXPECT_EQ(chosen({{}, {}, u"C"_s, {}}), u"pl"_s);
    EXPECT_EQ(chosen({{}, {}, u"Posix"_s, u"c"_s}), u"pl"_s);
}

TEST(Language, FrenchInTheEnvironmentBeatsAStoredGerman)
{
    EXPECT_EQ(chooseLanguage(facts(u"fr"_s, u"de"_s, {u"ja_JP"_s})).code, u"fr"_s);
    for (const QString &none : {QString(), u"system"_s})
        EXPECT_EQ(chooseLanguage(facts(none, u"de"_s, {u"ja_JP"_s})).code, u"de"_s);
}

TEST(Language, TheTableIsOfferedInItsOrderUnderItsOwnNames)
{
    QStringList rows;
    for (const LanguageRow &row : languageTable())
        rows.append(QString(row.code) + u' ' + row.nativeName.toString() +
                    (row.rightToLeft ? u" <"_s : QString()));
    EXPECT_EQ(rows, (QStringList{u"zh 中文"_s, u"hant 繁體中文"_s, u"en English"_s, u"ja 日本語"_s,
                                 u"ko 한국어"_s, u"ru Русский"_s, u"de Deutsch"_s, u"fr Français"_s,
                                 u"es Español"_s, u"pt Português"_s, u"ar العربية <"_s, u"pl Polski"_s}));
}

TEST(Language, EachLocaleFindsItsRow)
{
    for (const char *name :
         {"en_GB", "ja_JP", "ko_KR", "ru_RU", "de_AT", "fr_CA", "es_MX", "pt_BR", "ar_EG", "pl_PL"})
        EXPECT_EQ(matchLocale(QLocale(QString::fromLatin1(name))), QString::fromLatin1(name).left(2)) << name;
}

TEST(Language, CodesetsAndListsDoNotHideTheName)
{
    EXPECT_EQ(chosen({u"de_AT.UTF-8@euro"_s}), u"de"_s);
    EXPECT_EQ(chosen({{}, {}, {}, u"fr:en"_s}), u"fr"_s);
}

TEST(Language, ChineseIsToldApartByScriptAndTerritory)
{
    for (const QString &name : {u"zh_TW"_s, u"zh_HK"_s, u"zh_MO"_s, u"zh_Hant_CN"_s})
        EXPECT_EQ(matchLocale(QLocale(name)), u"hant"_s) << qPrintable(name);
    for (const QString &name : {u"zh_CN"_s, u"zh"_s, u"zh_SG"_s})
        EXPECT_EQ(matchLocale(QLocale(name)), u"zh"_s) << qPrintable(name);
}

TEST(Language, ALanguageWithoutARowGivesEnglish)
{
    EXPECT_EQ(chosen({u"fi_FI.UTF-8"_s}), u"en"_s);
    EXPECT_EQ(matchLocale(QLocale::c()), u"en"_s);
}

TEST(Language, TheTableHoldsEachCodeOnce)
{
    QSet<QString> codes;
    for (const LanguageRow &row : languageTable())
        codes.insert(row.code);
    EXPECT_EQ(codes.size(), 12);
    EXPECT_EQ(static_cast<qsizetype>(languageTable().size()), codes.size());
    EXPECT_TRUE(isRightToLeft(u"ar"_s));
    EXPECT_FALSE(isRightToLeft(u"en"_s));
    EXPECT_TRUE(isChinese(u"hant"_s));
    EXPECT_FALSE(isChinese(u"ja"_s));
}
