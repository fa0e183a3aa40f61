#pragma once

#include "player_core/source/dst_bits.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace kelp_core {

inline constexpr int dstMaxChannels = 8;
inline constexpr int dstMaxTables = 2 * dstMaxChannels;
inline constexpr int dstMaxFilterLength = 128;
inline constexpr int dstMaxProbabilities = 64;

/// How one channel's frame is divided: each segment's end, in bits of time from the frame's start, and the
/// number of the table that holds in it.
struct DstSegments
{
    static constexpr int maxSegments = 8;
    int count = 1;
    std::array<int, maxSegments> endBit{};
    std::array<int, maxSegments> table{};
};

/// All that stands before the arithmetic code of a DST frame.
struct DstFrameHead
{
    std::array<DstSegments, dstMaxChannels> filterSegments;
    std::array<DstSegments, dstMaxChannels> probabilitySegments;
    std::array<bool, dstMaxChannels> halfProbability{};
    int filters = 1;
    int probabilityTables = 1;
    std::array<int, dstMaxTables> filterLength{};
    std::array<std::array<int16_t, dstMaxFilterLength>, dstMaxTables> filter;
    std::array<int, dstMaxTables> probabilityLength{};
    std::array<std::array<uint8_t, dstMaxProbabilities>, dstMaxTables> probability; ///< 1 … 128, of 256
};

/// Reads the head of a coded frame; the reader stands behind the bit that says that it is coded.
/// Returns "" or a few words on what is wrong (ISO/IEC 14496-3 subpart 10).
std::string readDstFrameHead(DstBitReader &in, int channels, int bitsPerChannel, DstFrameHead &head);

} // namespace kelp_core
