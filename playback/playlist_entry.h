/// \file
/// One row of the playlist as a plain record.
#pragma once

#include <QString>

struct PlaylistEntry
{
    QString text; ///< what the list shows
    QString path;
    QString cuePath;
    QString isoPath;
    int track = 0; ///< 0 for a plain file
    double startSec = 0.;
    double endSec = 0.;

    /// A track of a sheet or of an image.
    bool isContainerTrack() const { return track >= 1 || !cuePath.isEmpty() || !isoPath.isEmpty(); }
    /// A network station.
    bool isStream() const { return cuePath == QLatin1StringView("stream"); }
};

/// The identity of a row: two rows with the same key are the same track.
QString rowKey(const PlaylistEntry &entry);
/// The same for another track of the same container.
QString rowKey(const PlaylistEntry &entry, int track);
