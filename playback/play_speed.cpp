#include "playback/play_speed.h"

#include "engine/progress_display.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QString translated(const char *source)
{
    return QCoreApplication::translate("PlaySpeed", source);
}

} // namespace

double clampedSpeed(double ratio)
{
    return std::isnan(ratio) ? 1. : std::clamp(ratio, slowestSpeed, fastestSpeed);
}

QString speedLine(double ratio)
{
    return u"speed "_s + QString::number(ratio, 'f', 2);
}

QString speedText(double ratio, bool playing)
{
    return translated(QT_TRANSLATE_NOOP("PlaySpeed", "播放速度: %1×%2"))
        .arg(speedRatioText(ratio),
             playing ? translated(QT_TRANSLATE_NOOP("PlaySpeed", " （播放中立即生效）")) : QString());
}
