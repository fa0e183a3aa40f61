#include "ui/spectrum_view.h"

#include "ui/instrument_paint.h"
#include "ui/pixel_grid.h"
#include "ui/theme.h"

#include <QPainter>

namespace {

constexpr int tickMs = 16;
/// Of the way that is left, a tick.
constexpr double share = 0.55;
/// Nearer than any screen could show.
constexpr double arrivedDb = 0.02;
constexpr QColor noPcmInk(138, 133, 124);
constexpr QColor centreLine(44, 44, 53);
constexpr QColor beyondNyquist(74, 72, 66);
constexpr QColor beyondAudible(150, 128, 86);

double heightOf(double levelDb, double half)
{
    const double part = (levelDb - SpectrumView::floorDb) / -SpectrumView::floorDb;
    return part <= 0. ? 0. : part >= 1. ? half : part * half;
}

} // namespace

SpectrumView::SpectrumView(QWidget *parent)
    : QWidget(parent)
{
    setFixedHeight(fixedHeight);
    setMinimumWidth(leastWidth);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // Whatever lies behind is not painted again for every frame.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("频谱"));
    m_timer.setInterval(tickMs);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &SpectrumView::advance);
}

void SpectrumView::showFrame(std::span<const double> left, std::span<const double> right, int bandCount)
{
    if (bandCount < 1 || bandCount > mostBands)
        return;
    const auto take = [bandCount](Levels &target, std::span<const double> levels) {
        for (int i = 0; i < bandCount; ++i) {
            const auto at = static_cast<std::size_t>(i);
            target[at] = at < levels.size() ? levels[at] : floorDb;
        }
    };
    take(m_targetL, left);
    take(m_targetR, right);
    setReason(false, {});
    if (bandCount != m_bandCount) {
        m_shownL = m_targetL;
        m_shownR = m_targetR;
        setBandCount(bandCount);
        update();
    }
    if (canBeSeen() && !m_timer.isActive())
        m_timer.start();
}

void SpectrumView::setZones(int low, int audible, int nyquist)
{
    m_zoneLow = low;
    m_zoneAudible = audible;
    m_zoneNyquist = nyquist;
    update();
}

void SpectrumView::clear()
{
    setReason(false, {});
    setBandCount(0);
    m_timer.stop();
    update();
}

void SpectrumView::showNoPcm(const QString &text)
{
    setReason(true, text);
    setBandCount(0);
    m_timer.stop();
    update();
}

void SpectrumView::setBandCount(int count)
{
    if (count == m_bandCount)
        return;
    m_bandCount = count;
    Q_EMIT bandCountChanged(count);
}

void SpectrumView::setReason(bool noPcm, const QString &text)
{
    if (noPcm == m_noPcm && text == m_noPcmText)
        return;
    m_noPcm = noPcm;
    m_noPcmText = text;
    // The drawn words are dim; here they can be read in the colours of the system.
    setToolTip(text);
    setAccessibleDescription(text);
}

bool SpectrumView::canBeSeen() const
{
    return isVisible() && !window()->isMinimized();
}

void SpectrumView::advance()
{
    if (m_bandCount == 0 || !canBeSeen()) {
        m_timer.stop();
        return;
    }
    const bool leftMoves = step(m_shownL, m_targetL);
    const bool rightMoves = step(m_shownR, m_targetR);
    if (!leftMoves && !rightMoves)
        m_timer.stop();
    update();
}

bool SpectrumView::step(Levels &shown, const Levels &target) const
{
    const double k = theme::reduceMotion ? 1. : share;
    bool moves = false;
    for (std::size_t i = 0; i < static_cast<std::size_t>(m_bandCount); ++i) {
        shown[i] = (target[i] - shown[i]) * k + shown[i];
        if (std::abs(target[i] - shown[i]) < arrivedDb)
            shown[i] = target[i];
        else
            moves = true;
    }
    return moves;
}

void SpectrumView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_bandCount > 0)
        m_timer.start();
}

void SpectrumView::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_timer.stop();
}

QColor SpectrumView::colourOf(int band) const
{
    if (m_zoneLow >= 1 && band < m_zoneLow)
        return theme::accentBright;
    if ((m_zoneAudible >= 1 && band < m_zoneAudible) || m_zoneNyquist <= 0)
        return theme::accentColor;
    return band >= m_zoneNyquist ? beyondNyquist : beyondAudible;
}

void SpectrumView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintInstrumentGround(painter, rect());
    if (m_bandCount > 0) {
        paintBars(painter);
    } else if (m_noPcm && !m_noPcmText.isEmpty()) {
        painter.setPen(noPcmInk);
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_noPcmText);
    }
}

void SpectrumView::paintBars(QPainter &painter) const
{
    const PixelGrid grid(painter);
    const double pitch = width() / static_cast<double>(m_bandCount);
    const int step = std::max(1, width() / m_bandCount);
    const int barWidth = std::max(1, step >= 3 ? step - 1 : step);
    const double margin = (step - barWidth) * 0.5;
    const double half = height() * 0.5;
    const double centre = grid.y(half);
    const double across = grid.width(barWidth);
    for (int i = 0; i < m_bandCount; ++i) {
        const QColor colour = colourOf(i);
        const double x = grid.x(margin + i * pitch);
        const auto at = static_cast<std::size_t>(i);
        const double top = grid.y(half - heightOf(m_shownL[at], half));
        const double bottom = grid.y(half + heightOf(m_shownR[at], half));
        if (top < centre)
            painter.fillRect(QRectF(x, top, across, centre - top), colour);
        if (bottom > centre)
            painter.fillRect(QRectF(x, centre, across, bottom - centre), colour);
    }
    painter.fillRect(QRectF(0., grid.y(static_cast<int>(half)), width(), grid.height(1.)), centreLine);
}

QString SpectrumView::spokenValue() const
{
    if (m_bandCount == 0)
        return m_noPcmText;
    const auto loudest = [this](const Levels &levels) {
        return std::distance(levels.begin(), std::max_element(levels.begin(), levels.begin() + m_bandCount));
    };
    //: Spoken by a screen reader: two numbers of frequency bands, counted from 1, and how many there are.
    return tr("最强频段: 左 %1, 右 %2, 共 %3")
        .arg(loudest(m_targetL) + 1)
        .arg(loudest(m_targetR) + 1)
        .arg(m_bandCount);
}
