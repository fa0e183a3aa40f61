/// \file
/// How a row of the playlist is drawn.
#pragma once

#include <QColor>
#include <QFont>
#include <QHash>
#include <QStyledItemDelegate>

/// The colours of the rows; the defaults are those of the dark look.
struct PlaylistColours
{
    QColor text{0xCF, 0xC9, 0xBF};
    QColor textRaised{0xED, 0xEA, 0xE3}; ///< of a hovered or selected row
    QColor tag{0x8A, 0x85, 0x7C};
    QColor tagRaised{0xB9, 0xB3,
                     0xA8}; ///< on a selected row or on the playing one, where the other would not read
    QColor hover{0x18, 0x18, 0x1E};
    QColor selected{0x1F, 0x1F, 0x26};
    QColor playingPlate{0xC9, 0xA9, 0x6E, 33}; ///< a wash in the dark look, a dark plate in the light one
    QColor playingHover{0xC9, 0xA9, 0x6E, 56};
    QColor playingSelected{0x1F, 0x1F, 0x26};
    QColor playingTag{0xB9, 0xB3, 0xA8};
    QColor focus{0x2C, 0x2C, 0x35}; ///< around a current row that is not selected
    QColor ring{0xE0, 0xC8,
                0x96}; ///< around the current row while keys lead, which is the list's property "keyFocus"
};

/// The rows of the light look: the playing row is printed in reverse, since its amber cannot be read on
/// white.
PlaylistColours lightPlaylistColours();

/// Rows of one height: text elided at its end, the file's format behind it, the playing row amber with a bar
/// at its leading edge. Mirrors with the view.
class PlaylistDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int rowHeight = 32;

    explicit PlaylistDelegate(QObject *parent = nullptr);

    void setColours(const PlaylistColours &colours) { m_colours = colours; }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    int widthOf(const QString &tag) const;

    PlaylistColours m_colours;
    QFont m_tagFont;
    mutable QHash<QString, int> m_tagWidths; ///< in pixels
};
