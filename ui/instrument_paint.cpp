#include "ui/instrument_paint.h"

#include "ui/theme.h"

namespace {

constexpr int lightShade = 10;
constexpr int darkShade = 45;

} // namespace

void paintInstrumentGround(QPainter &painter, const QRect &rect)
{
    painter.fillRect(rect, theme::well());
    painter.fillRect(rect, QColor(0, 0, 0, theme::lightTheme ? lightShade : darkShade));
}
