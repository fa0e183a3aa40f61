// The compiled catalogues stand where the program looks for them, and speak.
#include <QFile>
#include <QTranslator>
#include <gtest/gtest.h>
#include <map>

using namespace Qt::StringLiterals;

namespace {

const std::map<QString, QString> deviceMissing{
    {u"hant"_s, u"未選擇裝置"_s},
    {u"en"_s, u"No device selected"_s},
    {u"ja"_s, u"デバイスが選択されていません"_s},
    {u"ko"_s, u"장치가 선택되지 않음"_s},
    {u"ru"_s, u"Устройство не выбрано"_s},
    {u"de"_s, u"Kein Gerät gewählt"_s},
    {u"fr"_s, u"Aucun périphérique choisi"_s},
    {u"es"_s, u"Ningún dispositivo elegido"_s},
    {u"pt"_s, u"Nenhum dispositivo selecionado"_s},
    {u"ar"_s, u"لم يُختر أي جهاز"_s},
    {u"pl"_s, u"Nie wybrano urządzenia"_s},
};

TEST(Catalogues, EachLanguageIsAmongTheResourcesAndTranslates)
{
    for (const auto &[code, expected] : deviceMissing) {
        QTranslator translator;
        ASSERT_TRUE(translator.load(u":/i18n/%1.qm"_s.arg(code))) << code.toStdString();
        EXPECT_EQ(translator.translate("CommandLine", "未选择设备"), expected) << code.toStdString();
    }
}

TEST(Catalogues, TheSourceLanguageNeedsNone)
{
    EXPECT_FALSE(QFile::exists(u":/i18n/zh.qm"_s));
}

} // namespace
