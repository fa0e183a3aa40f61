#include "playback/playlist_entry.h"

#include <QStringList>

namespace {

/// U+001F, the unit separator: no path holds it.
constexpr QChar separator(0x1f);

} // namespace

QString rowKey(const PlaylistEntry &entry)
{
    return rowKey(entry, entry.track);
}

QString rowKey(const PlaylistEntry &entry, int track)
{
    return QStringList{entry.path, entry.cuePath, entry.isoPath, QString::number(track)}.join(separator);
}
