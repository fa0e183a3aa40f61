#include "ui/instrument_panel.h"

#include "ui/bits_led.h"
#include "ui/meter_scale.h"
#include "ui/pixel_grid.h"
#include "ui/scope_view.h"
#include "ui/segment_meter.h"
#include "ui/spectrum_view.h"
#include "ui/style_sheet.h"
#include "ui/theme.h"

#include <QLabel>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int sidePadding = 16;
constexpr int compactSidePadding = 12;
constexpr int padding = 12;
constexpr int compactPadding = 8;
constexpr int letterWidth = 12;
constexpr int levelWidth = 76;
constexpr int gap = 12;
constexpr int meterGap = 4;
constexpr int scaleGap = 2;
constexpr int captionGap = 6;
constexpr int captionHeight = 16;
constexpr int viewGap = 4;
constexpr double cornerRadius = 6.;
constexpr int captionPixels = 11;
constexpr int levelPixels = 12;
/// Spectrum 1.6 : scope 1.
constexpr int spectrumParts = 8;
constexpr int allParts = 13;
/// What the spectrum's width is a multiple of before the first frame has come.
constexpr int likelyBands = 64;

QLabel *figure(QWidget *parent, QLatin1StringView objectName, const QString &text, const QFont &font)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(objectName);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

InstrumentPanel::InstrumentPanel(QWidget *parent)
    : QWidget(parent)
    , m_left(addChannel(u"L"_s, tr("左声道电平")))
    , m_right(addChannel(u"R"_s, tr("右声道电平")))
    , m_bits(new BitsLed(this))
    , m_scale(new MeterScale(this))
    , m_spectrum(new SpectrumView(this))
    , m_scope(new ScopeView(this))
    , m_bandCount(likelyBands)
{
    setObjectName("vesperInstruments"_L1);
    // Time, level and frequency run from left to right in every language.
    setLayoutDirection(Qt::LeftToRight);
    SpokenValue::install();
    const QString spectrumName = tr("频谱");
    const QString scopeName = tr("波形");
    m_spectrumCaption = figure(this, "vesperCaption"_L1, spectrumName, captionFont(spectrumName));
    m_scopeCaption = figure(this, "vesperCaption"_L1, scopeName, captionFont(scopeName));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFixedHeight(fullHeight);
    connect(m_spectrum, &SpectrumView::bandCountChanged, this, [this](int count) {
        if (count < 1 || count == m_bandCount)
            return;
        m_bandCount = count;
        place();
    });
    clear();
}

InstrumentPanel::Channel InstrumentPanel::addChannel(const QString &letter, const QString &name)
{
    Channel channel;
    channel.letter = figure(this, "vesperCaption"_L1, letter, figureFont(captionPixels));
    channel.meter = new SegmentMeter(this);
    channel.meter->setAccessibleName(name);
    channel.level = figure(this, "vesperLevel"_L1, {}, figureFont(levelPixels));
    channel.level->setAlignment(Qt::AlignRight | Qt::AlignVCenter | Qt::AlignAbsolute);
    channel.level->setToolTip(channel.meter->toolTip());
    return channel;
}

void InstrumentPanel::setCompact(bool compact)
{
    if (compact == m_compact)
        return;
    m_compact = compact;
    setFixedHeight(compact ? compactHeight : fullHeight);
    for (QWidget *extra : {static_cast<QWidget *>(m_scale), static_cast<QWidget *>(m_spectrumCaption),
                           static_cast<QWidget *>(m_scopeCaption)})
        extra->setVisible(!compact);
    place();
}

void InstrumentPanel::showLevel(const Channel &channel, const MeterReading &reading)
{
    channel.meter->showReading(reading);
    channel.level->setProperty("dbfs", reading.peakDb);
    if (channel.level->text() != reading.text)
        channel.level->setText(reading.text);
}

void InstrumentPanel::showLevels(const MeterReading &left, const MeterReading &right)
{
    showLevel(m_left, left);
    showLevel(m_right, right);
}

void InstrumentPanel::endClip()
{
    for (const Channel &channel : {m_left, m_right}) {
        MeterReading reading;
        reading.dbfs = channel.meter->dbfs();
        channel.meter->showReading(reading);
    }
}

void InstrumentPanel::showBits(int bits, int state, const QString &tip)
{
    m_bits->showBits(bits, state);
    m_bits->setToolTip(tip);
}

void InstrumentPanel::clear()
{
    MeterReading silence;
    silence.text = levelText(silence.dbfs);
    showLevels(silence, silence);
    m_spectrum->clear();
    m_scope->clear();
}

QSize InstrumentPanel::sizeHint() const
{
    return {686, m_compact ? compactHeight : fullHeight};
}

QSize InstrumentPanel::minimumSizeHint() const
{
    const int sides = 2 * (m_compact ? compactSidePadding : sidePadding);
    return {sides + SpectrumView::leastWidth + gap + ScopeView::leastWidth, height()};
}

void InstrumentPanel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    place();
}

void InstrumentPanel::place()
{
    const int side = m_compact ? compactSidePadding : sidePadding;
    const int top = m_compact ? compactPadding : padding;
    const int right = width() - side;
    const int meterX = side + letterWidth + gap;
    const int bitsX = right - BitsLed::fixedSize.width();
    const int levelX = bitsX - gap - levelWidth;
    const int meterWidth = std::max(1, levelX - gap - meterX);
    int y = top;
    for (const Channel &channel : {m_left, m_right}) {
        channel.letter->setGeometry(side, y - 2, letterWidth, captionHeight);
        channel.meter->setGeometry(meterX, y, meterWidth, SegmentMeter::fixedHeight);
        channel.level->setGeometry(levelX, y - 2, levelWidth, captionHeight);
        y += SegmentMeter::fixedHeight + meterGap;
    }
    const int metersEnd = y - meterGap;
    m_bits->move(bitsX, (top + metersEnd - BitsLed::fixedSize.height()) / 2);
    if (m_compact) {
        placeViews(side, right, metersEnd + compactPadding);
        return;
    }
    m_scale->setGeometry(meterX - MeterScale::overhang, metersEnd + scaleGap,
                         meterWidth + 2 * MeterScale::overhang, MeterScale::fixedHeight);
    const int captionY = metersEnd + scaleGap + MeterScale::fixedHeight + captionGap;
    placeViews(side, right, captionY + captionHeight + viewGap);
    m_spectrumCaption->setGeometry(m_spectrum->x(), captionY, m_spectrum->width(), captionHeight);
    m_scopeCaption->setGeometry(m_scope->x(), captionY, m_scope->width(), captionHeight);
}

void InstrumentPanel::placeViews(int left, int right, int top)
{
    const int room = std::max(0, right - left - gap);
    int spectrumWidth = room * spectrumParts / allParts;
    // Of a whole number of pixels a band, all gaps are alike.
    const int whole = spectrumWidth / m_bandCount * m_bandCount;
    if (whole >= SpectrumView::leastWidth)
        spectrumWidth = whole;
    m_spectrum->setGeometry(left, top, spectrumWidth, SpectrumView::fixedHeight);
    const int scopeX = left + spectrumWidth + gap;
    m_scope->setGeometry(scopeX, top, std::max(ScopeView::leastWidth, right - scopeX),
                         ScopeView::fixedHeight);
}

void InstrumentPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // A line of whole pixels, whatever the scale.
    const PixelGrid grid(painter);
    const double line = grid.width(1.);
    const QRectF frame(QPointF(grid.x(0.), grid.y(0.)), QPointF(grid.x(width()), grid.y(height())));
    painter.setPen(QPen(theme::hairline(), line));
    painter.setBrush(theme::well());
    painter.drawRoundedRect(frame.adjusted(line / 2., line / 2., -line / 2., -line / 2.), cornerRadius,
                            cornerRadius);
}
