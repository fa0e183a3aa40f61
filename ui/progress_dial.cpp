#include "ui/progress_dial.h"

#include "ui/theme.h"

#include <QPainter>
#include <algorithm>

namespace {

constexpr int baselineFromBottom = 12;
constexpr int baselineHeight = 2;
constexpr int needleWidth = 2;
constexpr int needleHeight = 17;
constexpr int minorHeight = 4;
constexpr int majorHeight = 7;
constexpr int tickGap = 2; ///< between a tick and the baseline
constexpr double leastTotalSec = 0.5;
constexpr double shortSec = 5 * 60.;
constexpr double longSec = 20 * 60.;
constexpr double mostTicks = 240.;
constexpr int wider = 5;
constexpr int mostMajorSec = 100'000'000;
/// Longer than any recording; what is above comes from a damaged file.
constexpr double mostTotalSec = 1e9;

} // namespace

DialTicks dialTicks(double totalSec)
{
    if (totalSec <= shortSec)
        return {10, 60};
    if (totalSec <= longSec)
        return {30, 60};
    DialTicks ticks{60, 300};
    // An image of many hours, or a length that a damaged file claims, still gets a dial that can be read.
    for (; totalSec / ticks.minorSec > mostTicks && ticks.majorSec < mostMajorSec; ticks.majorSec *= wider)
        ticks.minorSec *= wider;
    return ticks;
}

ProgressDial::ProgressDial(QWidget *parent)
    : QWidget(parent)
{
    setObjectName("vesperGrip");
    setLayoutDirection(Qt::LeftToRight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFixedHeight(sizeHint().height());
    setAccessibleName(tr("播放进度"));
    setToolTip(tr("只显示进度：播放中不能跳转"));
    setAccessibleDescription(toolTip());
}

QSize ProgressDial::sizeHint() const
{
    return {400, 34};
}

double ProgressDial::placeOf(double seconds) const
{
    const double room = width() - needleWidth;
    return std::clamp(seconds / m_totalSec, 0., 1.) * room;
}

void ProgressDial::showFraction(double fraction)
{
    place(fraction, 1., false);
}

void ProgressDial::showPosition(double positionSec, double totalSec)
{
    place(positionSec, totalSec, true);
}

void ProgressDial::place(double positionSec, double totalSec, bool divided)
{
    const bool other = std::min(totalSec, mostTotalSec) != m_totalSec || divided != m_divided;
    m_divided = divided;
    m_positionSec = positionSec;
    m_totalSec = std::min(totalSec, mostTotalSec);
    const int needle = totalSec < leastTotalSec ? 0 : static_cast<int>(placeOf(positionSec));
    if (std::exchange(m_needle, needle) != needle || other)
        update();
}

void ProgressDial::showLoop(double aSec, double bSec)
{
    m_aSec = aSec;
    m_bSec = bSec;
    update();
}

void ProgressDial::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int base = height() - baselineFromBottom;
    const QRect line(0, base, width(), baselineHeight);
    painter.fillRect(line, theme::edge());
    if (m_totalSec < leastTotalSec)
        return;
    if (m_aSec >= 0. && m_bSec > m_aSec) {
        const int from = static_cast<int>(placeOf(m_aSec));
        painter.fillRect(QRect(from, base - needleHeight + baselineHeight,
                               static_cast<int>(placeOf(m_bSec)) - from, needleHeight),
                         theme::wash());
    }
    const int needle = static_cast<int>(placeOf(m_positionSec));
    const DialTicks ticks = dialTicks(m_totalSec);
    for (int second = 0; m_divided && second <= m_totalSec; second += ticks.minorSec) {
        const bool major = second % ticks.majorSec == 0;
        const int x = static_cast<int>(placeOf(second));
        const int high = major ? majorHeight : minorHeight;
        const QColor lit = major ? theme::accentGraphic() : theme::off();
        painter.fillRect(QRect(x, base - tickGap - high, 1, high), x <= needle ? lit : theme::edge());
    }
    painter.fillRect(QRect(0, base, needle, baselineHeight), theme::accentGraphic());
    for (const double point : {m_aSec, m_bSec}) {
        if (point >= 0.)
            painter.fillRect(QRect(static_cast<int>(placeOf(point)), base - needleHeight + baselineHeight, 1,
                                   needleHeight),
                             theme::accentGraphic());
    }
    painter.fillRect(QRect(needle, base + baselineHeight + 2 - needleHeight, needleWidth, needleHeight),
                     theme::ink1());
}
