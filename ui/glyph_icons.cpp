#include "ui/glyph_icons.h"

#include "ui/theme.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

namespace {

/// All glyphs are drawn on this grid and scaled to the size that is asked for.
constexpr qreal grid = 20.;
constexpr qreal strokeWidth = 1.5;

void fillTriangle(QPainter &painter, QPointF a, QPointF b, QPointF c)
{
    QPainterPath path(a);
    path.lineTo(b);
    path.lineTo(c);
    path.closeSubpath();
    painter.fillPath(path, painter.pen().color());
}

void drawSkip(QPainter &painter, bool forward)
{
    if (!forward) {
        painter.translate(grid, 0.);
        painter.scale(-1., 1.);
    }
    fillTriangle(painter, {4.5, 4.5}, {13., 10.}, {4.5, 15.5});
    painter.fillRect(QRectF(14., 4.5, 2., 11.), painter.pen().color());
}

void drawRefresh(QPainter &painter)
{
    painter.drawArc(QRectF(4.5, 4.5, 11., 11.), 60 * 16, 280 * 16);
    fillTriangle(painter, {11.5, 2.2}, {16.2, 5.2}, {11.5, 8.2});
}

void drawSpeaker(QPainter &painter)
{
    QPainterPath body(QPointF(3.5, 8.));
    for (const QPointF point :
         {QPointF(6., 8.), QPointF(9.5, 5.), QPointF(9.5, 15.), QPointF(6., 12.), QPointF(3.5, 12.)})
        body.lineTo(point);
    body.closeSubpath();
    painter.fillPath(body, painter.pen().color());
    painter.drawArc(QRectF(8., 7., 6., 6.), -60 * 16, 120 * 16);
    painter.drawArc(QRectF(6.5, 4.5, 11., 11.), -60 * 16, 120 * 16);
}

void drawGlyph(QPainter &painter, Glyph glyph)
{
    const QColor colour = painter.pen().color();
    switch (glyph) {
    case Glyph::Play:
        fillTriangle(painter, {6.5, 4.}, {16., 10.}, {6.5, 16.});
        break;
    case Glyph::Pause:
        painter.fillRect(QRectF(5.5, 4.5, 3., 11.), colour);
        painter.fillRect(QRectF(11.5, 4.5, 3., 11.), colour);
        break;
    case Glyph::Stop:
        painter.fillRect(QRectF(5., 5., 10., 10.), colour);
        break;
    case Glyph::Previous:
    case Glyph::Next:
        drawSkip(painter, glyph == Glyph::Next);
        break;
    case Glyph::Refresh:
        drawRefresh(painter);
        break;
    case Glyph::Speaker:
        drawSpeaker(painter);
        break;
    }
}

class GlyphEngine final : public QIconEngine
{
public:
    explicit GlyphEngine(Glyph glyph)
        : m_glyph(glyph)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / grid, rect.height() / grid);
        painter->setPen(QPen(colourFor(mode), strokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        drawGlyph(*painter, m_glyph);
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new GlyphEngine(m_glyph); }

private:
    QColor colourFor(QIcon::Mode mode) const
    {
        if (mode == QIcon::Disabled)
            return theme::off();
        if (m_glyph == Glyph::Play || m_glyph == Glyph::Pause)
            return mode == QIcon::Active ? theme::accentBright : theme::accentInk();
        return mode == QIcon::Active ? theme::ink1() : theme::ink3();
    }

    Glyph m_glyph;
};

} // namespace

QIcon glyphIcon(Glyph glyph)
{
    return QIcon(new GlyphEngine(glyph));
}
