// Rows on the move inside the list, and files that are dropped on it.
#include "playback/playlist_widget.h"

#include "playback/add_plan.h"
#include "playback/playlist_item.h"

#include <QDropEvent>
#include <QHash>
#include <QMimeData>
#include <algorithm>

namespace {

/// More dragged rows than this are moved in one go: the base class moves them one by one, and each of them
/// visits all others.
constexpr int mostRowsMovedSingly = 100;

/// The order that made one sequence of rows out of the other; both hold the same rows.
RowRuns orderBetween(const QList<const QListWidgetItem *> &before,
                     const QList<const QListWidgetItem *> &after)
{
    QHash<const QListWidgetItem *, int> oldRows;
    oldRows.reserve(before.size());
    for (int row = 0; row < before.size(); ++row)
        oldRows.insert(before.at(row), row);
    RowRuns order;
    for (const QListWidgetItem *item : after)
        appendRow(order, oldRows.value(item, -1));
    return order;
}

} // namespace

void PlaylistWidget::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls() && event->source() != this) {
        event->acceptProposedAction();
        return;
    }
    QListWidget::dragEnterEvent(event);
}

void PlaylistWidget::dragMoveEvent(QDragMoveEvent *event)
{
    if (event->mimeData()->hasUrls() && event->source() != this) {
        event->acceptProposedAction();
        return;
    }
    QListWidget::dragMoveEvent(event);
}

int PlaylistWidget::dropRow(const QDropEvent &event) const
{
    const QPoint point = event.position().toPoint();
    const QModelIndex under = indexAt(point);
    if (!under.isValid())
        return count();
    return under.row() + (point.y() < visualRect(under).center().y() ? 0 : 1);
}

void PlaylistWidget::dropEvent(QDropEvent *event)
{
    if (event->mimeData()->hasUrls() && event->source() != this) {
        const QStringList paths = localFiles(event->mimeData()->urls());
        event->accept();
        if (!paths.isEmpty() && onFilesDropped)
            onFilesDropped(paths);
        return;
    }
    const RowRuns moved = selectedRuns();
    if (event->source() == this && rowsIn(moved) > mostRowsMovedSingly) {
        arrange(blockMove(moved, dropRow(*event), count()));
        // Accepted beforehand tells the base class that the rows have been moved.
        event->setDropAction(Qt::MoveAction);
        event->accept();
        QListWidget::dropEvent(event);
        return;
    }
    const auto sequence = [this] {
        QList<const QListWidgetItem *> rows;
        rows.reserve(count());
        for (int row = 0; row < count(); ++row)
            rows.append(item(row));
        return rows;
    };
    const QList<const QListWidgetItem *> before = sequence();
    QListWidget::dropEvent(event);
    const QList<const QListWidgetItem *> after = sequence();
    if (before != after && before.size() == after.size())
        m_orderChange = orderBetween(before, after);
}

QList<quint64> PlaylistWidget::orderSignature() const
{
    // A number for each row's key instead of the keys themselves, which would be tens of megabytes.
    QList<quint64> signature;
    signature.reserve(count());
    for (int row = 0; row < count(); ++row) {
        const PlaylistEntry entry = entryAt(row);
        signature.append(qHashMulti(0, entry.path, entry.cuePath, entry.isoPath, entry.track));
    }
    return signature;
}

void PlaylistWidget::startDrag(Qt::DropActions supportedActions)
{
    const QList<quint64> before = orderSignature();
    m_orderChange.reset();
    if (onDragStarted)
        onDragStarted();
    runDrag(supportedActions);
    // Rows that came or went meanwhile, without a drop, are no change of order.
    if (!m_orderChange && count() != before.size())
        return;
    if (orderSignature() != before && onOrderChanged)
        onOrderChanged();
}

void PlaylistWidget::runDrag(Qt::DropActions supportedActions)
{
    QListWidget::startDrag(supportedActions);
}

QMimeData *PlaylistWidget::mimeData(const QList<QListWidgetItem *> &) const
{
    // Rows move by their place; writing out a hundred thousand of them would only delay the drag.
    auto *moved = new QMimeData;
    const QStringList types = mimeTypes();
    if (!types.isEmpty())
        moved->setData(types.first(), {});
    return moved;
}
