#include "ui/light_look.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int colourDigits = 6;
/// Channels farther apart than this make a colour that carries a meaning.
constexpr int widestGrey = 26;
/// Weighted sum of the channels (299, 587, 114) above which a colour is bright enough for either look.
constexpr int brightest = 128000;
constexpr double leastGraphicRatio = 3.;
constexpr quint32 lightChassis = 0xF2F1ED;
/// Black and white are reached in fewer steps than this.
constexpr int mostSteps = 40;

int red(quint32 colour)
{
    return static_cast<int>(colour >> 16 & 0xFF);
}

int green(quint32 colour)
{
    return static_cast<int>(colour >> 8 & 0xFF);
}

int blue(quint32 colour)
{
    return static_cast<int>(colour & 0xFF);
}

template<typename Change>
quint32 eachChannel(quint32 colour, Change change)
{
    const auto changed = [&](int channel) {
        return static_cast<quint32>(std::clamp(static_cast<int>(std::lround(change(channel))), 0, 255));
    };
    return changed(red(colour)) << 16 | changed(green(colour)) << 8 | changed(blue(colour));
}

/// Relative luminance of WCAG 2, 0 to 1.
double luminance(quint32 colour)
{
    const auto linear = [](int channel) {
        const double value = channel / 255.;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(red(colour)) + 0.7152 * linear(green(colour)) + 0.0722 * linear(blue(colour));
}

} // namespace

quint32 lightPartner(quint32 dark)
{
    const auto pair = std::find_if(neutralTable.begin(), neutralTable.end(),
                                   [dark](const NeutralPair &entry) { return entry.dark == dark; });
    if (pair != neutralTable.end())
        return pair->light;
    const auto [least, most] = std::minmax({red(dark), green(dark), blue(dark)});
    if (most - least > widestGrey || 587 * green(dark) + 299 * red(dark) + 114 * blue(dark) > brightest)
        return dark;
    return eachChannel(dark, [](int channel) { return (255 - channel) * 0.94 + 15.3; });
}

QString mapStylesheetToLight(const QString &text)
{
    QString mapped = text;
    for (qsizetype at = mapped.indexOf(u'#'); at >= 0; at = mapped.indexOf(u'#', at + 1)) {
        const QStringView digits = QStringView(mapped).mid(at + 1, colourDigits);
        if (digits.size() < colourDigits)
            break;
        // A sign or a blank would pass the conversion to a number.
        const bool isHex = std::all_of(digits.begin(), digits.end(), [](QChar c) {
            return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
        });
        if (!isHex)
            continue;
        const quint32 dark = digits.toUInt(nullptr, 16);
        const quint32 light = lightPartner(dark);
        if (light != dark)
            mapped.replace(at + 1, colourDigits,
                           QString::number(light, 16).rightJustified(colourDigits, u'0').toUpper());
    }
    return mapped;
}

double contrastRatio(quint32 one, quint32 other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

quint32 oneStepDarker(quint32 colour)
{
    return eachChannel(colour, [](int channel) { return channel / 1.25; });
}

quint32 oneStepLighter(quint32 colour)
{
    // Rounded up, so that the last steps still arrive at white.
    return eachChannel(colour, [](int channel) { return channel + std::ceil((255 - channel) / 5.); });
}

quint32 readableOn(quint32 background, quint32 colour, double leastRatio)
{
    const bool darker = contrastRatio(background, 0x000000) > contrastRatio(background, 0xFFFFFF);
    for (int i = 0; i < mostSteps && contrastRatio(background, colour) < leastRatio; ++i)
        colour = darker ? oneStepDarker(colour) : oneStepLighter(colour);
    return colour;
}

quint32 accentForLight(quint32 chosen)
{
    return readableOn(lightChassis, oneStepDarker(chosen), leastGraphicRatio);
}
