#pragma once

#include "player_core/source/byte_input.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace kelp_core {

/// Bytes of the largest picture that is taken out of a file.
inline constexpr int64_t maxPictureBytes = int64_t{64} << 20;

/// The front cover of an ID3v2 tag (2.2, 2.3 or 2.4) at an offset, else its first picture. Compressed and
/// encrypted frames are passed over.
std::optional<std::vector<uint8_t>> readId3Picture(ByteInput &input, int64_t offset);

} // namespace kelp_core
