#include "ui/mini_cover.h"

#include "ui/cover_disc.h"
#include "ui/theme.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace {

constexpr int side = 48;
constexpr double radius = 3.;
constexpr double outerCircle = 13.;
constexpr double innerCircle = 3.;

} // namespace

MiniCover::MiniCover(QWidget *parent)
    : QAbstractButton(parent)
{
    setObjectName("vesperMiniDisc");
    setFixedSize(side, side);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(tr("封面"));
    setToolTip(tr("在列表里显示正在播放的曲目"));
}

void MiniCover::showCover(const QImage &cover)
{
    m_cover = cover;
    m_scaled = {};
    update();
}

void MiniCover::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    if (m_cover.isNull()) {
        painter.setPen(theme::hairline());
        painter.setBrush(theme::well());
        painter.drawRoundedRect(frame, radius, radius);
        painter.setPen(theme::edge());
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(frame.center(), outerCircle, outerCircle);
        painter.drawEllipse(frame.center(), innerCircle, innerCircle);
        return;
    }
    const int pixels = static_cast<int>(std::ceil(side * devicePixelRatioF()));
    if (m_scaled.width() != pixels) {
        m_scaled = QPixmap::fromImage(squareCover(m_cover, pixels));
        m_scaled.setDevicePixelRatio(devicePixelRatioF());
    }
    QPainterPath plate;
    plate.addRoundedRect(frame, radius, radius);
    painter.setClipPath(plate);
    painter.drawPixmap(0, 0, m_scaled);
}
