#pragma once

#include <cstdint>
#include <vector>

namespace kelp_test {

/// What a frame is coded with beside the obvious, so that every branch of a decoder is met.
struct DstEncoderOptions
{
    bool codedTables = true;      ///< coefficients as differences from a prediction, else plain
    bool tablesPerChannel = true; ///< a filter and a probability table for every channel
    bool halfProbability = true;  ///< the first bits are coin tosses
    /// Lengths in bytes of one channel of all segments but the last; applies to filters and probabilities of
    /// all channels. A new filter begins in every segment.
    std::vector<int> segmentBytes = {};
    bool separateMaps = false; ///< segments and maps of filters and probabilities are written apart
    int filterLength = 32;     ///< 1 … 128; 3 and more with codedTables
};

/// Packs one frame of DSD by DST with real prediction and arithmetic coding. bits: interleaved by channel.
/// Not a good encoder, only a right one: filters by least squares over the frame itself.
std::vector<uint8_t> encodeDstFrame(const std::vector<uint8_t> &bits, int channels,
                                    const DstEncoderOptions &options = {});

} // namespace kelp_test
