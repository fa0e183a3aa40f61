/// \file
/// Which rows play a path, without a look at every row.
#pragma once

#include <QHash>
#include <QString>

class PlaylistItem;

/// Kept beside the list and true through every change of it: rows enter and leave with the list, and tell of
/// a changed path themselves. Rows of one path are chained in no order. GUI thread.
class PlaylistIndex
{
public:
    ~PlaylistIndex() { clear(); }

    void add(PlaylistItem &item);
    /// Nothing happens for a row that is not in.
    void remove(PlaylistItem &item);
    void clear();
    void reserve(qsizetype rows) { m_first.reserve(rows); }

    /// Any row of the path, or null; nextOfPath() leads to the others.
    PlaylistItem *anyOfPath(const QString &path) const { return m_first.value(path); }
    static PlaylistItem *nextOfPath(const PlaylistItem &item);

    bool hasPath(const QString &path) const { return m_first.contains(path); }
    /// Whether the path counts as listed: see PlaylistItem::countsAsListed().
    bool isListed(const QString &path) const;

private:
    QHash<QString, PlaylistItem *> m_first; ///< the head of each path's chain
};
