#pragma once

#include "player_core/output/output.h"

#include <string>
#include <vector>

namespace kelp_core {

/// What is known of a device before a format is tried on it.
struct DeviceTraits
{
    bool untouched = false; ///< nothing on the way to the converter can change a sample (see pcm_chain.h)
    bool dsdMarked = false; ///< the listener marked it as a DSD decoder (see player_conf.h)
    int serverRateHz = 0;   ///< rate at which a sound server runs it; 0 when there is no server between
};

/// One format to try on a device.
struct Wish
{
    WireFormat wire;
    int pcmRateHz = 0;      ///< rate of the PCM that the pipeline must deliver; 0 for DoP and native DSD
    bool losesBits = false; ///< the encoding carries fewer bits than the stream has
    bool otherRate = false; ///< the stream must be resampled to this rate
};

/// Formats in the order in which they are to be tried, and why some were left out.
struct WishPlan
{
    std::vector<Wish> wishes;
    std::vector<std::string> notes; ///< whole sentences
};

/// PCM rates that DSD is decoded to on this device, best first.
///
/// Hardware: 176400 Hz for DSD64, because its noise shaping leaves nothing of use above 50 kHz; 352800 Hz
/// from DSD128 on; then the other rates from the top. Behind a server the smallest rate that is not below the
/// server's comes first, since more would only be thrown away there.
std::vector<int> decodedRates(int dsdRateHz, int serverRateHz);

/// The wish list. Pure. DoP and native DSD are in it only when nothing stands between us and the converter
/// and the path policy is not the shared one: everywhere else they would be noise at full level.
WishPlan planWishes(const OutputRequest &request, const DeviceTraits &traits);

} // namespace kelp_core
