// The texts about devices that the engine reads: the kernel's record of a PCM, ALSA's dump of a chain, the
// settings file and ids of devices.
#include "player_core/output/alsa_name.h"
#include "player_core/output/hw_params_record.h"
#include "player_core/output/pcm_chain.h"
#include "player_core/output/player_conf.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    const kelp_core::ReadBack record = kelp_core::parseHwParams(text, "record");
    if (record.known && (record.rateHz <= 0 || record.channels <= 0 || record.format.empty()))
        std::abort();
    const kelp_core::PcmChain chain = kelp_core::parsePcmChain(text);
    if (chain.untouched != chain.blocker.empty() || (chain.untouched && chain.mixes))
        std::abort();
    for (const std::string &entry : kelp_core::parseDsdOk(text))
        if (!kelp_core::isDsdMarked({entry}, entry))
            std::abort();
    kelp_core::parseHardwareName(text);
    return 0;
}
