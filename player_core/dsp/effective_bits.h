#pragma once

#include <string>

namespace kelp_core {

/// Where the volume of a running stream is made.
enum class VolumePlace
{
    software,  ///< the engine multiplies the samples (gain 1.0: it does not)
    device,    ///< the device's or the server's own control; the samples go out as they are
    dop,       ///< nowhere: a DoP stream cannot be scaled
    nativeDsd, ///< nowhere in the engine: native DSD, a mixer of the device may still act
};

/// What the running stages do to the samples' level. All from the stages themselves, never from a setting.
struct VolumeFacts
{
    VolumePlace place = VolumePlace::software;
    double gain = 1.0;   ///< linear, of all software stages together; above 1.0 for a positive ReplayGain
    int sourceBits = 0;  ///< valid bits of an integer sample, 24 for a 32-bit float, 0 not known
    int deviceBits = 0;  ///< valid bits at the device, 0 not known
    bool dither = false; ///< triangular dither is added at the device's depth
};

/// Bits of the source that still reach the device, 0 when nothing audible does: each halving of the level
/// pushes the samples one bit down, and first into the bits that the device has to spare.
double effectiveBits(double gain, int sourceBits, int deviceBits);

/// The whole "volume: …" line. The front end takes the first of these words that it holds, in this order:
/// "unity", "effective bits" (with "about N bit"), "used up", "headroom", "applied on the DEVICE",
/// "NOT applied on a DoP stream", "DSD direct", "SOFTWARE gain"; the last one alone is for depths that are
/// not known. In front of them stands " on a N bit device" where that is known. A source deeper than the
/// device is never "unity", since its lowest bits do not get through.
std::string volumeLine(const VolumeFacts &facts);

} // namespace kelp_core
