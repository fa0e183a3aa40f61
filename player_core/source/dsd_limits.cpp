#include "player_core/source/dsd_limits.h"

namespace kelp_core {

std::string dsdLimitError(const DsdLayout &layout)
{
    // Well below DSD64, and up to DSD1024 of the 48 kHz family.
    constexpr int minRateHz = 64 * 8000;
    constexpr int maxRateHz = 1024 * 48000;
    if (layout.rateHz < minRateHz || layout.rateHz > maxRateHz || layout.rateHz % 8 != 0)
        return std::string("the file is damaged: ") + layout.name + " with a rate of " +
               std::to_string(layout.rateHz) + " Hz";
    if (layout.channels < 1 || layout.channels > DsdLayout::maxChannels)
        return std::string("the file is damaged: ") + layout.name + " with " +
               std::to_string(layout.channels) + " channels";
    return {};
}

} // namespace kelp_core
