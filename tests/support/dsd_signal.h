#pragma once

#include "tests/support/pcm_signal.h"

#include <cstdint>
#include <vector>

namespace kelp_test {

/// Known DSD: bytes interleaved by channel, the oldest bit in bit 7.
struct DsdSignal
{
    int rateHz = 2822400;
    int channels = 2;
    std::vector<uint8_t> bytes;

    size_t frames() const { return bytes.size() / static_cast<size_t>(channels); }
};

/// A signal as a small second-order delta-sigma modulator gives it; noise and ramp are raw bits without any
/// meaning, every byte unforeseeable. frames are bytes of one channel.
DsdSignal makeDsd(SignalShape shape, size_t frames, int rateHz = 2822400, int channels = 2,
                  uint32_t seed = 1);

} // namespace kelp_test
