#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelp_core {

/// What a device id of the forms "hw:1,0", "plughw:1,0" or "hw:CARD=Desk,DEV=0" says.
struct HardwareName
{
    std::string card;  ///< number or name of the card
    std::string place; ///< what stands behind "hw:" or "plughw:"
    bool plug = false; ///< "plughw:"
};

/// Reads such an id; nothing for any other.
std::optional<HardwareName> parseHardwareName(std::string_view id);

/// Number of the card that an id names, or below 0 when it names none, or none that is there. Asks ALSA.
int cardOf(std::string_view id);

} // namespace kelp_core
