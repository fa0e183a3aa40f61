// The playlist's history file, which anyone may have written to.
#include "playback/playlist_history_file.h"
#include "playback/saved_rows.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    // The checksum keeps chance away from what lies behind it, so the input is tried with the right one too.
    for (const QByteArray &file : {bytes, withHistoryChecksum(bytes)}) {
        const std::optional<StoredHistory> stored = parseHistory(file);
        if (!stored)
            continue;
        for (const PlaylistChange &change : stored->history.undoChanges()) {
            if (!isConsistent(change) || !isConsistent(inverseOf(change)))
                __builtin_trap();
        }
    }
    const QString text = QString::fromUtf8(bytes);
    if (const std::optional<PlaylistEntry> entry = parseSavedRow(text); entry && entry->path.isEmpty())
        __builtin_trap();
    return 0;
}
