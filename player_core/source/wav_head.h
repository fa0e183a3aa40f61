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
    /// As stated, or to the end of the file where the writer did not know; −1 where it left a zero.
    int64_t dataBytes = -1;
};

/// Walks the chunks up to the data; nothing when this is no such file.
std::optional<WavHead> readWavHead(ByteInput &input);

} // namespace kelp_core
