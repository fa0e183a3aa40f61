// ReplayGain tags of any bytes: the first line is the key, the rest the value.

#include "player_core/source/gain_tag_text.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    const size_t end = text.find('\n');
    const std::string_view value = end == std::string_view::npos ? text : text.substr(end + 1);
    kelp_core::GainTags tags;
    kelp_core::takeGainTag(text.substr(0, end), value, tags);
    kelp_core::takeGainTag("REPLAYGAIN_TRACK_GAIN", value, tags);
    kelp_core::takeGainTag("REPLAYGAIN_TRACK_PEAK", value, tags);
    if (tags.trackGainDb && !std::isfinite(*tags.trackGainDb))
        std::abort();
    if (tags.trackPeak && !(*tags.trackPeak > 0 && *tags.trackPeak <= 64))
        std::abort();
    return 0;
}
