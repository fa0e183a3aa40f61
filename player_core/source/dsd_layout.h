#pragma once

#include "player_core/audio/gain_tags.h"
#include "player_core/source/byte_input.h"

#include <cstdint>
#include <optional>
#include <string>

namespace kelp_core {

/// Where the bits of a DSD file stand, as its head says. All sizes are as stated there; the file may be
/// shorter.
struct DsdLayout
{
    const char *name = ""; ///< "DSF", "DFF", "WSD"
    int rateHz = 0;        ///< bits a second of one channel
    int channels = 0;
    uint32_t speakers = 0;        ///< as in StreamFormat
    int64_t totalFrames = 0;      ///< bytes of one channel
    int validBitsOfLastFrame = 8; ///< 1 … 8
    int64_t dataOffset = 0;
    int64_t dataBytes = 0;
    int64_t blockBytes = 1;      ///< bytes of one channel before the next channel's: 1, or 4096 in DSF
    bool lowestBitFirst = false; ///< the oldest bit is bit 0
    bool dst = false;            ///< data is a chain of DST frame chunks
    int64_t tagOffset = 0;       ///< an ID3v2 tag, 0 when there is none
    GainTags gains;              ///< of that tag

    static constexpr int maxChannels = 32;

    /// Bytes of one channel in a frame of 1/75 s, the unit of DST.
    int64_t dstFrameBytes() const { return rateHz / 8 / 75; }
};

/// A layout, or one line that says why there is none.
struct DsdLayoutOutcome
{
    std::optional<DsdLayout> layout;
    std::string error;
};

/// DSF (Sony's DSD stream file, version 1.01).
DsdLayoutOutcome parseDsf(ByteInput &input);

/// DSDIFF 1.5 (".dff"), plain or DST.
DsdLayoutOutcome parseDff(ByteInput &input);

/// WSD (1-bit Audio Consortium, version 1.1 and before).
DsdLayoutOutcome parseWsd(ByteInput &input);

} // namespace kelp_core
