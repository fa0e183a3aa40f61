#include "ui/dsp_tab.h"

#include "ui/keyboard_focus.h"
#include "ui/pixel_grid.h"
#include "ui/theme.h"

#include <QEvent>
#include <QPainter>
#include <QRadialGradient>
#include <QStyleOption>

namespace {

constexpr double lampX = 9.5;
constexpr double lampRadius = 2.5;
constexpr double haloRadius = 6.;
constexpr int haloAlpha = 120;
constexpr int textFrom = 22;
constexpr int trailing = 12;
constexpr double cornerRadius = 4.;

} // namespace

DspTab::DspTab(const QString &text, QWidget *parent)
    : QPushButton(text, parent)
{
    setCheckable(true);
    setFixedHeight(fixedHeight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    tellLamp();
}

void DspTab::setLit(bool lit)
{
    if (lit == m_lit)
        return;
    m_lit = lit;
    tellLamp();
    update();
}

void DspTab::tellLamp()
{
    setAccessibleDescription(m_lit ? tr("效果已开") : tr("效果已关"));
}

QFont DspTab::openFont() const
{
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    return bold;
}

QSize DspTab::sizeHint() const
{
    // The width of the bold text always, so that opening a page moves nothing.
    const int text = QFontMetrics(openFont()).size(Qt::TextShowMnemonic, this->text()).width();
    return {textFrom + text + trailing, fixedHeight};
}

bool DspTab::event(QEvent *event)
{
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave)
        update();
    return QPushButton::event(event);
}

void DspTab::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    QColor plate = Qt::transparent;
    QColor ink = isEnabled() ? theme::ink3() : theme::off();
    if (isEnabled() && (isChecked() || isDown() || underMouse())) {
        plate = isDown() ? theme::well() : isChecked() ? theme::raisedHover() : theme::raised();
        ink = theme::ink1();
    }
    const bool focused = KeyboardFocus::isOn(this);
    const double inset = focused ? 1. : 0.5;
    painter.setBrush(plate);
    if (focused)
        painter.setPen(QPen(theme::focusRing(), 2.));
    else if (isChecked())
        painter.setPen(QPen(theme::edge(), 1.));
    else
        painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), cornerRadius,
                            cornerRadius);

    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const QPointF lamp(mirrored ? width() - lampX : lampX, height() * 0.5);
    painter.setPen(Qt::NoPen);
    const bool lights = m_lit && isEnabled();
    if (lights) {
        QColor near = theme::accentColor;
        near.setAlpha(haloAlpha);
        QColor far = near;
        far.setAlpha(0);
        QRadialGradient halo(lamp, haloRadius);
        halo.setColorAt(0., near);
        halo.setColorAt(1., far);
        painter.setBrush(halo);
        painter.drawEllipse(lamp, haloRadius, haloRadius);
    }
    painter.setBrush(lights ? theme::accentColor : theme::off());
    painter.drawEllipse(lamp, lampRadius, lampRadius);

    painter.setFont(isChecked() ? openFont() : font());
    painter.setPen(ink);
    QRect textRect = rect().adjusted(textFrom, 0, -trailing, 0);
    if (mirrored)
        textRect = rect().adjusted(trailing, 0, -textFrom, 0);
    painter.drawText(textRect, Qt::AlignVCenter | Qt::AlignLeading | Qt::TextShowMnemonic | Qt::TextDontClip,
                     text());
}
