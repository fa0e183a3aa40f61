/// \file
/// The playlist: view and model in one.
#pragma once

#include "playback/playlist_entry.h"

#include <QListWidget>

/// The rows hold their values under the roles of playlist_roles.h; there is no second list behind it.
class PlaylistWidget final : public QListWidget
{
    Q_OBJECT

public:
    explicit PlaylistWidget(QWidget *parent = nullptr);

    /// \param toolTip empty: the path
    void appendEntry(const PlaylistEntry &entry, const QString &toolTip = {});
    /// An empty entry for a row that does not exist.
    PlaylistEntry entryAt(int row) const;
    static PlaylistEntry entryOf(const QListWidgetItem &item);

    /// The first row with this key or this path, -1 when there is none.
    int rowOfKey(const QString &key) const;
    int rowOfPath(const QString &path) const;
    bool hasRow(int row) const { return row >= 0 && row < count(); }

    /// Prints one row in bold amber, and all others plainly; -1 for none.
    void highlight(int row);
    int highlightedRow() const { return m_highlighted; }
    /// Makes a row the current one and brings it to the middle.
    void showRow(int row);

private:
    int m_highlighted = -1;
};
