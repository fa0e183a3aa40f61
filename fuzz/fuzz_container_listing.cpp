// A container's listing by an engine that we did not write.
#include "playback/container_listing.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    for (const ContainerListing &listing :
         {parseCueListing(text, QStringLiteral("/a.cue")), parseIsoListing(text, QStringLiteral("/a.iso"))}) {
        if (listing.rows.size() > mostContainerTracks)
            __builtin_trap();
        for (const PlaylistEntry &entry : listing.rows) {
            if (entry.track < 1 || entry.text.isEmpty() || !entry.isContainerTrack() ||
                containerToolTip(entry).isEmpty())
                __builtin_trap();
        }
    }
    return 0;
}
