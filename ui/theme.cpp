#include "ui/theme.h"

#include "ui/light_look.h"

#include <cmath>

namespace theme {

QColor accentColor(0xC9, 0xA9, 0x6E);
QColor accentBright(0xE0, 0xC8, 0x96);
QColor accentDeep(0x22, 0x1E, 0x18);
bool lightTheme = false;
bool reduceMotion = false;

namespace {

constexpr double leastTextRatio = 4.5;
constexpr QRgb darkChassis = 0x131317;
constexpr int brighterPercent = 125;
constexpr double deepShare = 0.17;

QColor chosen(0xC9, 0xA9, 0x6E);
QColor ink(0xC9, 0xA9, 0x6E);

QColor opaque(quint32 colour)
{
    return QColor(QRgb(colour));
}

quint32 valueOf(const QColor &colour)
{
    return colour.rgb() & 0xFFFFFF;
}

QColor deepOf(const QColor &accent)
{
    const auto deep = [](int channel) { return static_cast<int>(std::lround(channel * deepShare)); };
    return {deep(accent.red()), deep(accent.green()), deep(accent.blue())};
}

QColor withShare(QColor colour, double share)
{
    colour.setAlphaF(static_cast<float>(share));
    return colour;
}

void settle()
{
    accentColor = lightTheme ? opaque(accentForLight(valueOf(chosen))) : chosen;
    accentBright = accentColor.lighter(brighterPercent);
    accentDeep = deepOf(accentColor);
    // The colours the look was drawn with are finer than what the rules give.
    if (!lightTheme && valueOf(chosen) == defaultAccent) {
        accentBright = QColor(0xE0, 0xC8, 0x96);
        accentDeep = QColor(0x22, 0x1E, 0x18);
    }
    ink = opaque(readableOn(valueOf(chassis()), valueOf(accentColor), leastTextRatio));
}

} // namespace

void setAccent(const QColor &accent)
{
    if (!accent.isValid())
        return;
    chosen = opaque(valueOf(accent));
    settle();
}

void setLightTheme(bool light)
{
    lightTheme = light;
    settle();
}

QColor chosenAccent()
{
    return chosen;
}

QColor neutral(QRgb dark)
{
    return opaque(lightTheme ? lightPartner(dark & 0xFFFFFF) : dark & 0xFFFFFF);
}

QColor glass()
{
    return neutral(0x08080A);
}

QColor well()
{
    return neutral(0x0C0C0F);
}

QColor base()
{
    return neutral(0x121216);
}

QColor chassis()
{
    return neutral(darkChassis);
}

QColor raised()
{
    return neutral(0x18181E);
}

QColor raisedHover()
{
    return neutral(0x1F1F26);
}

QColor groove()
{
    return neutral(0x202028);
}

QColor hairline()
{
    return neutral(0x23232B);
}

QColor edge()
{
    return neutral(0x2C2C35);
}

QColor ink1()
{
    return neutral(0xEDEAE3);
}

QColor ink2()
{
    return neutral(0xCFC9BF);
}

QColor ink3()
{
    return neutral(0xB9B3A8);
}

QColor ink4()
{
    return neutral(0x8A857C);
}

QColor off()
{
    return neutral(0x4A4842);
}

QColor accentGraphic()
{
    return accentColor;
}

QColor accentInk()
{
    return ink;
}

QColor focusRing()
{
    return lightTheme ? ink : accentBright;
}

QColor wash()
{
    return withShare(accentColor, lightTheme ? 0.16 : 0.13);
}

QColor strongWash()
{
    return withShare(accentColor, lightTheme ? 0.26 : 0.22);
}

QColor proof()
{
    return {111, 192, 132};
}

QColor warning()
{
    return {212, 168, 67};
}

QColor failure()
{
    return {199, 92, 74};
}

QColor statusInk(const QColor &lamp)
{
    return lightTheme ? opaque(readableOn(valueOf(chassis()), valueOf(lamp), leastTextRatio)) : lamp;
}

QColor reversedPlate()
{
    return {43, 39, 32};
}

QColor reversedInk()
{
    return {201, 194, 182};
}

QPalette applicationPalette()
{
    struct Entry
    {
        QPalette::ColorRole role;
        QColor colour;
    };
    const Entry entries[] = {
        {QPalette::WindowText, ink1()},
        {QPalette::Text, ink1()},
        {QPalette::ButtonText, ink1()},
        {QPalette::Window, well()},
        {QPalette::AlternateBase, well()},
        {QPalette::Base, base()},
        {QPalette::Button, raised()},
        {QPalette::Highlight, accentColor},
        {QPalette::HighlightedText, glass()},
        {QPalette::ToolTipBase, raised()},
        {QPalette::ToolTipText, ink1()},
        {QPalette::BrightText, ink1()},
        {QPalette::PlaceholderText, ink4()},
        {QPalette::Link, accentInk()},
        {QPalette::LinkVisited, accentInk()},
        // The bevels of what the sheet leaves to the style.
        {QPalette::Light, raisedHover()},
        {QPalette::Midlight, raised()},
        {QPalette::Mid, edge()},
        {QPalette::Dark, hairline()},
        {QPalette::Shadow, glass()},
    };
    QPalette palette;
    for (const Entry &entry : entries)
        palette.setColor(QPalette::All, entry.role, entry.colour);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, off());
    return palette;
}

} // namespace theme

ThemeNotifier &ThemeNotifier::instance()
{
    static ThemeNotifier notifier;
    return notifier;
}
