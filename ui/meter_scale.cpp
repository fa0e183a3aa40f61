#include "ui/meter_scale.h"

#include "ui/style_sheet.h"
#include "ui/theme.h"

#include <QPainter>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int firstDb = -54;
constexpr int stepDb = 6;
constexpr int scaleDb = 60;
constexpr int figurePixels = 11;

} // namespace

MeterScale::MeterScale(QWidget *parent)
    : QWidget(parent)
{
    setFixedHeight(fixedHeight);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFont(figureFont(figurePixels));
    // A minus stands before its number in every language.
    setLayoutDirection(Qt::LeftToRight);
}

void MeterScale::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    // The sign stands before its number in every language.
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.setFont(figureFont(figurePixels));
    painter.setPen(theme::ink4());
    const int meters = width() - 2 * overhang;
    for (int db = firstDb; db <= 0; db += stepDb) {
        const double place = overhang + meters * static_cast<double>(db + scaleDb) / scaleDb;
        const QString figure = db < 0 ? u"−%1"_s.arg(-db) : u"0"_s;
        painter.drawText(QRectF(place - overhang, 0., 2 * overhang, fixedHeight), Qt::AlignCenter, figure);
    }
}
