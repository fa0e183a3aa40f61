/// \file
/// The playlist's history as a file, so that a list can be taken back after a restart too.
#pragma once

#include "playback/playlist_history.h"

#include <QByteArray>
#include <QStringList>
#include <optional>

/// Larger files are none of ours.
inline constexpr qint64 mostHistoryFileBytes = 384LL << 20;

/// A history and the list that it belongs to: it can only be applied to the very list it left.
struct StoredHistory
{
    PlaylistHistory history;
    quint64 fingerprint = 0;
};

/// A number that tells two saved lists apart by their tracks and the order of these, whatever their titles
/// are.
quint64 listFingerprint(const QStringList &savedRows);

/// Own form: a line of identity, a checksum, then big-endian numbers and UTF-16 texts, each behind its
/// length.
QByteArray historyBytes(const StoredHistory &stored);
/// None when the bytes are not wholly what historyBytes() makes.
std::optional<StoredHistory> parseHistory(const QByteArray &bytes);
/// The same bytes with the checksum that fits them, for tests; bytes that are too short stay as they are.
QByteArray withHistoryChecksum(QByteArray bytes);
