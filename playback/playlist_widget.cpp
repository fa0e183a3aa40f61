#include "playback/playlist_widget.h"

#include "playback/playlist_delegate.h"
#include "playback/playlist_item.h"
#include "playback/playlist_roles.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int leastHeight = 110;

PlaylistItem *ownItem(QListWidgetItem *item)
{
    return dynamic_cast<PlaylistItem *>(item);
}

} // namespace

PlaylistWidget::PlaylistWidget(QWidget *parent)
    : QListWidget(parent)
{
    setSelectionMode(ExtendedSelection);
    setAlternatingRowColors(false);
    setMinimumHeight(leastHeight);
    setUniformItemSizes(true);
    setItemDelegate(new PlaylistDelegate(this));
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setDragDropMode(InternalMove);
    setDefaultDropAction(Qt::MoveAction);
    setDragEnabled(true);
    setDropIndicatorShown(true);
    viewport()->setAcceptDrops(true);
    viewport()->setAttribute(Qt::WA_Hover); // rows show what the pointer is on
    connect(model(), &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        m_index.clear();
        m_highlighted = nullptr;
    });
}

PlaylistWidget::~PlaylistWidget()
{
    // The rows and their model outlive this part of the object. They must not look for the index then, nor
    // tell of their end.
    m_index.clear();
    model()->disconnect(this);
}

// The base class lets an input method in where a row can be edited. Here it is what finds a title in a script
// that no key has: the text it gives is searched for like a typed one.

void PlaylistWidget::focusInEvent(QFocusEvent *event)
{
    QListWidget::focusInEvent(event);
    setAttribute(Qt::WA_InputMethodEnabled);
}

void PlaylistWidget::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListWidget::currentChanged(current, previous);
    setAttribute(Qt::WA_InputMethodEnabled);
}

void PlaylistWidget::rowsInserted(const QModelIndex &parent, int start, int end)
{
    for (int row = start; row <= end; ++row) {
        if (PlaylistItem *own = ownItem(item(row)))
            m_index.add(*own);
    }
    QListWidget::rowsInserted(parent, start, end);
}

void PlaylistWidget::rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end)
{
    for (int row = start; row <= end; ++row) {
        // A row that is being deleted is no such row any more, and has left the index by itself.
        PlaylistItem *own = ownItem(item(row));
        if (own)
            m_index.remove(*own);
        if (static_cast<QListWidgetItem *>(m_highlighted) == item(row)) {
            if (own)
                own->setHighlighted(false);
            m_highlighted = nullptr;
        }
    }
    QListWidget::rowsAboutToBeRemoved(parent, start, end);
}

PlaylistEntry PlaylistWidget::entryOf(const QListWidgetItem &item)
{
    if (const auto *own = dynamic_cast<const PlaylistItem *>(&item))
        return own->entry();
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

QList<PlaylistEntry> PlaylistWidget::entries() const
{
    QList<PlaylistEntry> all;
    all.reserve(count());
    for (int row = 0; row < count(); ++row)
        all.append(entryOf(*item(row)));
    return all;
}

QStringList PlaylistWidget::savedRows() const
{
    QStringList saved;
    saved.reserve(count());
    for (int row = 0; row < count(); ++row) {
        if (const auto *own = dynamic_cast<const PlaylistItem *>(item(row)))
            saved.append(own->saved());
    }
    return saved;
}

RowRuns PlaylistWidget::selectedRuns() const
{
    RowRuns runs;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        if (range.isValid())
            runs.append(RowRun{range.top(), range.bottom() - range.top() + 1});
    }
    std::sort(runs.begin(), runs.end(), [](const RowRun &a, const RowRun &b) { return a.first < b.first; });
    RowRuns merged;
    for (const RowRun &run : std::as_const(runs)) {
        const int from =
            merged.isEmpty() ? run.first : std::max(run.first, merged.last().first + merged.last().count);
        const int rows = run.first + run.count - from;
        if (rows < 1)
            continue;
        if (!merged.isEmpty() && merged.last().first + merged.last().count == from)
            merged.last().count += rows;
        else
            merged.append(RowRun{from, rows});
    }
    return merged;
}

int PlaylistWidget::firstRowOf(const QString &path,
                               const std::function<bool(const PlaylistItem &)> &accepts) const
{
    int first = -1;
    for (const PlaylistItem *each = m_index.anyOfPath(path); each; each = PlaylistIndex::nextOfPath(*each)) {
        if (!accepts(*each))
            continue;
        const int found = row(each);
        if (first < 0 || found < first)
            first = found;
    }
    return first;
}

int PlaylistWidget::rowOfKey(const QString &key) const
{
    constexpr QChar separator(0x1f);
    // The path is what stands before the separator; a name may hold that character itself.
    for (qsizetype end = key.indexOf(separator); end >= 0; end = key.indexOf(separator, end + 1)) {
        const int found = firstRowOf(
            key.left(end), [&key](const PlaylistItem &each) { return rowKey(each.entry()) == key; });
        if (found >= 0)
            return found;
    }
    return -1;
}

int PlaylistWidget::rowOfPath(const QString &path) const
{
    return firstRowOf(path, [](const PlaylistItem &) { return true; });
}

void PlaylistWidget::highlight(int row)
{
    PlaylistItem *chosen = ownItem(item(row));
    if (chosen == m_highlighted)
        return;
    // The view is told to repaint and not that data has changed, which would lay out every row again.
    if (m_highlighted) {
        m_highlighted->setHighlighted(false);
        update(indexFromItem(m_highlighted));
    }
    m_highlighted = chosen;
    if (m_highlighted) {
        m_highlighted->setHighlighted(true);
        update(indexFromItem(m_highlighted));
    }
}

int PlaylistWidget::highlightedRow() const
{
    return m_highlighted ? row(m_highlighted) : -1;
}

void PlaylistWidget::showRow(int row)
{
    // It alone: a row that was chosen before would go with it, moved or removed.
    setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
    if (const QListWidgetItem *found = item(row))
        scrollToItem(found, PositionAtCenter);
}
