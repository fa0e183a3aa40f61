/// \file
/// The playlist in the settings: one text a row.
#pragma once

#include "playback/playlist_entry.h"

#include <QStringList>
#include <QStringView>
#include <optional>

/// The text of a row: text, path, sheet, track, start, end, image, joined by U+001F. The times are written
/// with 17 significant digits, so that they come back as they were.
QString savedRow(const PlaylistEntry &entry);
/// The same for a plain file, which is what most rows are.
QString savedFileRow(QStringView text, QStringView path);

/// The row of a text; none when it has fewer than seven fields or no path. A row without a text takes the
/// file's name; fields that are no numbers count as 0.
std::optional<PlaylistEntry> parseSavedRow(QStringView saved);

/// The row to make current: at most the last, and 0 for anything below 1.
int restoredCurrentRow(int stored, int count);
