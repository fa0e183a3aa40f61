#include "playback/time_text.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double leastTotalSec = 0.5;
constexpr double speedTolerance = 1e-6;
constexpr double oneDecimalTolerance = 1e-9;
constexpr double longestSec = 1e9;

} // namespace

QString minutesText(double sec)
{
    const auto whole = static_cast<qint64>(std::clamp(sec, 0., longestSec));
    return u"%1:%2"_s.arg(whole / 60).arg(whole % 60, 2, 10, QChar(u'0'));
}

QString speedText(double ratio)
{
    const bool oneDecimal = std::abs(std::round(ratio * 10.) / 10. - ratio) < oneDecimalTolerance;
    return QString::number(ratio, 'f', oneDecimal ? 1 : 2);
}

QString positionText(double positionSec, double totalSec, double speedRatio)
{
    QString text = minutesText(positionSec);
    if (totalSec > leastTotalSec)
        text += u" / "_s + minutesText(totalSec);
    if (std::abs(speedRatio - 1.) > speedTolerance)
        text += u" · "_s + speedText(speedRatio) + u'×';
    return text;
}
