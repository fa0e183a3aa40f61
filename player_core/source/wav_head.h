#pragma once

#include "player_core/source/byte_input.h"

#include <cstdint>
#include <optional>

namespace kelp_core {

/// What a WAV, RF64 or W64 file's own head says, beside what FFmpeg makes of it: FFmpeg takes the size of a
/// file that was cut off for the truth.
struct WavHead
{
    bool extensible = false; ///< WAVE_FORMAT_EXTENSIBLE
    int blockAlign = 0;      ///< bytes of a frame
    int64_t dataBytes = -1;  ///< as stated; −1 where the writer left it open
};

/// Walks the chunks up to the data; nothing when this is no such file.
std::optional<WavHead> readWavHead(ByteInput &input);

} // namespace kelp_core
