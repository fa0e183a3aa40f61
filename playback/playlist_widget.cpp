#include "playback/playlist_widget.h"

#include "playback/playlist_roles.h"

namespace {

constexpr int leastHeight = 110;
constexpr QColor playingColour(245, 166, 35);

} // namespace

PlaylistWidget::PlaylistWidget(QWidget *parent)
    : QListWidget(parent)
{
    setSelectionMode(ExtendedSelection);
    setAlternatingRowColors(false);
    setMinimumHeight(leastHeight);
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void PlaylistWidget::appendEntry(const PlaylistEntry &entry, const QString &toolTip)
{
    auto *item = new QListWidgetItem(entry.text, this);
    item->setToolTip(toolTip.isEmpty() ? entry.path : toolTip);
    item->setData(playlist_role::path, entry.path);
    if (!entry.isContainerTrack())
        return;
    item->setData(playlist_role::cuePath, entry.cuePath);
    item->setData(playlist_role::track, entry.track);
    item->setData(playlist_role::startSec, entry.startSec);
    item->setData(playlist_role::endSec, entry.endSec);
    if (!entry.isoPath.isEmpty())
        item->setData(playlist_role::isoPath, entry.isoPath);
}

PlaylistEntry PlaylistWidget::entryOf(const QListWidgetItem &item)
{
    return {item.text(),
            item.data(playlist_role::path).toString(),
            item.data(playlist_role::cuePath).toString(),
            item.data(playlist_role::isoPath).toString(),
            item.data(playlist_role::track).toInt(),
            item.data(playlist_role::startSec).toDouble(),
            item.data(playlist_role::endSec).toDouble()};
}

PlaylistEntry PlaylistWidget::entryAt(int row) const
{
    const QListWidgetItem *found = item(row);
    return found ? entryOf(*found) : PlaylistEntry();
}

int PlaylistWidget::rowOfKey(const QString &key) const
{
    for (int row = 0; row < count(); ++row) {
        if (rowKey(entryAt(row)) == key)
            return row;
    }
    return -1;
}

int PlaylistWidget::rowOfPath(const QString &path) const
{
    for (int row = 0; row < count(); ++row) {
        if (item(row)->data(playlist_role::path).toString() == path)
            return row;
    }
    return -1;
}

void PlaylistWidget::highlight(int row)
{
    m_highlighted = hasRow(row) ? row : -1;
    for (int each = 0; each < count(); ++each) {
        const bool playing = each == m_highlighted;
        QFont rowFont = font();
        rowFont.setWeight(playing ? QFont::Bold : QFont::Normal);
        item(each)->setFont(rowFont);
        item(each)->setData(Qt::ForegroundRole, playing ? QVariant(QBrush(playingColour)) : QVariant());
    }
}

void PlaylistWidget::showRow(int row)
{
    setCurrentRow(row);
    if (const QListWidgetItem *found = item(row))
        scrollToItem(found, PositionAtCenter);
}
