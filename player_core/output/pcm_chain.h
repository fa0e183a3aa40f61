#pragma once

#include "player_core/output/output.h"

#include <string>
#include <string_view>

namespace kelp_core {

/// What stands between us and the end of an ALSA PCM.
struct PcmChain
{
    bool untouched = false; ///< no stage of the chain can change or mix samples
    bool hardware = false;  ///< it ends at a sound card
    bool clocked = true;    ///< false when it ends at a null device, which takes everything at once
    bool file = false;      ///< a copy goes to a file
    bool mixes = false;     ///< a stage mixes, scales or is a server: more than a plain converter
    std::string blocker;    ///< the first stage that is not known to be harmless, as ALSA names it
};

/// Reads the text of snd_pcm_dump(). Only stages known to pass samples on unchanged (hardware, file, null,
/// hooks) count as untouched; anything else, and text that cannot be understood, does not.
PcmChain parsePcmChain(std::string_view dump);

/// What the last stage of a chain was set up for, of the same text once the PCM is set up: for a chain that
/// ends in a file the format in which the file gets its samples. Not known when a field is missing or out of
/// range.
ReadBack parseEndSetup(std::string_view dump);

} // namespace kelp_core
