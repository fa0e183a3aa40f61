#include "playback/chain_panel.h"

#include "playback/chain_row_list.h"
#include "playback/value_cards.h"
#include "playback/warning_count.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int areaGap = 12;
constexpr int cardPadding = 12;
constexpr int verdictCardHeight = 68;
constexpr int lampSize = 10;
constexpr std::array verdictPixels = {20, 18, 16, 14, 12};

void repolish(QWidget *widget, const char *property, const QVariant &value)
{
    if (widget->property(property) == value)
        return;
    widget->setProperty(property, value);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

} // namespace

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
    // Not measured before the width is known: the fonts may still be being listed.
    if (!testAttribute(Qt::WA_Resized))
        return;
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
