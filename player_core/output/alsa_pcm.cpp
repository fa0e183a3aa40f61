#include "player_core/output/alsa_pcm.h"

#include <algorithm>
#include <cstdlib>

namespace kelp_core {
namespace {

constexpr unsigned bufferTimeUs = 200'000;
constexpr unsigned periodTimeUs = 25'000;

struct ParamsDeleter
{
    void operator()(snd_pcm_hw_params_t *params) const { snd_pcm_hw_params_free(params); }
    void operator()(snd_pcm_sw_params_t *params) const { snd_pcm_sw_params_free(params); }
    void operator()(snd_pcm_info_t *info) const { snd_pcm_info_free(info); }
    void operator()(snd_output_t *output) const { snd_output_close(output); }
};

/// Calls the steps in order until one fails; returns its error.
template<typename... Step>
int firstError(Step... step)
{
    int error = 0;
    (void)(((error = step()) >= 0) && ...);
    return std::min(error, 0);
}

int setHardware(snd_pcm_t *pcm, const WireFormat &wire, PcmSetup &setup)
{
    snd_pcm_hw_params_t *raw = nullptr;
    if (snd_pcm_hw_params_malloc(&raw) < 0)
        return -ENOMEM;
    const std::unique_ptr<snd_pcm_hw_params_t, ParamsDeleter> params(raw);
    const unsigned rate = static_cast<unsigned>(wire.frameRateHz);
    const unsigned channels = static_cast<unsigned>(wire.channels);
    unsigned bufferTime = bufferTimeUs;
    unsigned periodTime = periodTimeUs;
    int direction = 0;
    const int error =
        firstError([&] { return snd_pcm_hw_params_any(pcm, raw); },
                   [&] { return snd_pcm_hw_params_set_access(pcm, raw, SND_PCM_ACCESS_RW_INTERLEAVED); },
                   [&] { return snd_pcm_hw_params_set_format(pcm, raw, alsaFormat(wire.encoding)); },
                   [&] { return snd_pcm_hw_params_set_channels(pcm, raw, channels); },
                   [&] { return snd_pcm_hw_params_set_rate(pcm, raw, rate, 0); },
                   [&] { return snd_pcm_hw_params_set_buffer_time_near(pcm, raw, &bufferTime, &direction); },
                   [&] { return snd_pcm_hw_params_set_period_time_near(pcm, raw, &periodTime, &direction); },
                   [&] { return snd_pcm_hw_params(pcm, raw); },
                   [&] { return snd_pcm_hw_params_get_buffer_size(raw, &setup.bufferFrames); },
                   [&] { return snd_pcm_hw_params_get_period_size(raw, &setup.periodFrames, &direction); });
    if (error < 0)
        return error;
    setup.significantBits = std::max(0, snd_pcm_hw_params_get_sbits(raw));
    return setup.bufferFrames > 0 && setup.periodFrames > 0 ? 0 : -EINVAL;
}

int setSoftware(snd_pcm_t *pcm, const PcmSetup &setup)
{
    snd_pcm_sw_params_t *raw = nullptr;
    if (snd_pcm_sw_params_malloc(&raw) < 0)
        return -ENOMEM;
    const std::unique_ptr<snd_pcm_sw_params_t, ParamsDeleter> params(raw);
    // Two periods are enough to start on, so that sound comes soon; the rest of the buffer fills meanwhile.
    const snd_pcm_uframes_t start = std::min(setup.bufferFrames, 2 * setup.periodFrames);
    return firstError([&] { return snd_pcm_sw_params_current(pcm, raw); },
                      [&] { return snd_pcm_sw_params_set_start_threshold(pcm, raw, start); },
                      [&] { return snd_pcm_sw_params_set_avail_min(pcm, raw, setup.periodFrames); },
                      [&] { return snd_pcm_sw_params(pcm, raw); });
}

} // namespace

snd_pcm_format_t alsaFormat(SampleEncoding encoding)
{
    switch (encoding) {
    case SampleEncoding::s16:
        return SND_PCM_FORMAT_S16_LE;
    case SampleEncoding::s24in3:
        return SND_PCM_FORMAT_S24_3LE;
    case SampleEncoding::s24in4:
        return SND_PCM_FORMAT_S24_LE;
    case SampleEncoding::s32:
        return SND_PCM_FORMAT_S32_LE;
    case SampleEncoding::f32:
        return SND_PCM_FORMAT_FLOAT_LE;
    case SampleEncoding::dsdU8:
        return SND_PCM_FORMAT_DSD_U8;
    case SampleEncoding::dsdU16le:
        return SND_PCM_FORMAT_DSD_U16_LE;
    case SampleEncoding::dsdU16be:
        return SND_PCM_FORMAT_DSD_U16_BE;
    case SampleEncoding::dsdU32le:
        return SND_PCM_FORMAT_DSD_U32_LE;
    case SampleEncoding::dsdU32be:
        return SND_PCM_FORMAT_DSD_U32_BE;
    }
    return SND_PCM_FORMAT_UNKNOWN;
}

namespace {

std::string dumpOf(snd_pcm_t *pcm)
{
    snd_output_t *raw = nullptr;
    if (snd_output_buffer_open(&raw) < 0)
        return {};
    const std::unique_ptr<snd_output_t, ParamsDeleter> output(raw);
    if (snd_pcm_dump(pcm, raw) < 0)
        return {};
    char *text = nullptr;
    const size_t size = snd_output_buffer_string(raw, &text);
    return text ? std::string(text, size) : std::string();
}

} // namespace

PcmChain chainOf(snd_pcm_t *pcm)
{
    return parsePcmChain(dumpOf(pcm));
}

ReadBack endSetupOf(snd_pcm_t *pcm)
{
    return parseEndSetup(dumpOf(pcm));
}

std::optional<PcmPlace> placeOf(snd_pcm_t *pcm)
{
    snd_pcm_info_t *raw = nullptr;
    if (snd_pcm_info_malloc(&raw) < 0)
        return std::nullopt;
    const std::unique_ptr<snd_pcm_info_t, ParamsDeleter> info(raw);
    if (snd_pcm_info(pcm, raw) < 0 || snd_pcm_info_get_card(raw) < 0)
        return std::nullopt;
    PcmPlace place;
    place.card = snd_pcm_info_get_card(raw);
    place.device = static_cast<int>(snd_pcm_info_get_device(raw));
    place.subdevice = static_cast<int>(snd_pcm_info_get_subdevice(raw));
    char *cardName = nullptr;
    if (snd_card_get_name(place.card, &cardName) < 0)
        return std::nullopt;
    const char *pcmName = snd_pcm_info_get_name(raw);
    place.name = std::string(cardName) + (pcmName && *pcmName ? std::string(", ") + pcmName : "");
    std::free(cardName);
    return place;
}

int configurePcm(snd_pcm_t *pcm, const WireFormat &wire, PcmSetup &setup)
{
    int error = setHardware(pcm, wire, setup);
    if (error >= 0)
        error = setSoftware(pcm, setup);
    if (error < 0)
        snd_pcm_hw_free(pcm);
    return error;
}

} // namespace kelp_core
