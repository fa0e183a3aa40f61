// Paths and names of files.

#include "tags/disc_number.h"
#include "tags/track_file_name.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    const int disc = discNumberFromPath(text);
    const TrackFileName name = parseTrackFileName(text);
    if (disc < 0 || disc > 99 || name.track.size() == 1 || name.track.size() > 4 || name.title.size() > size)
        std::abort();
    return 0;
}
