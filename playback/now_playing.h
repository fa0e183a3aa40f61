/// \file
/// What the display says of a track.
#pragma once

#include "playback/playlist_entry.h"
#include "tags/tag_summary.h"

#include <QString>
#include <optional>

struct NowPlayingFacts
{
    int row = -1; ///< counted from 0; -1: there is no usable row, and the rest is not looked at
    PlaylistEntry entry;
    TagSummary summary;              ///< of the entry's path
    int disc = 0;                    ///< 1 … 99; 0: none
    std::optional<qint64> playCount; ///< of the entry's path, where plays are counted
};

/// The texts of the display's labels.
struct NowPlayingLabels
{
    QString track;
    QString disc; ///< empty where the label is hidden
    QString format;
    QString title;
    QString artistLine;
    QString albumLine;
    QString playCount;

    /// Whether the label of the disc is to be seen.
    bool showsDisc() const { return !disc.isEmpty(); }
    bool operator==(const NowPlayingLabels &) const = default;
};

NowPlayingLabels nowPlayingLabels(const NowPlayingFacts &facts);

/// Both texts with a point between them, or the one that is not empty.
QString joinedByPoint(const QString &first, const QString &second);
