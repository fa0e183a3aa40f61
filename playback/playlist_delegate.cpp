#include "playback/playlist_delegate.h"

#include "playback/playlist_roles.h"
#include "playback/row_properties.h"

#include <QFontMetrics>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int sidePadding = 12;
constexpr int tagGap = 8;
constexpr int barWidth = 2;
constexpr int tagPixels = 11;
constexpr qsizetype mostTagWidths = 100;
constexpr double tagTracking = 0.08; // of its size

/// A part of the row's rectangle, counted from the leading edge.
QRect part(const QStyleOptionViewItem &option, int from, int width)
{
    const QRect leftToRight(option.rect.left() + from, option.rect.top(), width, option.rect.height());
    return QStyle::visualRect(option.direction, option.rect, leftToRight);
}

} // namespace

PlaylistColours lightPlaylistColours()
{
    const QColor plate(43, 39, 32);
    PlaylistColours colours;
    colours.text = QColor(0x39, 0x36, 0x30);
    colours.textRaised = QColor(0x1F, 0x1D, 0x19);
    colours.tag = QColor(0x6C, 0x66, 0x5D);
    colours.tagRaised = QColor(0x4C, 0x48, 0x40);
    colours.hover = QColor(0xFF, 0xFF, 0xFF);
    colours.selected = QColor(0xDC, 0xD9, 0xD2);
    colours.playingPlate = plate;
    colours.playingHover = plate.lighter(120);
    colours.playingSelected = plate.lighter(140);
    colours.playingTag = QColor(201, 194, 182);
    colours.focus = QColor(0xD3, 0xCF, 0xC7);
    return colours;
}

PlaylistDelegate::PlaylistDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
    m_tagFont.setFamilies({u"DejaVu Sans Mono"_s});
    m_tagFont.setStyleHint(QFont::Monospace);
    m_tagFont.setPixelSize(tagPixels);
    m_tagFont.setLetterSpacing(QFont::AbsoluteSpacing, tagPixels * tagTracking);
}

QSize PlaylistDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {0, rowHeight};
}

int PlaylistDelegate::widthOf(const QString &tag) const
{
    if (tag.isEmpty())
        return 0;
    const auto known = m_tagWidths.constFind(tag);
    if (known != m_tagWidths.constEnd())
        return *known;
    // There are few formats; names that are none must not fill the memory.
    if (m_tagWidths.size() >= mostTagWidths)
        m_tagWidths.clear();
    return *m_tagWidths.insert(tag, QFontMetrics(m_tagFont).horizontalAdvance(tag));
}

void PlaylistDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    const QVariant foreground = index.data(Qt::ForegroundRole);
    const bool playing = foreground.isValid();
    const bool selected = option.state & QStyle::State_Selected;
    const bool hovered = option.state & QStyle::State_MouseOver;

    if (playing)
        painter->fillRect(option.rect, selected  ? m_colours.playingSelected
                                       : hovered ? m_colours.playingHover
                                                 : m_colours.playingPlate);
    else if (selected || hovered)
        painter->fillRect(option.rect, selected ? m_colours.selected : m_colours.hover);
    const QColor amber = playing ? foreground.value<QBrush>().color() : QColor();
    if (playing)
        painter->fillRect(part(option, 0, barWidth), amber);

    const QString tag = formatTag(index.data(playlist_role::path).toString());
    const int tagWidth = widthOf(tag);
    const int inner = option.rect.width() - 2 * sidePadding;
    const int tagSpace = tag.isEmpty() ? 0 : tagWidth + tagGap;

    // The interface decides the side; the text runs as its own script does.
    const Qt::Alignment leading =
        QStyle::visualAlignment(option.direction, Qt::AlignLeft) | Qt::AlignAbsolute | Qt::AlignVCenter;
    QFont font = option.font;
    font.setWeight(playing ? QFont::Bold : QFont::Normal);
    painter->setFont(font);
    painter->setPen(playing ? amber : selected || hovered ? m_colours.textRaised : m_colours.text);
    // A break in a title is shown as a blank: the row has one line.
    const QString text = index.data(Qt::DisplayRole).toString().replace(u'\n', u' ');
    const int textWidth = std::max(0, inner - tagSpace);
    const Qt::LayoutDirection interfaceDirection = painter->layoutDirection();
    // "01 Aria.flac" must not read "Aria.flac 01" in a mirrored interface.
    painter->setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter->drawText(part(option, sidePadding, textWidth), static_cast<int>(leading) | Qt::TextSingleLine,
                      QFontMetrics(font).elidedText(text, Qt::ElideRight, textWidth));
    painter->setLayoutDirection(interfaceDirection);

    if (tagWidth > 0 && tagWidth < inner) {
        painter->setFont(m_tagFont);
        painter->setPen(playing ? m_colours.playingTag : selected ? m_colours.tagRaised : m_colours.tag);
        painter->drawText(part(option, sidePadding + inner - tagWidth, tagWidth),
                          static_cast<int>(leading) | Qt::TextSingleLine, tag);
    }
    if (!(option.state & QStyle::State_HasFocus))
        return;
    if (option.widget && option.widget->property("keyFocus").toBool()) {
        constexpr int ringWidth = 2;
        painter->setPen(QPen(m_colours.ring, ringWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
    } else if (!selected) {
        painter->setPen(QPen(m_colours.focus, 0));
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }
}
