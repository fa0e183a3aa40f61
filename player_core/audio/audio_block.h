#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kelp_core {

/// A run of frames on its way through the pipeline. One of the two vectors is in use, by the stream's kind.
///
/// PCM samples are doubles in −1 … +1, interleaved by channel. A double holds every integer of up to 32 bits
/// and every float exactly, so a path without a processing stage gives back the source's bits:
/// an integer sample s of n bits is s / 2^(n−1).
/// DSD samples are bytes, interleaved by channel, the oldest bit in bit 7.
struct AudioBlock
{
    std::vector<double> pcm;
    std::vector<uint8_t> dsd;
    size_t frames = 0;

    void clear()
    {
        pcm.clear();
        dsd.clear();
        frames = 0;
    }
};

} // namespace kelp_core
