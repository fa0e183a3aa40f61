#include "ui/bits_led.h"

#include "ui/theme.h"

#include <QPainter>
#include <QRadialGradient>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr double textPoints = 8.5;
constexpr int roomForLamp = 12;
constexpr double haloRadius = 7.;
constexpr double lampRadius = 3.4;
constexpr int haloAlpha = 90;
constexpr double lampSide = 7.;
constexpr double lampFromRight = 8.;
constexpr std::array<QColor, 4> lamps = {QColor(108, 102, 93), QColor(111, 192, 132), QColor(212, 168, 67),
                                         QColor(199, 92, 74)};

QString bitsText(int bits)
{
    return bits < 1 ? u"—b"_s : u"%1b"_s.arg(bits);
}

} // namespace

BitsLed::BitsLed(QWidget *parent)
    : QWidget(parent)
{
    setFixedSize(fixedSize);
    setAccessibleName(tr("有效位数"));
    setToolTip(tr("有效位数：尚不清楚"));
}

void BitsLed::showBits(int bits, int state)
{
    const int known = state >= 0 && state < static_cast<int>(lamps.size()) ? state : 0;
    if (bits == m_bits && known == m_state)
        return;
    m_bits = bits;
    m_state = known;
    update();
}

QColor BitsLed::lampColour() const
{
    return lamps.at(static_cast<std::size_t>(m_state));
}

void BitsLed::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QFont textFont = font();
    textFont.setPointSizeF(textPoints);
    textFont.setWeight(QFont::Bold);
    painter.setFont(textFont);
    painter.setPen(theme::lightTheme ? QColor(57, 54, 48) : QColor(185, 179, 168));
    painter.drawText(frame.adjusted(0., 0., -roomForLamp, 0.), Qt::AlignLeft | Qt::AlignVCenter,
                     bitsText(m_bits));

    const QColor lamp = lampColour();
    const QRectF square(frame.right() - lampFromRight, frame.center().y() - lampSide / 2., lampSide,
                        lampSide);
    QColor near = lamp;
    near.setAlpha(haloAlpha);
    QColor far = lamp;
    far.setAlpha(0);
    QRadialGradient halo(square.center(), haloRadius);
    halo.setColorAt(0., near);
    halo.setColorAt(1., far);
    painter.setPen(Qt::NoPen);
    painter.setBrush(halo);
    painter.drawEllipse(square.center(), haloRadius, haloRadius);
    painter.setBrush(lamp);
    painter.drawEllipse(square.center(), lampRadius, lampRadius);
}

QString BitsLed::spokenValue() const
{
    const QString meanings[] = {tr("未知"), tr("透明"), tr("位数减少"), tr("用尽")};
    const QString meaning = meanings[m_state];
    return m_bits < 1 ? meaning : tr("%1 bit，%2").arg(m_bits).arg(meaning);
}
