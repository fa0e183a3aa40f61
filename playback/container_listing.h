/// \file
/// The tracks of a CUE sheet or an SACD image, from the engine's listing to rows of the playlist.
#pragma once

#include "playback/playlist_entry.h"

#include <QList>
#include <QStringView>

/// No sheet and no image has as many; an engine that floods must not fill the playlist.
inline constexpr qsizetype mostContainerTracks = 1000;

/// Reading through a large image on a slow disk takes its time, and nobody waits for it.
inline constexpr int containerProbeTimeoutMs = 60000;

struct ContainerListing
{
    QStringList logLines; ///< headers, translated
    QList<PlaylistEntry> rows;
};

/// Whether the path ends in ".cue" or ".iso", in either case of letters.
bool isContainerPath(const QString &path);
bool isCuePath(const QString &path);
/// The engine's flag that lists the container.
QString listingFlag(const QString &path);

/// Reads a listing. Lines end in LF and fields are separated by TAB; a line of any other shape is ignored.
/// "CUE title [performer]" and "TRACK number start end title performer file".
ContainerListing parseCueListing(QStringView output, const QString &cuePath);
/// "ISO … count" and "TRACK number start end [title]".
ContainerListing parseIsoListing(QStringView output, const QString &isoPath);

/// What stands in the tool tip of a row just listed: file and times.
QString containerToolTip(const PlaylistEntry &entry);

/// Why no row came of a listing, translated.
/// \param rc     of the probe
/// \param output of the probe
QString listingComplaint(const QString &path, int rc, const QString &output);
