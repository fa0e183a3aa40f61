#include "ui/glyph_icons.h"

#include "ui/theme.h"

#include <QIconEngine>
#include <QPainter>

namespace {

class GlyphEngine final : public QIconEngine
{
public:
    explicit GlyphEngine(Glyph glyph)
        : m_glyph(glyph)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        drawGlyph(*painter, m_glyph, QRectF(rect), colourFor(mode));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new GlyphEngine(*this); }

private:
    QColor colourFor(QIcon::Mode mode) const
    {
        if (mode == QIcon::Disabled)
            return theme::off();
        if (m_glyph == Glyph::Play || m_glyph == Glyph::Pause)
            return mode == QIcon::Active ? theme::focusRing() : theme::accentInk();
        return mode == QIcon::Active ? theme::ink1() : theme::ink3();
    }

    Glyph m_glyph;
};

} // namespace

QIcon glyphIcon(Glyph glyph)
{
    return QIcon(new GlyphEngine(glyph));
}
