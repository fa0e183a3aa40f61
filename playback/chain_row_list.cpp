#include "playback/chain_row_list.h"

#include <QEvent>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

/// A value that reads from left to right as one piece: "46.4 ms" would otherwise become "ms 46.4".
QString isolated(const QString &value)
{
    return QChar(0x2068) + value + QChar(0x2069);
}

} // namespace

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
        ChainRow shown = row;
        if (isRightToLeft())
            shown.value = isolated(row.value);
        const QString form = chainRowHtml(shown);
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
