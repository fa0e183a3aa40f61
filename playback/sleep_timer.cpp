#include "playback/sleep_timer.h"

#include <QCoreApplication>

namespace {

QString translated(const char *source)
{
    return QCoreApplication::translate("SleepTimer", source);
}

} // namespace

int sleepFadeVolume(int volumeBefore, int step)
{
    return volumeBefore - volumeBefore * step / sleepFadeSteps;
}

QString sleepTimerText(int minutes)
{
    if (minutes <= 0)
        return translated(QT_TRANSLATE_NOOP("SleepTimer", "睡眠定时: 关"));
    return translated(QT_TRANSLATE_NOOP("SleepTimer", "睡眠定时: %1 分钟")).arg(minutes);
}

QString sleepFadeBeginsText()
{
    return translated(QT_TRANSLATE_NOOP("SleepTimer", "睡眠定时: 开始淡出(10 秒后停止)"));
}

QString sleepFadeEndedText()
{
    return translated(QT_TRANSLATE_NOOP("SleepTimer", "睡眠定时: 已淡出并停止播放"));
}
