#include "playback/chain_panel.h"

#include <QEvent>
#include <QGridLayout>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

constexpr int areaGap = 12;
constexpr int cardPadding = 12;
constexpr int cellPadding = 8;
constexpr int verdictCardHeight = 68;
constexpr int lampSize = 10;
constexpr int triangleSize = 13;
/// The column less its padding.
constexpr int oneLineBelow = 228 - 2 * 16;
constexpr std::array verdictPixels = {20, 18, 16, 14, 12};

void repolish(QWidget *widget, const char *property, const QVariant &value)
{
    if (widget->property(property) == value)
        return;
    widget->setProperty(property, value);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

QString orUnknown(const QString &text, QLatin1StringView unit = {})
{
    return !text.isEmpty() ? text : unit.isEmpty() ? u"—"_s : u"— "_s + unit;
}

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

ValueCards::ValueCards(QWidget *parent)
    : QFrame(parent)
    , m_grid(new QGridLayout(this))
{
    setObjectName("vesperCard"_L1);
    // Room that the rows leave is left free.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_grid->setContentsMargins(1, 1, 1, 1);
    m_grid->setSpacing(1);
    m_cards = {addCard(tr("码率")), addCard(tr("采样率")), addCard(tr("声道")), addCard(tr("播放次数"))};
    m_narrow = true;
    arrange(false);
    setTexts({});
}

ValueCards::Card ValueCards::addCard(const QString &key)
{
    Card card;
    card.cell = new QWidget(this);
    card.cell->setObjectName("vesperCardCell"_L1);
    card.box = new QBoxLayout(QBoxLayout::TopToBottom, card.cell);
    card.box->setContentsMargins(cellPadding, cellPadding, cellPadding, cellPadding);
    card.box->setSpacing(2);
    auto *name = new QLabel(key, card.cell);
    name->setObjectName("vesperCardKey"_L1);
    card.value = new QLabel(card.cell);
    card.value->setObjectName("vesperCardVal"_L1);
    card.value->setTextFormat(Qt::PlainText);
    card.value->setAccessibleName(key);
    // A figure that is too long for its card must not widen the column.
    card.value->setMinimumWidth(0);
    card.value->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    card.box->addWidget(name);
    card.box->addWidget(card.value, 1);
    return card;
}

void ValueCards::arrange(bool narrow)
{
    if (narrow == m_narrow)
        return;
    m_narrow = narrow;
    for (int i = 0; i < static_cast<int>(m_cards.size()); ++i) {
        Card &card = m_cards[static_cast<std::size_t>(i)];
        m_grid->removeWidget(card.cell);
        m_grid->addWidget(card.cell, narrow ? i : i / 2, narrow ? 0 : i % 2);
        card.box->setDirection(narrow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
        const int upright = narrow ? 4 : cellPadding;
        card.box->setContentsMargins(cellPadding, upright, cellPadding, upright);
        card.box->setSpacing(narrow ? cellPadding : 2);
        // By the interface's direction, not by that of the figure.
        const bool left = narrow == isRightToLeft();
        card.value->setAlignment((left ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignAbsolute |
                                 Qt::AlignVCenter);
    }
    m_grid->setColumnStretch(0, 1);
    m_grid->setColumnStretch(1, narrow ? 0 : 1);
}

void ValueCards::setTexts(const ChainCardTexts &texts)
{
    const std::array values = {orUnknown(texts.bitrate, "kbps"_L1), orUnknown(texts.sampleRate, "Hz"_L1),
                               orUnknown(texts.channels),
                               texts.plays ? QString::number(*texts.plays) : u"—"_s};
    for (std::size_t i = 0; i < m_cards.size(); ++i) {
        m_cards[i].value->setText(values[i]);
        m_cards[i].value->setToolTip(i == 1 && !texts.sampleRateTip.isEmpty() ? texts.sampleRateTip
                                                                              : values[i]);
    }
}

void ValueCards::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    arrange(width() < oneLineBelow);
}

void ValueCards::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::WindowText), 0));
    const auto below = [this](std::size_t card) { return m_cards[card].cell->geometry().bottom() + 1; };
    if (m_narrow) {
        for (std::size_t card = 0; card + 1 < m_cards.size(); ++card)
            painter.drawLine(1, below(card), width() - 2, below(card));
        return;
    }
    const QRect first = m_cards[0].cell->geometry();
    const int x = isRightToLeft() ? first.left() - 1 : first.right() + 1;
    painter.drawLine(1, below(0), width() - 2, below(0));
    painter.drawLine(x, 1, x, height() - 2);
}

ChainRowList::ChainRowList(QWidget *parent)
    : QWidget(parent)
{
    setObjectName("vesperChainRows"_L1);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ChainRowList::setRows(const QList<ChainRow> &rows)
{
    if (rows == m_rows)
        return;
    m_rows = rows;
    for (const Line &line : std::exchange(m_lines, {}))
        delete line.label;
    for (const ChainRow &row : rows) {
        auto *label = new QLabel(this);
        label->setObjectName("vesperChainRow"_L1);
        label->setTextFormat(Qt::RichText);
        label->setWordWrap(true);
        label->setIndent(0);
        // Also a row that begins with a Latin word stands at the interface's leading edge.
        // Mirrored, a Latin value would drag its row to the other side.
        const QString form = chainRowHtml(row);
        label->setText(isRightToLeft() ? u"<div dir=\"rtl\">"_s + form + u"</div>"_s : form);
        label->setProperty("mirrored", isRightToLeft());
        // The tool tip is the value as it came, which may look like rich text and is none.
        label->setToolTip(row.value.toHtmlEscaped());
        label->setAccessibleName(chainRowLabel(row) + u": "_s + row.value);
        label->setProperty("chainWarn", row.warn);
        label->style()->unpolish(label);
        label->style()->polish(label);
        m_lines.append({label, row.warn});
    }
    updateGeometry();
    place();
}

int ChainRowList::heightOf(const QLabel &label) const
{
    label.ensurePolished();
    const int asked = label.heightForWidth(std::max(1, width()));
    return asked > 0 ? asked : label.sizeHint().height();
}

int ChainRowList::sumOfHeights(bool warningsOnly) const
{
    int sum = 0;
    for (const Line &line : m_lines) {
        if (line.warn || !warningsOnly)
            sum += heightOf(*line.label);
    }
    return sum;
}

QSize ChainRowList::sizeHint() const
{
    return {0, sumOfHeights(false)};
}

QSize ChainRowList::minimumSizeHint() const
{
    return {0, sumOfHeights(true)};
}

void ChainRowList::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (event->oldSize().width() != event->size().width())
        updateGeometry();
    place();
}

void ChainRowList::place()
{
    QList<bool> shown(m_lines.size(), true);
    int wanted = sumOfHeights(false);
    for (qsizetype i = m_lines.size() - 1; i >= 0 && wanted > height(); --i) {
        if (m_lines[i].warn)
            continue;
        shown[i] = false;
        wanted -= heightOf(*m_lines[i].label);
    }
    int y = 0;
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        QLabel *label = m_lines[i].label;
        label->setVisible(shown[i]);
        if (!shown[i])
            continue;
        const int tall = heightOf(*label);
        label->setGeometry(0, y, width(), tall);
        y += tall;
    }
}

ChainPanel::ChainPanel(QWidget *parent)
    : QFrame(parent)
    , m_card(new QFrame(this))
    , m_lamp(new QFrame(m_card))
    , m_word(new QLabel(m_card))
    , m_warnings(new WarningCount(m_card))
    , m_values(new ValueCards(this))
    , m_rows(new ChainRowList(this))
{
    setObjectName("vesperChainBox"_L1);
    m_card->setObjectName("vesperChainCard"_L1);
    m_card->setFixedHeight(verdictCardHeight);
    auto *lines = new QVBoxLayout(m_card);
    lines->setContentsMargins(cardPadding, 8, cardPadding, 8);
    lines->setSpacing(2);
    auto *key = new QLabel(tr("信号链"), m_card);
    key->setObjectName("vesperCardKey"_L1);
    lines->addWidget(key);
    auto *verdict = new QHBoxLayout;
    verdict->setSpacing(8);
    m_lamp->setObjectName("vesperChainLamp"_L1);
    m_lamp->setFixedSize(lampSize, lampSize);
    m_word->setObjectName("vesperChainVerdict"_L1);
    m_word->setTextFormat(Qt::PlainText);
    m_word->setWordWrap(true);
    m_word->setAlignment((isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute |
                         Qt::AlignVCenter);
    m_word->setAccessibleName(tr("信号链的结论"));
    verdict->addWidget(m_lamp);
    verdict->addWidget(m_word, 1);
    verdict->addWidget(m_warnings);
    lines->addLayout(verdict, 1);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(areaGap);
    column->addWidget(m_card);
    column->addWidget(m_values);
    column->addWidget(m_rows, 1);
    column->addStretch(0);
    m_rows->hide();
    showVerdict({ChainLamp::Off, u"—"_s, {}, {}});
}

void ChainPanel::showVerdict(const ChainLampView &view)
{
    static constexpr std::array names = {"off"_L1, "good"_L1, "warn"_L1};
    repolish(m_lamp, "lamp", QString(names[static_cast<std::size_t>(view.lamp)]));
    m_word->setText(view.word);
    QStringList tip;
    for (const QString &text : {view.sentence, view.line}) {
        if (!text.isEmpty())
            tip.append(text.toHtmlEscaped());
    }
    m_card->setToolTip(tip.join("<br>"_L1));
    m_word->setAccessibleDescription(view.sentence);
    fitWord();
}

void ChainPanel::showCards(const ChainCardTexts &texts)
{
    m_values->setTexts(texts);
}

void ChainPanel::showRows(const QList<ChainRow> &rows)
{
    m_rows->setRows(rows);
    m_rows->setVisible(m_rowsEnabled && !rows.isEmpty());
    m_warnings->setCount(chainWarnings(rows));
    fitWord();
}

void ChainPanel::setCardsVisible(bool visible)
{
    m_values->setVisible(visible);
}

void ChainPanel::setRowsEnabled(bool enabled)
{
    m_rowsEnabled = enabled;
    m_rows->setVisible(enabled && m_rows->sizeHint().height() > 0);
}

void ChainPanel::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    fitWord();
}

void ChainPanel::fitWord()
{
    int room = m_card->width() - 2 * cardPadding - lampSize - 8;
    if (!m_warnings->isHidden())
        room -= m_warnings->sizeHint().width() + 8;
    // The largest that shows the whole word; the verdict never elides, so the smallest may wrap. The style
    // sheet sets the size by the property, since it would overrule a font that is set here.
    QFont font = m_word->font();
    font.setWeight(QFont::DemiBold);
    int chosen = verdictPixels.back();
    for (const int pixels : verdictPixels) {
        font.setPixelSize(pixels);
        if (QFontMetrics(font).horizontalAdvance(m_word->text()) < room) {
            chosen = pixels;
            break;
        }
    }
    repolish(m_word, "px", chosen);
}
