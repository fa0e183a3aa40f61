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
/// pushes the samples one bit down, and first into the bits that the device has to spare. Without dither the
/// fraction counts (a gain of −3 dB costs half a bit); dither's noise costs nothing that the source had.
double effectiveBits(double gain, int sourceBits, int deviceBits);

/// The whole "volume: …" line. It holds exactly one of the words by which the front end tells the cases
/// ("unity", "effective bits about N bit", "used up", "headroom", "applied on the DEVICE",
/// "NOT applied on a DoP stream", "DSD direct", "SOFTWARE gain" alone when a depth is not known), and before
/// all of them, where known, " on a N bit device".
std::string volumeLine(const VolumeFacts &facts);

} // namespace kelp_core
