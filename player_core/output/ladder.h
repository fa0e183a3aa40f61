#pragma once

#include "player_core/output/output.h"

#include <string>
#include <vector>

namespace kelp_core {

/// One way to open a device.
struct Rung
{
    enum class Kind
    {
        alsaExact,  ///< the PCM, if nothing stands between it and us
        alsaAny,    ///< the PCM, whatever it does to the samples
        pulse,      ///< a sink of the sound server; an empty name is its default one
        pulseCard,  ///< the sound server's sink of the card that the ALSA id names
        clockedNull ///< nothing, in real time
    };
    Kind kind = Kind::alsaAny;
    std::string name;
    bool operator==(const Rung &) const = default;
};

/// The ways to open a device in the order in which they are tried; empty when the path policy cannot be kept
/// on such a device. Pure. firstHardware is the id of the first sound card, empty when there is none.
std::vector<Rung> planRungs(PathPolicy path, const std::string &deviceId, const std::string &firstHardware);

/// True for an id of the sound server: "pulse" or "pulse:<sink>".
bool isPulseId(const std::string &deviceId);

} // namespace kelp_core
