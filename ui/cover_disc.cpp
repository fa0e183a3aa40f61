#include "ui/cover_disc.h"

#include "ui/theme.h"

#include <QPainter>
#include <QPainterPath>
#include <array>
#include <cmath>

namespace {

constexpr double tickLength = 6.;
constexpr double longTickLength = 8.;
constexpr int longTickEvery = 10;
constexpr double tickWidth = 1.5;
constexpr double ringToDisc = 13.; ///< from the ring's outer edge to the disc
constexpr std::array idleCircles = {1., 0.86, 0.72, 0.58};
constexpr double fullTurn = 6.283185307179586;

} // namespace

QImage squareCover(const QImage &cover, int side)
{
    const int edge = std::min(cover.width(), cover.height());
    return cover.copy((cover.width() - edge) / 2, (cover.height() - edge) / 2, edge, edge)
        .scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

CoverDisc::CoverDisc(QWidget *parent)
    : QWidget(parent)
{
    setObjectName("vesperDisc");
    setAccessibleName(tr("封面"));
    showCover({});
}

void CoverDisc::showCover(const QImage &cover)
{
    m_cover = cover;
    m_scaled = {};
    setAccessibleDescription(cover.isNull() ? tr("无封面") : tr("有封面"));
    update();
}

void CoverDisc::showPosition(double fraction)
{
    const int lit = fraction <= 0. ? 0 : static_cast<int>(std::lround(std::min(fraction, 1.) * tickCount));
    if (std::exchange(m_litTicks, lit) != lit)
        update();
}

const QPixmap &CoverDisc::scaledCover(int diameter)
{
    const int side = static_cast<int>(std::ceil(diameter * devicePixelRatioF()));
    if (m_scaled.width() != side) {
        m_scaled = QPixmap::fromImage(squareCover(m_cover, side));
        m_scaled.setDevicePixelRatio(devicePixelRatioF());
    }
    return m_scaled;
}

void CoverDisc::paintRing(QPainter &painter, QPointF centre, double radius) const
{
    for (int tick = 0; tick < tickCount; ++tick) {
        const double angle = fullTurn * tick / tickCount;
        const QPointF direction(std::sin(angle), -std::cos(angle));
        const double length = tick % longTickEvery == 0 ? longTickLength : tickLength;
        const bool lit = tick < m_litTicks;
        painter.setPen(QPen(lit ? theme::accentGraphic() : theme::edge(), tickWidth));
        painter.drawLine(centre + direction * (radius - length), centre + direction * radius);
    }
}

void CoverDisc::paintIdle(QPainter &painter, QPointF centre, double radius) const
{
    painter.setPen(QPen(theme::hairline(), 1.));
    for (const double part : idleCircles) {
        painter.setBrush(part == idleCircles.front() ? QBrush(theme::well()) : QBrush(Qt::NoBrush));
        painter.drawEllipse(centre, radius * part, radius * part);
    }
    painter.setPen(theme::ink4());
    QFont words = font();
    words.setPixelSize(13);
    painter.setFont(words);
    painter.drawText(rect(), Qt::AlignCenter, tr("无封面"));
}

void CoverDisc::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double outer = std::min(width(), height()) / 2. - 1.;
    const QPointF centre = QRectF(rect()).center();
    paintRing(painter, centre, outer);
    const double radius = outer - ringToDisc;
    if (m_cover.isNull()) {
        paintIdle(painter, centre, radius);
        return;
    }
    QPainterPath circle;
    circle.addEllipse(centre, radius, radius);
    painter.setClipPath(circle);
    const int diameter = static_cast<int>(std::ceil(2. * radius));
    painter.drawPixmap(QPointF(centre.x() - diameter / 2., centre.y() - diameter / 2.),
                       scaledCover(diameter));
    painter.setClipping(false);
    painter.setPen(QPen(theme::edge(), 1.));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(centre, radius, radius);
}
