#include "playback/value_cards.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

/// Of a card's leading edge and its figure: where the verdict above begins.
constexpr int leading = 12;
/// A figure in a narrow card may come near the line.
constexpr int trailing = 4;
constexpr int upright = 8;
constexpr int uprightInOneLine = 4;
/// The column less its padding.
constexpr int oneLineBelow = 228 - 2 * 16;

void setFlag(QLabel *label, const char *name, bool on)
{
    if (label->property(name).toBool() == on)
        return;
    label->setProperty(name, on);
    label->style()->unpolish(label);
    label->style()->polish(label);
}

QString orUnknown(const QString &text, QLatin1StringView unit = {})
{
    return !text.isEmpty() ? text : unit.isEmpty() ? u"—"_s : u"— "_s + unit;
}

} // namespace

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
        const int ends = narrow ? uprightInOneLine : upright;
        const int far = narrow ? leading : trailing;
        card.box->setContentsMargins(isRightToLeft() ? far : leading, ends, isRightToLeft() ? leading : far,
                                     ends);
        card.box->setSpacing(narrow ? 8 : 2);
        setFlag(card.value, "oneLine", narrow);
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
        // The letters of a script that runs from right to left join up, and figures' cells tear them apart.
        setFlag(m_cards[i].value, "words", values[i].isRightToLeft());
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
