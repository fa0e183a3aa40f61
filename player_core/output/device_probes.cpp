#include "player_core/output/device_probes.h"

#include "player_core/output/alsa_cards.h"
#include "player_core/output/alsa_messages.h"
#include "player_core/output/alsa_pcm.h"
#include "player_core/output/device_list.h"
#include "player_core/output/player_conf.h"
#include "player_core/output/pulse_connection.h"
#include "player_core/output/sound_server.h"

#include <algorithm>
#include <array>
#include <fstream>

namespace kelp_core {
namespace {

/// Null where there is no sound server, which is cheap to find out for most machines without one.
std::unique_ptr<PulseConnection> soundServer()
{
    std::string why;
    return soundServerMayExist() ? PulseConnection::connect(why) : nullptr;
}

constexpr std::array<int, 12> askedRatesHz{44100,  48000,  88200,  96000,  176400,  192000,
                                           352800, 384000, 705600, 768000, 1411200, 1536000};
constexpr int dop1xRateHz = 176400;
constexpr int dop2xRateHz = 352800;
constexpr std::array<snd_pcm_format_t, 5> dsdFormats{SND_PCM_FORMAT_DSD_U8, SND_PCM_FORMAT_DSD_U16_LE,
                                                     SND_PCM_FORMAT_DSD_U16_BE, SND_PCM_FORMAT_DSD_U32_LE,
                                                     SND_PCM_FORMAT_DSD_U32_BE};
constexpr std::array<snd_pcm_format_t, 3> dopFormats{SND_PCM_FORMAT_S24_3LE, SND_PCM_FORMAT_S32_LE,
                                                     SND_PCM_FORMAT_S24_LE};

struct ParamsDeleter
{
    void operator()(snd_pcm_hw_params_t *params) const { snd_pcm_hw_params_free(params); }
};

/// The device opened without waiting; empty when somebody has it.
PcmHandle openFree(const std::string &id)
{
    snd_pcm_t *raw = nullptr;
    return PcmHandle(snd_pcm_open(&raw, id.c_str(), SND_PCM_STREAM_PLAYBACK, SND_PCM_NONBLOCK) < 0 ? nullptr
                                                                                                   : raw);
}

/// What an opened card takes. DoP counts only where the listener marked the card: that it takes the frames
/// does not tell whether it decodes them.
DeviceCapability ask(snd_pcm_t *pcm, const CardPcm &card, bool marked)
{
    DeviceCapability capability{card.id(), "alsa", false, false, false, "free", {}};
    snd_pcm_hw_params_t *raw = nullptr;
    if (snd_pcm_hw_params_malloc(&raw) < 0)
        return capability;
    const std::unique_ptr<snd_pcm_hw_params_t, ParamsDeleter> params(raw);
    if (snd_pcm_hw_params_any(pcm, raw) < 0)
        return capability;
    const auto takes = [&](snd_pcm_format_t format) {
        return snd_pcm_hw_params_test_format(pcm, raw, format) == 0;
    };
    capability.nativeDsd = std::any_of(dsdFormats.begin(), dsdFormats.end(), takes);
    for (int rate : askedRatesHz)
        if (snd_pcm_hw_params_test_rate(pcm, raw, static_cast<unsigned>(rate), 0) == 0)
            capability.ratesHz.push_back(rate);
    const auto hasRate = [&](int rate) {
        return std::find(capability.ratesHz.begin(), capability.ratesHz.end(), rate) !=
               capability.ratesHz.end();
    };
    const bool decodes = marked && std::any_of(dopFormats.begin(), dopFormats.end(), takes);
    capability.dop1x = decodes && hasRate(dop1xRateHz);
    capability.dop2x = decodes && hasRate(dop2xRateHz);
    return capability;
}

std::string firstLine(const std::string &path)
{
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    return line;
}

/// Who holds a card's device, as the kernel says; empty when it does not.
std::string holderOf(const CardPcm &card)
{
    std::ifstream file("/proc/asound/card" + std::to_string(card.card) + "/pcm" +
                       std::to_string(card.device) + "p/sub0/status");
    for (std::string line; std::getline(file, line);) {
        const size_t digits = line.find_first_of("0123456789");
        if (line.starts_with("owner_pid") && digits != std::string::npos) {
            const std::string pid = line.substr(digits);
            const std::string name = firstLine("/proc/" + pid + "/comm");
            return "process " + pid + (name.empty() ? "" : " (" + name + ")");
        }
    }
    return {};
}

} // namespace

std::string listText()
{
    DeviceList list;
    if (const auto server = soundServer()) {
        list.server = server->serverName();
        for (const SinkFacts &sink : server->sinks())
            list.sinks.push_back({"pulse:" + sink.name, sink.description});
    }
    for (const CardPcm &card : cardPcms())
        list.cards.push_back({card.id(), card.label});
    for (const NamedPcm &pcm : namedPcms())
        list.others.push_back({pcm.name, pcm.label});
    return formatDeviceList(list);
}

std::string listDevicesText()
{
    const AlsaMessages quiet;
    std::vector<DeviceCapability> devices;
    std::string busy;
    if (const auto server = soundServer())
        for (const SinkFacts &sink : server->sinks())
            devices.push_back({"pulse:" + sink.name, "pulse", false, false, false, "shared", {sink.rateHz}});
    const std::vector<std::string> marks = readDsdOk();
    for (const CardPcm &card : cardPcms()) {
        const PcmHandle pcm = openFree(card.id());
        if (!pcm) {
            busy += card.id() + " is in use, so it cannot be asked now.\n";
            continue;
        }
        const bool marked = isDsdMarked(marks, card.id()) || isDsdMarked(marks, card.label);
        devices.push_back(ask(pcm.get(), card, marked));
        devices.push_back({"plug" + card.id(), "alsa", false, false, false, "free", {}});
    }
    return formatCapabilities(devices) + busy;
}

std::string resetDevice()
{
    const AlsaMessages quiet;
    const std::vector<CardPcm> cards = cardPcms();
    if (cards.empty())
        return "There is no sound card, so there is nothing to reset.\n";
    std::string text;
    for (const CardPcm &card : cards) {
        if (const PcmHandle pcm = openFree(card.id())) {
            text += card.id() + " is free.\n";
        } else {
            const std::string holder = holderOf(card);
            text +=
                card.id() + " is in use" + (holder.empty() ? "" : " by " + holder) + " and was left alone.\n";
        }
    }
    return text;
}

} // namespace kelp_core
