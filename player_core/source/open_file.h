#pragma once

#include "player_core/source/source.h"

namespace kelp_core {

/// Whether a file without a head may be taken for the bare samples of a CD.
enum class RawAudio
{
    no,
    littleEndian,
    bigEndian,
};

/// Opens one audio file as a whole; of the request only the callbacks count.
OpenedSource openAudioFile(const std::string &path, const SourceRequest &request,
                           RawAudio raw = RawAudio::no);

} // namespace kelp_core
