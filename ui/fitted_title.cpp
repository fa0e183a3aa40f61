#include "ui/fitted_title.h"

#include "ui/style_sheet.h"
#include "ui/theme.h"

#include <QEvent>
#include <QPainter>
#include <QTextLayout>
#include <array>

namespace {

struct Step
{
    int pixels;
    int lineHeight;
    double trackingPercent; ///< of the size
};

constexpr std::array steps = {Step{40, 48, -0.018}, Step{34, 42, -0.016}, Step{26, 34, -0.014},
                              Step{20, 26, -0.012}};

const Step &stepOf(int pixels)
{
    for (const Step &step : steps) {
        if (step.pixels <= pixels)
            return step;
    }
    return steps.back();
}

} // namespace

FittedTitle::FittedTitle(QWidget *parent)
    : QWidget(parent)
    , m_font(interfaceFont())
    , m_mostPixels(steps.at(1).pixels)
{
    m_font.setWeight(QFont::DemiBold);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void FittedTitle::setText(const QString &text)
{
    if (m_text == text)
        return;
    m_text = text;
    setAccessibleName(text);
    fit();
    update();
}

void FittedTitle::setRoom(int pixels, int height)
{
    if (m_mostPixels == pixels && m_room == height)
        return;
    m_mostPixels = pixels;
    m_room = height;
    fit();
    update();
}

bool FittedTitle::breakLines(int pixels, bool mayElide)
{
    const Step &step = stepOf(pixels);
    m_font.setPixelSize(step.pixels);
    m_font.setLetterSpacing(QFont::AbsoluteSpacing, step.pixels * step.trackingPercent);
    const QFontMetrics metrics(m_font);
    const qsizetype room = std::max(1, m_room / step.lineHeight);
    QTextLayout layout(m_text, m_font);
    QTextOption option;
    option.setTextDirection(layoutDirection());
    option.setWrapMode(mayElide ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::WordWrap);
    layout.setTextOption(option);
    m_lines.clear();
    m_elided = false;
    bool whole = true;
    layout.beginLayout();
    while (true) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width());
        if (line.naturalTextWidth() > width())
            whole = false;
        if (m_lines.size() == room - 1 && line.textStart() + line.textLength() < m_text.size()) {
            whole = false;
            m_lines.append(metrics.elidedText(m_text.mid(line.textStart()), Qt::ElideRight, width()));
            m_elided = true;
            break;
        }
        m_lines.append(m_text.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return whole;
}

void FittedTitle::fit()
{
    if (m_text.isEmpty() || !testAttribute(Qt::WA_Resized)) {
        // Not measured: that would load a font of a size that may never be shown.
        m_lines.clear();
        m_elided = false;
        m_font.setPixelSize(stepOf(m_mostPixels).pixels);
    } else {
        for (const Step &step : steps) {
            const bool last = step.pixels == steps.back().pixels;
            if (step.pixels <= m_mostPixels && (breakLines(step.pixels, last) || last))
                break;
        }
    }
    setToolTip(m_elided ? m_text : QString());
    setFixedHeight(std::max<int>(1, m_lines.size()) * stepOf(m_font.pixelSize()).lineHeight);
}

void FittedTitle::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(m_font);
    painter.setPen(theme::ink1());
    const int lineHeight = stepOf(m_font.pixelSize()).lineHeight;
    int y = 0;
    for (const QString &line : m_lines) {
        painter.drawText(QRect(0, y, width(), lineHeight),
                         QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter |
                             Qt::TextSingleLine,
                         line);
        y += lineHeight;
    }
}

void FittedTitle::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fit();
}

void FittedTitle::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        fit();
}
