#include "ui/segment_meter.h"

#include "ui/pixel_grid.h"
#include "ui/theme.h"

#include <QPainter>

namespace {

constexpr int firstHigh = 27;
constexpr int firstPeak = 34;
constexpr int verticalMargin = 2;
constexpr QColor high(0xD4, 0xA8, 0x43);
constexpr QColor peak(0xC7, 0x5C, 0x4A);
constexpr QColor clipped(0xE8, 0x5C, 0x4A);

QColor unlit()
{
    return theme::lightTheme ? QColor(0xDC, 0xD9, 0xD2) : QColor(0x20, 0x20, 0x28);
}

} // namespace

SegmentMeter::SegmentMeter(QWidget *parent)
    : QWidget(parent)
{
    setFixedHeight(fixedHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setToolTip(tr("本声道的输出峰值（dBFS）：引擎每秒报告 20 次，分辨率 0.01 dB，下限 −120 dB"
                  "（再低就显示 −∞ dB）；到 0 dBFS 时红段停留 1.5 秒（可能削波）"));
}

void SegmentMeter::showReading(const MeterReading &reading)
{
    // Moved away from 0, where a comparison by proportion knows no nearness.
    constexpr double away = 121.;
    const bool sameValue = qFuzzyCompare(reading.dbfs + away, m_dbfs + away);
    if (sameValue && reading.clip == m_clip)
        return;
    m_dbfs = reading.dbfs;
    m_clip = reading.clip;
    update();
}

void SegmentMeter::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), theme::well());
    const PixelGrid grid(painter);
    const int lit = litSegments(m_dbfs);
    const double pitch = width() / static_cast<double>(meterSegments);
    const double across = grid.width(std::max(pitch - 2., 1.));
    const double top = grid.y(verticalMargin);
    const double tall = grid.y(height() - verticalMargin) - top;
    for (int i = 0; i < meterSegments; ++i) {
        QColor colour = unlit();
        if (m_clip && i >= firstPeak)
            colour = clipped;
        else if (i < lit)
            colour = i < firstHigh ? theme::accentColor : i < firstPeak ? high : peak;
        painter.fillRect(QRectF(grid.x(i * pitch + 1.), top, across, tall), colour);
    }
}
