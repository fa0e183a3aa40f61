#pragma once

#include <alsa/asoundlib.h>
#include <pulse/channelmap.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kelp_core {

/// What an opened ALSA PCM says of its channels' places: a bit number of a WAVE channel mask for each, or −1
/// for a place that has none. Empty when it says nothing.
std::vector<int> placesOf(snd_pcm_t *pcm);

/// For each of the device's channels the stream's channel that belongs there. Empty when the stream's own
/// order is right, when one of the two is not known (mask 0), or when they do not hold the same speakers. The
/// surround pair counts as the same at the sides and at the back where a layout has only one of them.
std::vector<size_t> orderFor(uint32_t speakers, const std::vector<int> &places);

/// "FL FR RL RR FC LFE", as ALSA calls the places.
std::string placesText(const std::vector<int> &places);

/// The same channels for a sound server; nothing when it has no word for one of them.
std::optional<pa_channel_map> pulseMapOf(uint32_t speakers);

/// Puts the channels of frames into another order.
class ChannelShuffle
{
public:
    /// `mostFrames` bounds one call of apply(). An empty order does nothing.
    ChannelShuffle(std::vector<size_t> order, size_t sampleBytes, size_t mostFrames);

    bool active() const { return !order_.empty(); }
    size_t mostFrames() const { return mostFrames_; }
    /// The frames in their new order, until the next call. Allocates nothing.
    const uint8_t *apply(const uint8_t *frames, size_t count);

private:
    std::vector<size_t> order_;
    size_t sampleBytes_;
    size_t mostFrames_;
    std::vector<uint8_t> bytes_;
};

} // namespace kelp_core
