// Colours in force, the sheet that is made of them, and the accent out of a cover.
#include "painted_test.h"

#include "platform/system_scheme.h"
#include "ui/cover_accent.h"
#include "ui/light_look.h"
#include "ui/program_icon.h"
#include "ui/style_sheet.h"

#include <QApplication>
#include <QCheckBox>
#include <QDBusVariant>
#include <QPushButton>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QStringList warnings;

void collect(QtMsgType, const QMessageLogContext &, const QString &text)
{
    warnings.append(text);
}

QImage plain(const QColor &colour, QSize size = {64, 64})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

} // namespace

class Theme : public PaintedTest
{
};

TEST(ProgramIcon, OffersItsSizesAndNeverEnlarges)
{
    const QList<QSize> sizes = {{32, 32}, {128, 128}};
    const QIcon icon = programIcon(u":/icons/kelp.png"_s, sizes);
    EXPECT_FALSE(icon.isNull());
    EXPECT_EQ(icon.availableSizes(), sizes);
    for (const auto &[asked, given] : {std::pair(16, 16), {32, 32}, {64, 64}, {128, 128}, {512, 128}}) {
        const QImage picture = icon.pixmap(QSize(asked, asked)).toImage();
        EXPECT_EQ(picture.size(), QSize(given, given)) << asked;
        EXPECT_GT(qAlpha(picture.pixel(given / 2, given / 2)), 0) << asked;
    }
    for (const QSize &size : sizes)
        EXPECT_EQ(QImage(u":/icons/kelp-%1.png"_s.arg(size.width())).size(), size) << "needs no scaling";
    EXPECT_TRUE(programIcon(u":/icons/none.png"_s, sizes).pixmap(32, 32).isNull());
    const QIcon scaled = programIcon(u":/icons/kelp_tray.png"_s, {{16, 16}});
    EXPECT_EQ(scaled.pixmap(16, 16).size(), QSize(16, 16)) << "none of that size lies beside it";
}

TEST_F(Theme, TheDefaultsAreThoseOfTheDesign)
{
    EXPECT_EQ(theme::accentColor, QColor(0xC9, 0xA9, 0x6E));
    EXPECT_EQ(theme::accentBright, QColor(0xE0, 0xC8, 0x96));
    EXPECT_EQ(theme::accentDeep, QColor(0x22, 0x1E, 0x18));
    EXPECT_FALSE(theme::lightTheme);
}

TEST_F(Theme, AChosenAccentHasItsCompanions)
{
    const QColor chosen(0x6F, 0xBF, 0xA0);
    theme::setAccent(chosen);
    EXPECT_EQ(theme::accentColor, chosen);
    EXPECT_EQ(theme::accentBright.rgb(), chosen.lighter(125).rgb());
    EXPECT_EQ(theme::accentDeep, QColor(19, 32, 27)) << "111, 191 and 160 × 0.17, rounded";
    theme::setAccent(QColor(u"no colour"_s));
    EXPECT_EQ(theme::accentColor, chosen) << "what is no colour changes nothing";
    theme::setAccent(QColor(theme::defaultAccent));
    EXPECT_EQ(theme::accentBright, QColor(0xE0, 0xC8, 0x96)) << "the way back";
}

TEST_F(Theme, TheLightLookSwapsNeutralsAndStepsTheAccentDown)
{
    theme::setLightTheme(true);
    EXPECT_TRUE(theme::lightTheme);
    EXPECT_EQ(theme::accentColor, QColor(0xA1, 0x87, 0x58));
    EXPECT_EQ(theme::accentInk(), QColor(0x67, 0x56, 0x38));
    EXPECT_EQ(theme::chosenAccent(), QColor(0xC9, 0xA9, 0x6E));
    EXPECT_EQ(theme::chassis(), QColor(0xF2, 0xF1, 0xED));
    EXPECT_EQ(theme::raised(), QColor(Qt::white));
    EXPECT_EQ(theme::ink1(), QColor(0x1F, 0x1D, 0x19));
    EXPECT_EQ(theme::proof(), QColor(111, 192, 132)) << "green keeps its meaning";
    EXPECT_EQ(theme::statusInk(theme::proof()), QColor(0x39, 0x62, 0x44));
    theme::setLightTheme(false);
    EXPECT_EQ(theme::accentInk(), theme::accentColor);
    EXPECT_EQ(theme::chassis(), QColor(0x13, 0x13, 0x17));
}

TEST_F(Theme, ThePaletteIsMadeOfTheTable)
{
    struct Entry
    {
        QPalette::ColorRole role;
        QRgb dark;
        QRgb light;
    };
    const Entry entries[] = {
        {QPalette::WindowText, 0xEDEAE3, 0x1F1D19},      {QPalette::Text, 0xEDEAE3, 0x1F1D19},
        {QPalette::ButtonText, 0xEDEAE3, 0x1F1D19},      {QPalette::Window, 0x0C0C0F, 0xFBF9F5},
        {QPalette::AlternateBase, 0x0C0C0F, 0xFBF9F5},   {QPalette::Base, 0x121216, 0xFFFFFF},
        {QPalette::Button, 0x18181E, 0xFFFFFF},          {QPalette::Highlight, 0xC9A96E, 0xA18758},
        {QPalette::HighlightedText, 0x08080A, 0xF6F5F2},
    };
    for (const bool light : {false, true}) {
        theme::setLightTheme(light);
        const QPalette palette = theme::applicationPalette();
        for (const Entry &entry : entries)
            EXPECT_EQ(palette.color(QPalette::Active, entry.role), QColor(light ? entry.light : entry.dark))
                << entry.role;
    }
}

TEST_F(Theme, TheLightSheetIsTheDarkOneRewritten)
{
    const QString dark = styleSheetInForce();
    EXPECT_FALSE(dark.contains(u'@'));
    theme::setLightTheme(true);
    const QString light = styleSheetInForce();
    EXPECT_FALSE(light.contains(u'@'));
    for (const NeutralPair &pair : neutralTable)
        EXPECT_FALSE(light.contains(u"#%1"_s.arg(pair.dark, 6, 16, QChar(u'0')), Qt::CaseInsensitive))
            << std::hex << pair.dark;
    const QRegularExpression colours(u"#[0-9a-fA-F]{6}|rgba\\([^)]*\\)"_s);
    EXPECT_EQ(QString(dark).remove(colours), QString(light).remove(colours))
        << "nothing but colours differs between the looks";
}

TEST_F(Theme, AGreyAccentIsNotTakenForANeutral)
{
    theme::setAccent(QColor(0x80, 0x80, 0x80));
    theme::setLightTheme(true);
    EXPECT_TRUE(styleSheetInForce().contains(theme::accentGraphic().name()));
    EXPECT_TRUE(styleSheetInForce().contains(theme::accentInk().name()));
}

TEST_F(Theme, QtUnderstandsTheSheetInBothLooks)
{
    for (const bool light : {false, true}) {
        theme::setLightTheme(light);
        warnings.clear();
        const QtMessageHandler before = qInstallMessageHandler(collect);
        QWidget window;
        QPushButton button(u"Button"_s, &window);
        QCheckBox box(u"Box"_s, &window);
        window.setStyleSheet(styleSheetInForce());
        window.ensurePolished();
        window.grab();
        qInstallMessageHandler(before);
        EXPECT_TRUE(warnings.isEmpty()) << qPrintable(warnings.join(u'\n'));
    }
}

TEST_F(Theme, ButtonsHaveTheColoursOfTheirStates)
{
    for (const bool light : {false, true}) {
        theme::setLightTheme(light);
        QPushButton button;
        button.setStyleSheet(styleSheetInForce());
        button.resize(90, 30);
        EXPECT_EQ(at(pictureOf(button), 6., 15.), theme::raised());
        EXPECT_EQ(at(pictureOf(button), 45., 0.), theme::edge());
        button.setProperty("keyFocus", true);
        button.setStyleSheet(QString());
        button.setStyleSheet(styleSheetInForce());
        EXPECT_EQ(at(pictureOf(button), 45., 1.), theme::focusRing()) << "two pixels wide";
        button.setEnabled(false);
        EXPECT_EQ(at(pictureOf(button), 6., 15.), theme::chassis());
    }
}

TEST_F(Theme, TheSheetsPicturesAreDrawnByCode)
{
    for (const bool light : {false, true}) {
        theme::setLightTheme(light);
        QCheckBox box;
        box.setStyleSheet(styleSheetInForce());
        box.resize(box.sizeHint());
        box.setChecked(true);
        const QImage checked = pictureOf(box, 2.);
        const QSet<QRgb> colours = coloursOf(checked);
        EXPECT_TRUE(colours.contains(theme::accentInk().rgba())) << "the switch's fill";
        EXPECT_TRUE(colours.contains(theme::glass().rgba())) << "the tick";
    }
}

TEST_F(Theme, CaptionsOfScriptsWithoutCapitalsAreNotTracked)
{
    EXPECT_GT(captionFont(u"SPECTRUM"_s).letterSpacing(), 0.);
    EXPECT_EQ(captionFont(u"SPECTRUM"_s).pixelSize(), 11);
    for (const auto &caption : {u"频谱"_s, u"الطيف"_s, u"スペクトル"_s}) {
        EXPECT_EQ(captionFont(caption).letterSpacing(), 0.);
        EXPECT_EQ(captionFont(caption).pixelSize(), 12);
    }
}

TEST(CoverAccent, AGreyCoverHasNoColour)
{
    for (const QColor &grey : {QColor(128, 128, 128), QColor(Qt::black), QColor(Qt::white), QColor(40, 0, 0)})
        EXPECT_FALSE(dominantColour(plain(grey))) << qPrintable(grey.name());
    EXPECT_FALSE(dominantColour(QImage()));
    bool found = true;
    EXPECT_FALSE(coverDominantColor(QPixmap(), &found).isValid());
    EXPECT_FALSE(found);
}

TEST(CoverAccent, OneSaturatedDotOnWhiteIsNotUsed)
{
    QImage cover = plain(Qt::white, {320, 320});
    for (int y = 100; y < 105; ++y) {
        for (int x = 100; x < 105; ++x)
            cover.setPixelColor(x, y, QColor(230, 20, 20));
    }
    EXPECT_FALSE(dominantColour(cover));
}

TEST(CoverAccent, TheHueIsTakenAndTheRestIsBroughtIntoRange)
{
    struct Case
    {
        QColor cover;
        int saturation;
        int value;
    };
    const Case cases[] = {
        {QColor::fromHsv(200, 255, 100), 235, 150}, // darker and more vivid than an accent may be
        {QColor::fromHsv(30, 60, 240), 90, 225},    // paler and lighter
        {QColor::fromHsv(120, 150, 180), 150, 180}, // just right
    };
    for (const Case &each : cases) {
        const std::optional<QColor> accent = dominantColour(plain(each.cover));
        ASSERT_TRUE(accent);
        EXPECT_NEAR(accent->hsvHue(), each.cover.hsvHue(), 1);
        EXPECT_NEAR(accent->hsvSaturation(), each.saturation, 2);
        EXPECT_NEAR(accent->value(), each.value, 2);
    }
}

TEST(CoverAccent, APixelCountsFromItsLimitsOn)
{
    struct Case
    {
        int saturation, value;
        bool counts;
    };
    for (const Case &c :
         {Case{45, 180, true}, Case{44, 180, false}, Case{255, 180, true}, Case{200, 45, true},
          Case{200, 44, false}, Case{200, 250, true}, Case{200, 251, false}})
        EXPECT_EQ(dominantColour(plain(QColor::fromHsv(200, c.saturation, c.value))).has_value(), c.counts)
            << c.saturation << ' ' << c.value;
}

TEST(CoverAccent, WhatIsGreyOrNearlyBlackCountsForNothing)
{
    QImage cover = plain(Qt::black);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 64; ++x)
            cover.setPixelColor(x, y, QColor::fromHsv(240, 200, 200));
    }
    const std::optional<QColor> accent = dominantColour(cover);
    ASSERT_TRUE(accent);
    EXPECT_NEAR(accent->hsvHue(), 240, 2);
}

TEST(SystemScheme, ThePortalsNumberIsReadOutOfItsWrappings)
{
    using Preference = SystemScheme::Preference;
    EXPECT_EQ(SystemScheme::preferenceOf(uint(1)), Preference::Dark);
    EXPECT_EQ(SystemScheme::preferenceOf(uint(2)), Preference::Light);
    EXPECT_EQ(SystemScheme::preferenceOf(uint(0)), Preference::None);
    EXPECT_EQ(SystemScheme::preferenceOf(uint(7)), Preference::None);
    EXPECT_EQ(SystemScheme::preferenceOf(u"dark"_s), Preference::None);
    EXPECT_EQ(SystemScheme::preferenceOf({}), Preference::None);
    const QVariant wrapped = QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(uint(1)))));
    EXPECT_EQ(SystemScheme::preferenceOf(wrapped), Preference::Dark);
}
