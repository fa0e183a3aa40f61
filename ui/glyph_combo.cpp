#include "ui/glyph_combo.h"

#include "ui/glyph_drawing.h"
#include "ui/theme.h"

#include <QPainter>
#include <QStyleOptionComboBox>

void GlyphCombo::paintEvent(QPaintEvent *event)
{
    constexpr int side = 16;
    QComboBox::paintEvent(event);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect place = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
    QPainter painter(this);
    drawGlyph(painter, Glyph::ChevronDown,
              QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, QSize(side, side), place),
              isEnabled() ? theme::ink3() : theme::off());
}
