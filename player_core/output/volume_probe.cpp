#include "player_core/output/alsa_messages.h"
#include "player_core/output/alsa_name.h"
#include "player_core/output/device_probes.h"
#include "player_core/output/ladder.h"
#include "player_core/output/pulse_connection.h"
#include "player_core/output/volume_line.h"

#include <alsa/asoundlib.h>

#include <cmath>
#include <memory>

namespace kelp_core {
namespace {

struct MixerDeleter
{
    void operator()(snd_mixer_t *mixer) const { snd_mixer_close(mixer); }
};

DeviceVolumeFacts factsOf(const std::string &deviceId, snd_mixer_elem_t *element)
{
    constexpr snd_mixer_selem_channel_id_t channel = SND_MIXER_SCHN_FRONT_LEFT;
    DeviceVolumeFacts facts;
    facts.device = deviceId;
    facts.control = snd_mixer_selem_get_name(element);
    long least = 0;
    long most = 0;
    long now = 0;
    if (snd_mixer_selem_get_playback_volume_range(element, &least, &most) >= 0 && most > least &&
        snd_mixer_selem_get_playback_volume(element, channel, &now) >= 0)
        facts.percent = static_cast<int>(
            std::lround(100.0 * static_cast<double>(now - least) / static_cast<double>(most - least)));
    long centibels = 0;
    if (snd_mixer_selem_get_playback_dB(element, channel, &centibels) >= 0)
        facts.db = static_cast<double>(centibels) / 100.0;
    int on = 1;
    if (snd_mixer_selem_has_playback_switch(element) &&
        snd_mixer_selem_get_playback_switch(element, channel, &on) >= 0)
        facts.muted = on == 0;
    return facts;
}

std::string cardVolumes(const std::string &deviceId, int card)
{
    const AlsaMessages quiet;
    snd_mixer_t *raw = nullptr;
    if (snd_mixer_open(&raw, 0) < 0)
        return volumeNotKnown(deviceId, "the card's mixer cannot be opened");
    const std::unique_ptr<snd_mixer_t, MixerDeleter> mixer(raw);
    if (snd_mixer_attach(raw, ("hw:" + std::to_string(card)).c_str()) < 0 ||
        snd_mixer_selem_register(raw, nullptr, nullptr) < 0 || snd_mixer_load(raw) < 0)
        return volumeNotKnown(deviceId, "the card's mixer cannot be read");
    std::string text;
    for (snd_mixer_elem_t *element = snd_mixer_first_elem(raw); element;
         element = snd_mixer_elem_next(element))
        if (snd_mixer_selem_is_active(element) && snd_mixer_selem_has_playback_volume(element))
            text += deviceVolumeLine(factsOf(deviceId, element));
    return text.empty() ? volumeNotKnown(deviceId, "the card has no volume control") : text;
}

std::string sinkVolume(const std::string &deviceId)
{
    std::string why;
    const auto server = PulseConnection::connect(why);
    if (!server)
        return volumeNotKnown(deviceId, why);
    const size_t colon = deviceId.find(':');
    const auto sink = server->sink(colon == std::string::npos ? "" : deviceId.substr(colon + 1));
    if (!sink)
        return volumeNotKnown(deviceId, "the sound server has no such sink");
    DeviceVolumeFacts facts;
    facts.device = deviceId;
    facts.control = sink->description;
    facts.percent = sink->volumePercent;
    facts.db = sink->volumeDb;
    facts.muted = sink->muted;
    return deviceVolumeLine(facts);
}

} // namespace

std::string volGetText(const std::string &deviceId)
{
    const std::string id = deviceId.empty() ? "pulse" : deviceId;
    if (isPulseId(id))
        return sinkVolume(id);
    if (!parseHardwareName(id))
        return volumeNotKnown(id, "this PCM has no mixer of its own");
    const int card = cardOf(id);
    return card < 0 ? volumeNotKnown(id, "there is no such sound card") : cardVolumes(id, card);
}

} // namespace kelp_core
