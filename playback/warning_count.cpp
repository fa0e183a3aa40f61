#include "playback/warning_count.h"

#include <QPainter>
#include <QPainterPath>

using namespace Qt::StringLiterals;

namespace {

constexpr int triangleSize = 13;

} // namespace

WarningCount::WarningCount(QWidget *parent)
    : QLabel(parent)
{
    setObjectName("vesperChainWarnings"_L1);
    setContentsMargins(triangleSize + 6, 0, 0, 0);
    setLayoutDirection(Qt::LeftToRight);
    hide();
}

void WarningCount::setCount(int count)
{
    setText(QString::number(count));
    const QString words = tr("信号链有 %1 条警告").arg(count);
    setToolTip(words);
    setAccessibleName(words);
    setVisible(count > 0);
}

void WarningCount::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box(1., (height() - triangleSize) / 2., triangleSize, triangleSize - 1.);
    QPainterPath path;
    path.moveTo(box.center().x(), box.top());
    path.lineTo(box.bottomRight());
    path.lineTo(box.bottomLeft());
    path.closeSubpath();
    painter.setPen(
        QPen(palette().color(QPalette::WindowText), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    painter.drawLine(QPointF(box.center().x(), box.top() + 4.5),
                     QPointF(box.center().x(), box.bottom() - 4.5));
    painter.drawPoint(QPointF(box.center().x(), box.bottom() - 2.2));
}
