#include "ui/cover_accent.h"

#include <algorithm>

namespace {

constexpr int side = 32;
constexpr int leastValue = 45;
constexpr int tooBright = 251;
constexpr int leastSaturation = 45;
constexpr double leastWeight = 0.5;
constexpr int accentSaturation[] = {90, 235};
constexpr int accentValue[] = {150, 225};

} // namespace

std::optional<QColor> dominantColour(const QImage &cover)
{
    if (cover.isNull())
        return std::nullopt;
    const QImage small = cover.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                             .convertToFormat(QImage::Format_ARGB32);
    double red = 0.;
    double green = 0.;
    double blue = 0.;
    double total = 0.;
    for (int y = 0; y < small.height(); ++y) {
        for (int x = 0; x < small.width(); ++x) {
            const QColor pixel(small.pixel(x, y));
            const int value = pixel.value();
            const int saturation = pixel.hsvSaturation();
            if (value < leastValue || value >= tooBright || saturation < leastSaturation)
                continue;
            const double weight = (value / 255.) * (saturation / 255.);
            red += pixel.redF() * weight;
            green += pixel.greenF() * weight;
            blue += pixel.blueF() * weight;
            total += weight;
        }
    }
    if (total < leastWeight)
        return std::nullopt;
    const auto mean = [total](double sum) { return std::clamp(static_cast<float>(sum / total), 0.F, 1.F); };
    const QColor middle = QColor::fromRgbF(mean(red), mean(green), mean(blue));
    // Opposite colours can cancel out to a grey, which has no hue to take.
    if (middle.hsvHue() < 0)
        return std::nullopt;
    return QColor::fromHsv(middle.hsvHue(),
                           std::clamp(middle.hsvSaturation(), accentSaturation[0], accentSaturation[1]),
                           std::clamp(middle.value(), accentValue[0], accentValue[1]));
}

QColor coverDominantColor(const QPixmap &cover, bool *found)
{
    const std::optional<QColor> colour = dominantColour(cover.toImage());
    if (found)
        *found = colour.has_value();
    return colour.value_or(QColor());
}
