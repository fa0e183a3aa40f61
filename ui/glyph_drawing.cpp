#include "ui/glyph_drawing.h"

#include "ui/pixel_grid.h"

#include <QPainter>
#include <QPainterPath>
#include <initializer_list>

namespace {

constexpr double strokeWidth = 1.5;
constexpr double headSide = 2.25;

/// Draws on a grid of glyphSide; the pen is set.
class GlyphPen
{
public:
    GlyphPen(QPainter &painter, const QColor &colour)
        : m_painter(painter)
        , m_colour(colour)
    {
    }

    void line(std::initializer_list<QPointF> points) { m_painter.drawPath(pathOf(points)); }
    void fill(std::initializer_list<QPointF> points)
    {
        QPainterPath path = pathOf(points);
        path.closeSubpath();
        m_painter.fillPath(path, m_colour);
    }
    void bar(double x, double y, double width, double height)
    {
        m_painter.fillRect(QRectF(x, y, width, height), m_colour);
    }
    void box(double x, double y, double side) { m_painter.drawRect(QRectF(x, y, side, side)); }
    void arc(QPointF centre, double radius, double fromDegrees, double spanDegrees)
    {
        m_painter.drawArc(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius),
                          qRound(fromDegrees * 16), qRound(spanDegrees * 16));
    }
    void circle(QPointF centre, double radius) { m_painter.drawEllipse(centre, radius, radius); }
    void dot(QPointF centre, double radius)
    {
        QPainterPath path;
        path.addEllipse(centre, radius, radius);
        m_painter.fillPath(path, m_colour);
    }
    void path(const QPainterPath &shape) { m_painter.drawPath(shape); }
    /// An arrow's head that points right (1) or left (-1).
    void head(QPointF tip, double direction)
    {
        const double back = tip.x() - direction * headSide;
        line({{back, tip.y() - headSide}, tip, {back, tip.y() + headSide}});
    }

private:
    static QPainterPath pathOf(std::initializer_list<QPointF> points)
    {
        QPainterPath path(*points.begin());
        for (const QPointF *point = points.begin() + 1; point != points.end(); ++point)
            path.lineTo(*point);
        return path;
    }

    QPainter &m_painter;
    QColor m_colour;
};

void drawSkip(GlyphPen &pen, bool forward)
{
    const auto x = [forward](double at) { return forward ? at : glyphSide - at; };
    pen.fill({{x(4.5), 4.5}, {x(13.), 10.}, {x(4.5), 15.5}});
    pen.bar(forward ? 13.5 : 4.5, 4.5, 2., 11.);
}

/// Both orders have two arrows: straight ones, or the same two crossing.
void drawOrder(GlyphPen &pen, bool random)
{
    constexpr double upper = 6.5;
    constexpr double lower = 13.5;
    if (random) {
        pen.line({{3., upper}, {6., upper}, {12., lower}, {16.5, lower}});
        pen.line({{3., lower}, {6., lower}, {8.2, 10.9}});
        pen.line({{9.9, 9.}, {12., upper}, {16.5, upper}});
    } else {
        pen.line({{3., upper}, {16.5, upper}});
        pen.line({{3., lower}, {16.5, lower}});
    }
    pen.head({16.5, upper}, 1.);
    pen.head({16.5, lower}, 1.);
}

void drawRepeat(GlyphPen &pen, Glyph glyph)
{
    QPainterPath there(QPointF(3.5, 9.5));
    there.lineTo(3.5, 8.);
    there.quadTo(3.5, 6., 5.5, 6.);
    there.lineTo(16., 6.);
    QPainterPath back(QPointF(16.5, 10.5));
    back.lineTo(16.5, 12.);
    back.quadTo(16.5, 14., 14.5, 14.);
    back.lineTo(4., 14.);
    pen.path(there);
    pen.path(back);
    pen.head({16., 6.}, 1.);
    pen.head({4., 14.}, -1.);
    if (glyph == Glyph::RepeatTrack)
        pen.line({{9., 9.2}, {10.25, 8.2}, {10.25, 12.}});
    if (glyph == Glyph::RepeatOff)
        pen.line({{5., 17.}, {15., 3.}});
}

void drawSpeaker(GlyphPen &pen, int waves, bool muted)
{
    pen.fill({{3., 8.}, {5.75, 8.}, {9.25, 4.75}, {9.25, 15.25}, {5.75, 12.}, {3., 12.}});
    constexpr QPointF mouth(9., 10.);
    constexpr double radii[] = {3., 5.25, 7.5};
    for (int i = 0; i < waves; ++i)
        pen.arc(mouth, radii[i], -45., 90.);
    if (muted) {
        pen.line({{12.25, 7.75}, {16.75, 12.25}});
        pen.line({{16.75, 7.75}, {12.25, 12.25}});
    }
}

void drawGear(GlyphPen &pen)
{
    constexpr QPointF centre(10., 10.);
    constexpr int teeth = 8;
    pen.circle(centre, 2.25);
    pen.circle(centre, 4.75);
    for (int i = 0; i < teeth; ++i) {
        const double angle = i * 2. * M_PI / teeth;
        const QPointF outward(std::cos(angle), std::sin(angle));
        pen.line({centre + outward * 5.25, centre + outward * 6.75});
    }
}

void drawWarning(GlyphPen &pen)
{
    pen.line({{10., 3.75}, {16.75, 15.75}, {3.25, 15.75}, {10., 3.75}, {16.75, 15.75}});
    pen.line({{10., 8.25}, {10., 11.5}});
    pen.dot({10., 13.5}, 0.9);
}

void drawTransport(GlyphPen &pen, Glyph glyph)
{
    switch (glyph) {
    case Glyph::Play:
        pen.fill({{6.5, 4.}, {16., 10.}, {6.5, 16.}});
        break;
    case Glyph::Pause:
        pen.bar(6., 4.5, 3., 11.);
        pen.bar(11., 4.5, 3., 11.);
        break;
    case Glyph::Stop:
        pen.bar(5., 5., 10., 10.);
        break;
    default:
        drawSkip(pen, glyph == Glyph::Next);
        break;
    }
}

void drawWindowSign(GlyphPen &pen, Glyph glyph)
{
    switch (glyph) {
    case Glyph::Minimise:
        pen.line({{5., 10.25}, {15., 10.25}});
        break;
    case Glyph::Maximise:
        pen.box(5.5, 5.5, 9.);
        break;
    case Glyph::Restore:
        pen.box(4.75, 7.25, 8.);
        pen.line({{7.75, 4.75}, {15.25, 4.75}, {15.25, 12.25}});
        break;
    default:
        pen.line({{5.5, 5.5}, {14.5, 14.5}});
        pen.line({{14.5, 5.5}, {5.5, 14.5}});
        break;
    }
}

void drawOther(GlyphPen &pen, Glyph glyph)
{
    switch (glyph) {
    case Glyph::Lyrics:
        pen.line({{3.5, 5.}, {16.5, 5.}});
        pen.line({{3.5, 8.5}, {12.5, 8.5}});
        pen.line({{3.5, 12.}, {16.5, 12.}});
        pen.line({{3.5, 15.5}, {9.5, 15.5}});
        break;
    case Glyph::Report:
        // A sheet with its corner folded, and what is written on it.
        pen.line({{11.5, 3.5}, {5.5, 3.5}, {5.5, 16.5}, {14.5, 16.5}, {14.5, 6.5}, {11.5, 3.5}});
        pen.line({{8., 9.5}, {12., 9.5}});
        pen.line({{8., 13.}, {12., 13.}});
        break;
    case Glyph::ChevronUp:
        pen.line({{5.75, 12.25}, {10., 8.}, {14.25, 12.25}});
        break;
    case Glyph::ChevronDown:
        pen.line({{5.75, 7.75}, {10., 12.}, {14.25, 7.75}});
        break;
    case Glyph::ChevronLeft:
        pen.line({{12.25, 5.75}, {8., 10.}, {12.25, 14.25}});
        break;
    case Glyph::ChevronRight:
        pen.line({{7.75, 5.75}, {12., 10.}, {7.75, 14.25}});
        break;
    case Glyph::Search:
        pen.circle({8.75, 8.75}, 4.75);
        pen.line({{12.25, 12.25}, {16., 16.}});
        break;
    case Glyph::Warning:
        drawWarning(pen);
        break;
    case Glyph::Gear:
        drawGear(pen);
        break;
    case Glyph::Refresh:
        pen.arc({10., 10.}, 5.5, 60., 280.);
        pen.fill({{11.5, 2.2}, {16.2, 5.2}, {11.5, 8.2}});
        break;
    case Glyph::Tick:
        pen.line({{4.5, 10.5}, {8.5, 14.5}, {15.5, 6.}});
        break;
    case Glyph::Dash:
        pen.line({{5., 10.}, {15., 10.}});
        break;
    case Glyph::SliderCapLine:
        pen.bar(8., 0., 4., glyphSide);
        break;
    default:
        break;
    }
}

void drawOnGrid(GlyphPen &pen, Glyph glyph)
{
    switch (glyph) {
    case Glyph::Play:
    case Glyph::Pause:
    case Glyph::Stop:
    case Glyph::Previous:
    case Glyph::Next:
        return drawTransport(pen, glyph);
    case Glyph::OrderSequential:
    case Glyph::OrderRandom:
        return drawOrder(pen, glyph == Glyph::OrderRandom);
    case Glyph::RepeatOff:
    case Glyph::RepeatList:
    case Glyph::RepeatTrack:
        return drawRepeat(pen, glyph);
    case Glyph::VolumeMuted:
        return drawSpeaker(pen, 0, true);
    case Glyph::VolumeLow:
    case Glyph::VolumeMiddle:
    case Glyph::VolumeHigh:
        return drawSpeaker(pen, 1 + static_cast<int>(glyph) - static_cast<int>(Glyph::VolumeLow), false);
    case Glyph::Minimise:
    case Glyph::Maximise:
    case Glyph::Restore:
    case Glyph::Close:
        return drawWindowSign(pen, glyph);
    default:
        return drawOther(pen, glyph);
    }
}

} // namespace

void drawGlyph(QPainter &painter, Glyph glyph, const QRectF &place, const QColor &colour)
{
    const PixelGrid pixels(painter);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(pixels.x(place.x()), pixels.y(place.y()));
    painter.scale(place.width() / glyphSide, place.height() / glyphSide);
    painter.setPen(QPen(colour, strokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    GlyphPen pen(painter, colour);
    drawOnGrid(pen, glyph);
    painter.restore();
}

Glyph volumeGlyph(int percent)
{
    constexpr int low = 34;
    constexpr int middle = 67;
    if (percent <= 0)
        return Glyph::VolumeMuted;
    return percent < low ? Glyph::VolumeLow : percent < middle ? Glyph::VolumeMiddle : Glyph::VolumeHigh;
}
