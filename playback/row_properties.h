/// \file
/// What is known about a row without touching its file.
#pragma once

#include "playback/playlist_entry.h"

/// The facts of a row, a line each, translated.
/// \param row   zero-based
/// \param count of the list
QString rowProperties(const PlaylistEntry &entry, int row, int count);

/// What stands at the end of a row: the file's suffix in capitals, at most five characters.
QString formatTag(QStringView path);
