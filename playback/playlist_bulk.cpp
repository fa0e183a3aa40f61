// Many rows at once. The model tells its view of every single row that comes or goes, and each row that the
// view marks (hidden ones, selected ones) is visited every time: both are kept out of the way here, and the
// view looks at the outcome once.
#include "playback/playlist_widget.h"

#include "playback/playlist_item.h"

#include <QScrollBar>
#include <QSet>
#include <QSignalBlocker>

namespace {

/// So few changes go the ordinary way, which keeps everything else of the view as it is.
constexpr int mostSingleChanges = 32;

} // namespace

struct PlaylistWidget::Marks
{
    QSet<const QListWidgetItem *> hidden;
    QSet<const QListWidgetItem *> selected;
    const QListWidgetItem *current = nullptr;
    int scroll = 0;
};

PlaylistWidget::Marks PlaylistWidget::takeMarks() const
{
    Marks marks;
    for (int row = 0; row < count(); ++row) {
        if (isRowHidden(row))
            marks.hidden.insert(item(row));
    }
    for (const RowRun &run : selectedRuns()) {
        for (int row = run.first; row < run.first + run.count; ++row)
            marks.selected.insert(item(row));
    }
    marks.current = currentItem();
    marks.scroll = verticalScrollBar()->value();
    return marks;
}

void PlaylistWidget::putMarks(const Marks &marks)
{
    RowRuns selected;
    if (!marks.hidden.isEmpty() || !marks.selected.isEmpty()) {
        for (int row = 0; row < count(); ++row) {
            if (marks.hidden.contains(item(row)))
                setRowHidden(row, true);
            if (marks.selected.contains(item(row)))
                appendRow(selected, row);
        }
    }
    QItemSelection selection;
    for (const RowRun &run : std::as_const(selected))
        selection.append({model()->index(run.first, 0), model()->index(run.first + run.count - 1, 0)});
    if (marks.current)
        selectionModel()->setCurrentIndex(indexFromItem(marks.current), QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::Select);
    doItemsLayout();
    verticalScrollBar()->setValue(marks.scroll);
}

void PlaylistWidget::rebuild(const QList<QListWidgetItem *> &items)
{
    const Marks marks = takeMarks();
    reset();
    {
        const QSignalBlocker unseen(model());
        for (int row = count() - 1; row >= 0; --row)
            takeItem(row);
        for (QListWidgetItem *each : items)
            addItem(each);
    }
    reset();
    putMarks(marks);
}

void PlaylistWidget::appendItems(const QList<QListWidgetItem *> &items)
{
    if (items.isEmpty())
        return;
    const int first = count();
    if (items.size() <= mostSingleChanges) {
        for (QListWidgetItem *each : items)
            addItem(each);
        return;
    }
    bool anyHidden = false;
    for (int row = 0; row < first && !anyHidden; ++row)
        anyHidden = isRowHidden(row);
    if (anyHidden) {
        QList<QListWidgetItem *> all;
        all.reserve(first + items.size());
        for (int row = 0; row < first; ++row)
            all.append(item(row));
        all.append(items);
        for (qsizetype i = first; i < all.size(); ++i)
            m_index.add(*static_cast<PlaylistItem *>(all.at(i)));
        rebuild(all);
        return;
    }
    {
        const QSignalBlocker unseen(model());
        for (QListWidgetItem *each : items)
            addItem(each);
    }
    rowsInserted({}, first, count() - 1);
}

void PlaylistWidget::appendEntry(const PlaylistEntry &entry, const QString &toolTip)
{
    addItem(new PlaylistItem(entry, toolTip));
}

void PlaylistWidget::appendEntries(const QList<PlaylistEntry> &entries)
{
    QList<QListWidgetItem *> items;
    items.reserve(entries.size());
    for (const PlaylistEntry &entry : entries)
        items.append(new PlaylistItem(entry));
    m_index.reserve(count() + entries.size());
    appendItems(items);
}

void PlaylistWidget::appendFiles(const QStringList &paths)
{
    QList<QListWidgetItem *> items;
    items.reserve(paths.size());
    PlaylistEntry entry;
    for (const QString &path : paths) {
        entry.path = path;
        items.append(new PlaylistItem(entry));
    }
    m_index.reserve(count() + paths.size());
    appendItems(items);
}

void PlaylistWidget::insertEntries(const RowRuns &rows, const QList<PlaylistEntry> &entries)
{
    if (rows.size() == 1 && rows.first().first == count()) {
        appendEntries(entries);
        return;
    }
    auto next = entries.begin();
    if (entries.size() <= mostSingleChanges) {
        for (const RowRun &run : rows) {
            for (int row = run.first; row < run.first + run.count; ++row)
                insertItem(row, new PlaylistItem(*next++));
        }
        return;
    }
    QList<QListWidgetItem *> all;
    all.reserve(count() + entries.size());
    int old = 0;
    for (const RowRun &run : rows) {
        while (all.size() < run.first)
            all.append(item(old++));
        for (int i = 0; i < run.count; ++i) {
            auto *added = new PlaylistItem(*next++);
            m_index.add(*added);
            all.append(added);
        }
    }
    while (old < count())
        all.append(item(old++));
    rebuild(all);
}

QList<PlaylistEntry> PlaylistWidget::removeEntries(const RowRuns &rows)
{
    QList<PlaylistEntry> removed;
    const int gone = rowsIn(rows);
    removed.reserve(gone);
    for (const RowRun &run : rows) {
        for (int row = run.first; row < run.first + run.count; ++row)
            removed.append(entryAt(row));
    }
    if (gone == count()) {
        clear();
        return removed;
    }
    const bool currentGoes = currentRow() >= 0 && rowAfterRemove(rows, currentRow()) < 0;
    takeOut(rows, gone);
    if (currentGoes)
        setCurrentRow(std::min(rows.first().first, count() - 1));
    return removed;
}

void PlaylistWidget::takeOut(const RowRuns &rows, int gone)
{
    if (gone <= mostSingleChanges) {
        for (auto run = rows.rbegin(); run != rows.rend(); ++run) {
            for (int row = run->first + run->count - 1; row >= run->first; --row)
                delete takeItem(row);
        }
        return;
    }
    QList<QListWidgetItem *> kept;
    QList<QListWidgetItem *> dropped;
    kept.reserve(count() - gone);
    dropped.reserve(gone);
    int row = 0;
    for (const RowRun &run : rows) {
        while (row < run.first)
            kept.append(item(row++));
        for (; row < run.first + run.count; ++row)
            dropped.append(item(row));
    }
    while (row < count())
        kept.append(item(row++));
    // What is taken out of the list unseen is not taken out of the index either.
    for (QListWidgetItem *each : std::as_const(dropped)) {
        m_index.remove(*static_cast<PlaylistItem *>(each));
        if (m_highlighted == each)
            m_highlighted = nullptr;
    }
    rebuild(kept);
    qDeleteAll(dropped);
}

void PlaylistWidget::arrange(const RowRuns &order)
{
    if (isUnchangedOrder(order))
        return;
    QList<QListWidgetItem *> arranged;
    arranged.reserve(count());
    for (const RowRun &run : order) {
        for (int row = run.first; row < run.first + run.count; ++row)
            arranged.append(item(row));
    }
    rebuild(arranged);
    m_orderChange = order;
}

void PlaylistWidget::moveEntry(int from, int to)
{
    const RowRuns order = blockMove({{from, 1}}, to > from ? to + 1 : to, count());
    const bool lit = highlightedRow() == from;
    insertItem(to, takeItem(from));
    setCurrentRow(to);
    scrollToItem(item(to));
    if (lit)
        highlight(to);
    m_orderChange = order;
}

std::optional<RowRuns> PlaylistWidget::takeOrderChange()
{
    return std::exchange(m_orderChange, std::nullopt);
}
