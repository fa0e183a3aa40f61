#pragma once

#include "player_core/output/output.h"
#include "player_core/output/pcm_chain.h"
#include "player_core/output/wish_list.h"

#include <alsa/asoundlib.h>

#include <memory>
#include <optional>
#include <string>

namespace kelp_core {

struct PcmCloser
{
    void operator()(snd_pcm_t *pcm) const { snd_pcm_close(pcm); }
};
using PcmHandle = std::unique_ptr<snd_pcm_t, PcmCloser>;

/// What a PCM was set up with.
struct PcmSetup
{
    snd_pcm_uframes_t bufferFrames = 0;
    snd_pcm_uframes_t periodFrames = 0;
    int significantBits = 0; ///< of a sample, as the driver says; 0 when it does not say
};

/// Card, device and subdevice of a PCM that ends at hardware.
struct PcmPlace
{
    int card = -1;
    int device = 0;
    int subdevice = 0;
    std::string name; ///< "Desk DAC, USB Audio"
};

snd_pcm_format_t alsaFormat(SampleEncoding encoding);

/// What stands between us and the end of an opened PCM.
PcmChain chainOf(snd_pcm_t *pcm);

/// What the end of a set-up PCM was set up for, as ALSA records it.
ReadBack endSetupOf(snd_pcm_t *pcm);

/// Where an opened PCM ends; nothing when that is not at hardware.
std::optional<PcmPlace> placeOf(snd_pcm_t *pcm);

/// Sets an opened PCM up for a wish: its rate, format and channels exactly, a buffer of about 200 ms in
/// periods of about 25 ms. Returns 0, or a negative error with the PCM as free as before.
int configurePcm(snd_pcm_t *pcm, const WireFormat &wire, PcmSetup &setup);

} // namespace kelp_core
