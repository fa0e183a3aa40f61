// The pictures of the sheet.
#include "ui/glyph_drawing.h"
#include "ui/theme.h"

#include <QIconEngine>
#include <QIconEnginePlugin>
#include <QPainter>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace {

/// A picture of the sheet: glyph and colour by name, "tick-glass.kelpglyph".
struct SheetGlyph
{
    QLatin1StringView name;
    Glyph glyph;
    QColor (*colour)();
};

constexpr SheetGlyph sheetGlyphs[] = {
    {"down-ink"_L1, Glyph::ChevronDown, theme::ink3},   {"down-off"_L1, Glyph::ChevronDown, theme::off},
    {"up-ink"_L1, Glyph::ChevronUp, theme::ink3},       {"up-off"_L1, Glyph::ChevronUp, theme::off},
    {"right-ink"_L1, Glyph::ChevronRight, theme::ink3}, {"left-ink"_L1, Glyph::ChevronLeft, theme::ink3},
    {"tick-glass"_L1, Glyph::Tick, theme::glass},       {"tick-ink"_L1, Glyph::Tick, theme::accentInk},
    {"tick-off"_L1, Glyph::Tick, theme::off},           {"dash-glass"_L1, Glyph::Dash, theme::glass},
    {"close-ink"_L1, Glyph::Close, theme::ink3},        {"cap-line"_L1, Glyph::SliderCapLine, theme::chassis},
};

class SheetGlyphEngine final : public QIconEngine
{
public:
    explicit SheetGlyphEngine(const SheetGlyph &picture)
        : m_picture(picture)
    {
    }

    void addFile(const QString &, const QSize &, QIcon::Mode, QIcon::State) override {}
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        drawGlyph(*painter, m_picture.glyph, QRectF(rect), m_picture.colour());
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    QIconEngine *clone() const override { return new SheetGlyphEngine(*this); }

private:
    SheetGlyph m_picture;
};

} // namespace

/// The sheet names its pictures as files; this draws them where Qt would load them.
class KelpGlyphPlugin final : public QIconEnginePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QIconEngineFactoryInterface_iid FILE "glyph_plugin.json")

public:
    QIconEngine *create(const QString &fileName) override
    {
        const QString name = fileName.section(u'/', -1).section(u'.', 0, 0);
        for (const SheetGlyph &picture : sheetGlyphs) {
            if (name == picture.name)
                return new SheetGlyphEngine(picture);
        }
        return nullptr;
    }
};

#include "sheet_glyphs.moc"
