#include "player_core/output/channel_order.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace kelp_core {
namespace {

struct Place
{
    unsigned alsa;
    pa_channel_position_t pulse;
};

constexpr int backLeft = 4;
constexpr int backRight = 5;
constexpr int backCentre = 8;
constexpr int sideLeft = 9;
constexpr int sideRight = 10;

/// By the bit number of a WAVE channel mask.
constexpr std::array<Place, 18> wavePlaces{{{SND_CHMAP_FL, PA_CHANNEL_POSITION_FRONT_LEFT},
                                            {SND_CHMAP_FR, PA_CHANNEL_POSITION_FRONT_RIGHT},
                                            {SND_CHMAP_FC, PA_CHANNEL_POSITION_FRONT_CENTER},
                                            {SND_CHMAP_LFE, PA_CHANNEL_POSITION_LFE},
                                            {SND_CHMAP_RL, PA_CHANNEL_POSITION_REAR_LEFT},
                                            {SND_CHMAP_RR, PA_CHANNEL_POSITION_REAR_RIGHT},
                                            {SND_CHMAP_FLC, PA_CHANNEL_POSITION_FRONT_LEFT_OF_CENTER},
                                            {SND_CHMAP_FRC, PA_CHANNEL_POSITION_FRONT_RIGHT_OF_CENTER},
                                            {SND_CHMAP_RC, PA_CHANNEL_POSITION_REAR_CENTER},
                                            {SND_CHMAP_SL, PA_CHANNEL_POSITION_SIDE_LEFT},
                                            {SND_CHMAP_SR, PA_CHANNEL_POSITION_SIDE_RIGHT},
                                            {SND_CHMAP_TC, PA_CHANNEL_POSITION_TOP_CENTER},
                                            {SND_CHMAP_TFL, PA_CHANNEL_POSITION_TOP_FRONT_LEFT},
                                            {SND_CHMAP_TFC, PA_CHANNEL_POSITION_TOP_FRONT_CENTER},
                                            {SND_CHMAP_TFR, PA_CHANNEL_POSITION_TOP_FRONT_RIGHT},
                                            {SND_CHMAP_TRL, PA_CHANNEL_POSITION_TOP_REAR_LEFT},
                                            {SND_CHMAP_TRC, PA_CHANNEL_POSITION_TOP_REAR_CENTER},
                                            {SND_CHMAP_TRR, PA_CHANNEL_POSITION_TOP_REAR_RIGHT}}};

int waveBitOf(unsigned position)
{
    if (position & SND_CHMAP_DRIVER_SPEC)
        return -1;
    position &= SND_CHMAP_POSITION_MASK;
    const auto found = std::find_if(wavePlaces.begin(), wavePlaces.end(),
                                    [position](const Place &place) { return place.alsa == position; });
    return found == wavePlaces.end() ? -1 : static_cast<int>(found - wavePlaces.begin());
}

std::vector<int> bitsOf(uint32_t speakers)
{
    std::vector<int> bits;
    for (; speakers != 0; speakers &= speakers - 1)
        bits.push_back(std::countr_zero(speakers));
    return bits;
}

/// A surround pair without another is called the one at the back.
void moveSurroundBack(std::vector<int> &places)
{
    const auto has = [&](int place) {
        return std::find(places.begin(), places.end(), place) != places.end();
    };
    if (has(backLeft) || has(backRight) || has(backCentre))
        return;
    std::replace(places.begin(), places.end(), sideLeft, backLeft);
    std::replace(places.begin(), places.end(), sideRight, backRight);
}

} // namespace

std::vector<int> placesOf(snd_pcm_t *pcm)
{
    const std::unique_ptr<snd_pcm_chmap_t, decltype(&std::free)> map(snd_pcm_get_chmap(pcm), &std::free);
    std::vector<int> places;
    for (unsigned channel = 0; map && channel < map->channels; ++channel)
        places.push_back(waveBitOf(map->pos[channel]));
    return places;
}

std::vector<size_t> orderFor(uint32_t speakers, const std::vector<int> &places)
{
    std::vector<int> from = bitsOf(speakers);
    std::vector<int> to = places;
    if (from.size() != to.size())
        return {};
    moveSurroundBack(from);
    moveSurroundBack(to);
    std::vector<size_t> order;
    for (const int place : to) {
        const auto found = std::find(from.begin(), from.end(), place);
        const auto channel = static_cast<size_t>(found - from.begin());
        if (found == from.end() || std::find(order.begin(), order.end(), channel) != order.end())
            return {};
        order.push_back(channel);
    }
    return std::is_sorted(order.begin(), order.end()) ? std::vector<size_t>() : order;
}

std::string placesText(const std::vector<int> &places)
{
    std::string text;
    for (const int place : places) {
        const bool known = place >= 0 && place < static_cast<int>(wavePlaces.size());
        const char *name = known ? snd_pcm_chmap_name(static_cast<snd_pcm_chmap_position>(
                                       wavePlaces[static_cast<size_t>(place)].alsa))
                                 : nullptr;
        text += (text.empty() ? "" : " ") + std::string(name ? name : "?");
    }
    return text;
}

std::optional<pa_channel_map> pulseMapOf(uint32_t speakers)
{
    pa_channel_map map;
    pa_channel_map_init(&map);
    for (const int bit : bitsOf(speakers)) {
        if (bit >= static_cast<int>(wavePlaces.size()) || map.channels >= PA_CHANNELS_MAX)
            return std::nullopt;
        map.map[map.channels++] = wavePlaces[static_cast<size_t>(bit)].pulse;
    }
    return pa_channel_map_valid(&map) ? std::optional(map) : std::nullopt;
}

ChannelShuffle::ChannelShuffle(std::vector<size_t> order, size_t sampleBytes, size_t mostFrames)
    : order_(std::move(order))
    , sampleBytes_(sampleBytes)
    , mostFrames_(mostFrames)
    , bytes_(order_.empty() ? 0 : order_.size() * sampleBytes * mostFrames)
{
}

const uint8_t *ChannelShuffle::apply(const uint8_t *frames, size_t count)
{
    if (!active())
        return frames;
    uint8_t *to = bytes_.data();
    for (size_t frame = 0; frame < std::min(count, mostFrames_); ++frame) {
        for (const size_t channel : order_) {
            std::memcpy(to, frames + channel * sampleBytes_, sampleBytes_);
            to += sampleBytes_;
        }
        frames += order_.size() * sampleBytes_;
    }
    return bytes_.data();
}

} // namespace kelp_core
