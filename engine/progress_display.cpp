#include "engine/progress_display.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr double leastTotalSec = 0.5;
constexpr double resumeStepSec = 5.;
constexpr double normalSpeedTolerance = 1e-6;
constexpr double oneDecimalTolerance = 1e-9;
/// No track is longer; what is said to be must not overflow the arithmetic.
constexpr double longestSec = 1e9;

QString translated(const char *source)
{
    return QCoreApplication::translate("ProgressDisplay", source);
}

int barValueOf(double percent)
{
    return static_cast<int>(std::lround(percent * progressBarMaximum / 100.));
}

/// The ten that is newly reached, the highest when several are; 0 when none is.
int newTen(double percent, int &lastTen)
{
    const int ten = static_cast<int>(percent / 10.) * 10;
    if (ten <= lastTen)
        return 0;
    lastTen = ten;
    return ten;
}

bool isNormalSpeed(double ratio)
{
    return !std::isfinite(ratio) || ratio <= 0. || std::abs(ratio - 1.) <= normalSpeedTolerance;
}

QString speedToolTip(double totalSec, double ratio)
{
    if (totalSec <= leastTotalSec)
        return translated(QT_TRANSLATE_NOOP("ProgressDisplay", "位置按音源时间轴显示；当前以 %1× 播放。"))
            .arg(speedRatioText(ratio));
    return translated(QT_TRANSLATE_NOOP("ProgressDisplay",
                                        "位置与总长按音源时间轴显示；以 %1× 播放，全曲实际历时 %2。"))
        .arg(speedRatioText(ratio), clockText(totalSec / ratio));
}

PositionDisplay positionDisplay(const ProgressFacts &facts)
{
    const double totalSec = facts.totalSec > leastTotalSec ? facts.totalSec : facts.itemDurationSec;
    PositionDisplay display;
    display.text = clockText(facts.positionSec);
    if (totalSec > leastTotalSec)
        display.text += u" / "_s + clockText(totalSec);
    if (!isNormalSpeed(facts.speedRatio)) {
        display.text += u" · %1×"_s.arg(speedRatioText(facts.speedRatio));
        display.toolTip = speedToolTip(totalSec, facts.speedRatio);
    }
    return display;
}

} // namespace

QString clockText(double sec)
{
    const auto whole = static_cast<qint64>(std::clamp(sec, 0., longestSec));
    return u"%1:%2"_s.arg(whole / 60).arg(whole % 60, 2, 10, QChar(u'0'));
}

QString speedRatioText(double ratio)
{
    const bool oneDecimal = std::abs(std::round(ratio * 10.) / 10. - ratio) <= oneDecimalTolerance;
    return QString::number(ratio, 'f', oneDecimal ? 1 : 2);
}

ProgressDisplay updateProgress(TrackProgressState &state, const ProgressFacts &facts)
{
    ProgressDisplay display;
    const double percent = std::clamp(facts.percent, 0., 100.);
    if (facts.positionSec > 0. || percent > 0.)
        state.audioHasStarted = true;
    display.startMetricsTimer = !std::exchange(state.firstUpdateSeen, true);
    state.progressPercent = percent;
    display.barValue = barValueOf(percent);
    if (facts.positionSec >= 0.) {
        state.positionTold = true;
        state.lastPosSec = facts.positionSec;
        state.lastPosRow = facts.row;
        state.lastTotalSec = facts.totalSec;
        if (facts.resumeTracked && std::abs(facts.positionSec - state.lastSavedPosSec) >= resumeStepSec) {
            state.lastSavedPosSec = facts.positionSec;
            display.saveResumePosition = true;
        }
        display.testPlayStat = true;
        display.position = positionDisplay(facts);
    }
    if (const int ten = newTen(percent, state.lastLoggedTen); ten > 0)
        display.logText = translated(QT_TRANSLATE_NOOP("ProgressDisplay", "进度 %1%")).arg(ten);
    return display;
}

ScanDisplay updateScan(TrackProgressState &state, const ScanLine &scan)
{
    ScanDisplay display;
    const double percent = std::clamp(scan.percent, 0., 100.);
    display.barValue = barValueOf(percent);
    // Cut and not rounded: 100 % is said when it is true.
    display.text = translated(QT_TRANSLATE_NOOP("ProgressDisplay", "正在扫描（解码）音源… %1%"))
                       .arg(static_cast<int>(percent));
    if (scan.totalSec > leastTotalSec)
        display.text += u"  %1 / %2"_s.arg(clockText(scan.doneSec), clockText(scan.totalSec));
    // A scan that falls back is another one.
    state.lastScanTen = std::min(state.lastScanTen, static_cast<int>(percent / 10.) * 10);
    if (newTen(percent, state.lastScanTen) > 0)
        display.logText = display.text;
    return display;
}
