#include "ui/icon_button.h"

#include "ui/keyboard_focus.h"
#include "ui/pixel_grid.h"
#include "ui/theme.h"

#include <QEvent>
#include <QMetaMethod>
#include <QPainter>
#include <QWheelEvent>

namespace {

constexpr double cornerRadius = 4.;
constexpr double focusWidth = 2.;

} // namespace

IconButton::IconButton(Glyph glyph, const QString &name, QWidget *parent, Look look)
    : QPushButton(parent)
    , m_glyph(glyph)
    , m_look(look)
{
    setFixedSize(transportSize);
    setFocusPolicy(Qt::StrongFocus);
    setName(name);
}

void IconButton::setGlyph(Glyph glyph)
{
    if (glyph == m_glyph)
        return;
    m_glyph = glyph;
    update();
}

void IconButton::setName(const QString &name)
{
    setAccessibleName(name);
    setToolTip(name);
}

void IconButton::setLit(bool lit)
{
    if (lit == m_lit)
        return;
    m_lit = lit;
    update();
}

bool IconButton::event(QEvent *event)
{
    // What lies under the pointer looks different.
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave)
        update();
    return QPushButton::event(event);
}

void IconButton::wheelEvent(QWheelEvent *event)
{
    if (!isSignalConnected(QMetaMethod::fromSignal(&IconButton::wheelTurned))) {
        event->ignore();
        return;
    }
    Q_EMIT wheelTurned(event->angleDelta().y());
    event->accept();
}

IconButton::Colours IconButton::plainColours() const
{
    if (!isEnabled())
        return {Qt::transparent, Qt::transparent, theme::off()};
    const QColor lit = theme::accentInk();
    if (isDown())
        return {theme::well(), Qt::transparent, isLit() ? lit : theme::ink1()};
    if (underMouse())
        return {theme::raisedHover(), Qt::transparent, isLit() ? lit : theme::ink1()};
    return {Qt::transparent, Qt::transparent, isLit() ? lit : theme::ink3()};
}

IconButton::Colours IconButton::playColours() const
{
    if (!isEnabled())
        return {Qt::transparent, theme::hairline(), theme::off()};
    if (isDown())
        return {theme::accentInk(), theme::accentInk(), theme::glass()};
    if (underMouse())
        return {theme::strongWash(), theme::focusRing(), theme::focusRing()};
    return {theme::wash(), theme::accentGraphic(), theme::accentInk()};
}

IconButton::Colours IconButton::closeColours() const
{
    if (!isEnabled())
        return plainColours();
    if (isDown())
        return {theme::failure().darker(125), Qt::transparent, Qt::white};
    if (underMouse())
        return {theme::failure(), Qt::transparent, Qt::white};
    return plainColours();
}

void IconButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Colours colours = m_look == Look::Play    ? playColours()
                            : m_look == Look::Close ? closeColours()
                                                    : plainColours();
    const bool round = m_look == Look::Play;
    const auto drawPlate = [&](double inset) {
        const QRectF plate = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
        const double radius = round ? plate.width() / 2. : cornerRadius;
        painter.drawRoundedRect(plate, radius, radius);
    };
    painter.setBrush(colours.plate);
    if (round) {
        painter.setPen(QPen(colours.ring, 1.));
        drawPlate(0.5);
    } else if (colours.plate.alpha() > 0) {
        painter.setPen(Qt::NoPen);
        drawPlate(0.);
    }
    if (KeyboardFocus::isOn(this)) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(theme::focusRing(), focusWidth));
        drawPlate(focusWidth / 2.);
    }
    drawGlyph(painter, m_glyph,
              QRectF((width() - glyphSide) / 2., (height() - glyphSide) / 2., glyphSide, glyphSide),
              colours.sign);
}
