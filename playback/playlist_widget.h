/// \file
/// The playlist: view and model in one.
#pragma once

#include "playback/playlist_entry.h"
#include "playback/playlist_index.h"
#include "playback/row_runs.h"

#include <QListWidget>
#include <functional>
#include <optional>

class PlaylistItem;

/// The rows hold their values under the roles of playlist_roles.h; there is no second list behind it, only an
/// index by path. Built for rows in the hundreds of thousands: what touches many rows at once changes them
/// unseen and lays the list out once. GUI thread.
class PlaylistWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit PlaylistWidget(QWidget *parent = nullptr);
    ~PlaylistWidget() override;

    // What the owner is told; each may be empty.
    std::function<void(const QStringList &paths)> onFilesDropped; ///< from outside of this list
    std::function<void()> onDragStarted;
    std::function<void()> onOrderChanged; ///< after a drag that left another order than before

    // ── rows ──
    /// \param toolTip empty: the path
    void appendEntry(const PlaylistEntry &entry, const QString &toolTip = {});
    void appendEntries(const QList<PlaylistEntry> &entries);
    /// A plain row a path, with the file's name as its text.
    void appendFiles(const QStringList &paths);
    /// \param rows where the entries are to stand afterwards; as many as there are entries, and a set of rows
    /// of
    ///             the list that comes of it
    void insertEntries(const RowRuns &rows, const QList<PlaylistEntry> &entries);
    /// Deletes a set of rows of this list and returns what they were.
    QList<PlaylistEntry> removeEntries(const RowRuns &rows);
    /// \param order an order of exactly the rows of this list
    void arrange(const RowRuns &order);
    /// Takes a row out and puts it in at \p to; it becomes the current row and is scrolled to. Both rows
    /// exist.
    void moveEntry(int from, int to);
    /// The change of order that the last drag, arrange() or moveEntry() made, once; none when there was none.
    std::optional<RowRuns> takeOrderChange();

    /// An empty entry for a row that does not exist.
    PlaylistEntry entryAt(int row) const;
    static PlaylistEntry entryOf(const QListWidgetItem &item);
    QList<PlaylistEntry> entries() const;
    /// A text a row, for the settings.
    QStringList savedRows() const;
    bool hasRow(int row) const { return row >= 0 && row < count(); }
    RowRuns selectedRuns() const;

    // ── looking up, at the cost of the rows that share a path ──
    /// The first row with this key or this path, -1 when there is none.
    int rowOfKey(const QString &key) const;
    int rowOfPath(const QString &path) const;
    const PlaylistIndex &index() const { return m_index; }

    // ── looks ──
    /// Prints one row in bold amber, and all others plainly; -1 for none.
    void highlight(int row);
    int highlightedRow() const;
    /// Makes a row the current one and brings it to the middle.
    void showRow(int row);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void startDrag(Qt::DropActions supportedActions) override;
    QMimeData *mimeData(const QList<QListWidgetItem *> &items) const override;
    /// The drag itself; returns when it has ended.
    virtual void runDrag(Qt::DropActions supportedActions);

    void focusInEvent(QFocusEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void rowsInserted(const QModelIndex &parent, int start, int end) override;
    void rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end) override;

private:
    struct Marks; // what a rebuilt view has lost

    void appendItems(const QList<QListWidgetItem *> &items);
    void takeOut(const RowRuns &rows, int gone);
    void rebuild(const QList<QListWidgetItem *> &items);
    Marks takeMarks() const;
    void putMarks(const Marks &marks);
    int dropRow(const QDropEvent &event) const;
    QList<quint64> orderSignature() const;
    int firstRowOf(const QString &path, const std::function<bool(const PlaylistItem &)> &accepts) const;

    PlaylistIndex m_index;
    PlaylistItem *m_highlighted = nullptr;
    std::optional<RowRuns> m_orderChange;
};
