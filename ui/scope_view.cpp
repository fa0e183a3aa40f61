#include "ui/scope_view.h"

#include "ui/instrument_paint.h"
#include "ui/pixel_grid.h"
#include "ui/theme.h"

#include <QPainter>

namespace {

constexpr double wavePen = 1.2;
constexpr double zeroPen = 1.;
constexpr int rightAlpha = 120;
/// Between the loudest sample and the edge of its half.
constexpr int headroom = 2;

QColor idleInk()
{
    return theme::lightTheme ? QColor(120, 114, 104) : QColor(90, 86, 96);
}

QColor zeroLine()
{
    return theme::lightTheme ? QColor(190, 186, 178) : QColor(70, 66, 76);
}

} // namespace

ScopeView::ScopeView(QWidget *parent)
    : QWidget(parent)
{
    setFixedHeight(fixedHeight);
    setMinimumWidth(leastWidth);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("示波器"));
    setIdleText({});
}

void ScopeView::showFrame(const Channel &left, const Channel &right, int bucketCount)
{
    const auto size = static_cast<std::size_t>(bucketCount);
    if (bucketCount < 1 || bucketCount > mostBuckets || left.least.size() < size || left.most.size() < size ||
        right.least.size() < size || right.most.size() < size)
        return;
    std::copy_n(left.least.begin(), size, m_leftLeast.begin());
    std::copy_n(left.most.begin(), size, m_leftMost.begin());
    std::copy_n(right.least.begin(), size, m_rightLeast.begin());
    std::copy_n(right.most.begin(), size, m_rightMost.begin());
    const bool first = m_bucketCount == 0;
    m_bucketCount = bucketCount;
    if (first) {
        setReason(false, {});
        tellEmptyText();
    }
    update();
}

void ScopeView::clear()
{
    m_bucketCount = 0;
    setReason(false, {});
    tellEmptyText();
    update();
}

void ScopeView::showNoPcm(const QString &text)
{
    m_bucketCount = 0;
    setReason(true, text);
    tellEmptyText();
    update();
}

void ScopeView::setIdleText(const QString &text)
{
    const QString wanted = text.isEmpty() ? tr("未播放，没有波形") : text;
    if (wanted == m_idleText)
        return;
    m_idleText = wanted;
    tellEmptyText();
    update();
}

void ScopeView::setReason(bool noPcm, const QString &text)
{
    m_noPcm = noPcm;
    m_noPcmText = text;
}

void ScopeView::tellEmptyText()
{
    // The drawn words are dim; here they can be read in the colours of the system.
    const QString text = m_bucketCount > 0 ? QString() : emptyText();
    setToolTip(text);
    setAccessibleDescription(text);
}

void ScopeView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintInstrumentGround(painter, rect());
    if (m_bucketCount > 0) {
        paintWave(painter);
        return;
    }
    painter.setPen(idleInk());
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, emptyText());
}

void ScopeView::paintWave(QPainter &painter) const
{
    const PixelGrid grid(painter);
    const int half = height() / 2;
    const int quarter = height() / 4;
    const double zeroHeight = grid.height(zeroPen);
    for (const int y : {quarter, quarter + half})
        painter.fillRect(QRectF(0., grid.y(y), width(), zeroHeight), zeroLine());

    const double pitch = width() / static_cast<double>(m_bucketCount);
    const double scale = quarter - headroom;
    const double penWidth = grid.width(wavePen);
    // A line covers the pixels of both its ends.
    const double endPixel = grid.height(zeroPen);
    QColor rightColour = theme::accentColor;
    rightColour.setAlpha(rightAlpha);
    const auto paintChannel = [&](const Samples &least, const Samples &most, int zero, const QColor &colour) {
        for (int i = 0; i < m_bucketCount; ++i) {
            const auto at = static_cast<std::size_t>(i);
            const double x = grid.x(static_cast<int>(i * pitch + pitch * 0.5));
            const int y1 = zero - static_cast<int>(scale * least[at]);
            const int y2 = zero - static_cast<int>(scale * most[at]);
            const double top = grid.y(std::min(y1, y2));
            const double bottom = grid.y(std::max(y1, y2)) + endPixel;
            painter.fillRect(QRectF(x, top, penWidth, bottom - top), colour);
        }
    };
    paintChannel(m_leftLeast, m_leftMost, quarter, theme::accentColor);
    paintChannel(m_rightLeast, m_rightMost, quarter + half, rightColour);
}

QString ScopeView::spokenValue() const
{
    if (m_bucketCount == 0)
        return emptyText();
    const auto swing = [this](const Samples &least, const Samples &most) {
        double largest = 0.;
        for (std::size_t i = 0; i < static_cast<std::size_t>(m_bucketCount); ++i)
            largest = std::max({largest, std::abs(least[i]), std::abs(most[i])});
        return QString::number(std::lround(largest * 100.));
    };
    //: Spoken by a screen reader: the largest sample of each channel in percent of full scale.
    return tr("最大振幅: 左 %1%, 右 %2%")
        .arg(swing(m_leftLeast, m_leftMost), swing(m_rightLeast, m_rightMost));
}
