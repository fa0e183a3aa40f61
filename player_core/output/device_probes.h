#pragma once

#include <string>

namespace kelp_core {

/// Answer to `-list`: see formatDeviceList(). Opens no device.
std::string listText();

/// Answer to `-list-devices`: see formatCapabilities(). Asks sound cards that nobody uses for their formats,
/// without waiting; a card in use, and a PCM that would have to be opened, have no line of capabilities but
/// one that says why.
std::string listDevicesText();

/// Answer to `-vol-get`: for each volume control between the device and the ear one line
///     VOL <device> <name, quoted> percent=<0…> db=<dB or unknown> muted=<yes|no|unknown>
///     unity=<yes|no|unknown>
/// and "VOL <device> not known: <why>" where there is none. An empty id is the sound server's default sink.
/// Unity means 0 dB, whatever the percentage.
std::string volGetText(const std::string &deviceId);

/// Answer to `-reset-device`: looks at every card after an engine that was ended by force, opens and closes
/// those that nobody holds, so that they stand at rest, and says of the others who holds them. Never touches
/// a device that plays.
std::string resetDevice();

} // namespace kelp_core
