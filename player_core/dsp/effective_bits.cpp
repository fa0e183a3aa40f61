#include "player_core/dsp/effective_bits.h"

#include "player_core/dsp/fixed_text.h"
#include "player_core/dsp/volume.h"

#include <algorithm>
#include <cmath>

namespace kelp_core {

namespace {

/// Below one bit there is only a sign left.
constexpr double leastBits = 1.0;

std::string gainText(double gain)
{
    if (!(gain > 0.0))
        return "muted";
    const double db = 20.0 * std::log10(gain);
    return (db > 0.0 ? "+" : "") + fixedText(db, 2) + " dB";
}

std::string softwareText(const VolumeFacts &facts)
{
    const std::string scaled = "SOFTWARE gain " + gainText(facts.gain);
    if (facts.gain > 1.0)
        return scaled + ", no loss of bits but less headroom (peaks may clip)";
    if (facts.sourceBits <= 0 || facts.deviceBits <= 0)
        return facts.gain > 0.0 ? scaled : scaled + ", resolution used up";
    const double bits = effectiveBits(facts.gain, facts.sourceBits, facts.deviceBits);
    if (bits < leastBits)
        return scaled + ", resolution used up";
    // A source deeper than the device loses bits even where the gain is 1.
    return (facts.gain == 1.0 ? "samples not scaled" : scaled) + ", effective bits about " +
           std::to_string(std::lround(bits)) + " bit of " + std::to_string(facts.sourceBits) +
           (facts.dither ? ", dithered" : "");
}

} // namespace

double effectiveBits(double gain, int sourceBits, int deviceBits)
{
    if (!(gain > 0.0))
        return 0.0;
    const double reach = deviceBits + std::min(0.0, std::log2(gain));
    return std::clamp(reach, 0.0, static_cast<double>(sourceBits));
}

std::string volumeLine(const VolumeFacts &facts)
{
    // In front, because the front end reads the first "on a " and a DoP line has a second one.
    std::string line = "volume:";
    if (facts.place == VolumePlace::nativeDsd)
        return line + " DSD direct, samples are not scaled (only a mixer of the device can be)";
    if (facts.deviceBits > 0)
        line += " on a " + std::to_string(facts.deviceBits) + " bit device:";
    switch (facts.place) {
    case VolumePlace::device:
        return line + " applied on the DEVICE, samples are not scaled";
    case VolumePlace::dop:
        return line + " NOT applied on a DoP stream, samples are not scaled";
    case VolumePlace::nativeDsd:
    case VolumePlace::software:
        break;
    }
    const bool fits = facts.sourceBits <= facts.deviceBits || facts.deviceBits <= 0;
    if (facts.gain == 1.0 && fits)
        return line + " unity, samples untouched";
    return line + ' ' + softwareText(facts);
}

} // namespace kelp_core
