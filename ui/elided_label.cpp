#include "ui/elided_label.h"

#include <QEvent>

ElidedLabel::ElidedLabel(QWidget *parent, Qt::TextElideMode mode)
    : QLabel(parent)
    , m_mode(mode)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    // With the interface, not with the script of each text.
    setAlignment((isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute | Qt::AlignVCenter);
}

void ElidedLabel::setWhole(const QString &text, const QString &tip)
{
    m_whole = text;
    m_tip = tip;
    setAccessibleName(text);
    elide();
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_whole) + 2, QLabel::sizeHint().height()};
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    elide();
}

void ElidedLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        elide();
}

void ElidedLabel::elide()
{
    if (!testAttribute(Qt::WA_Resized)) {
        // Not measured: nobody has said yet how much room there is, and the fonts may still be being listed.
        setText(m_whole);
        setToolTip(m_tip);
        return;
    }
    const QString shown = fontMetrics().elidedText(m_whole, m_mode, std::max(contentsRect().width(), 1));
    if (shown != text())
        setText(shown);
    setToolTip(!m_tip.isEmpty() ? m_tip : shown == m_whole ? QString() : m_whole);
}
