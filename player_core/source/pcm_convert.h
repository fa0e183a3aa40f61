#pragma once

#include <cstddef>
#include <vector>

extern "C" {
#include <libavutil/frame.h>
}

namespace kelp_core {

/// Whether appendAsDouble knows this sample format.
bool isConvertible(AVSampleFormat format);

/// Appends frames [first, first + count) of a decoded block as interleaved doubles. FFmpeg puts an integer
/// sample's valid bits on top of its container, so container / 2^(container bits − 1) is s / 2^(n − 1).
void appendAsDouble(const AVFrame &frame, int channels, size_t first, size_t count, std::vector<double> &out);

} // namespace kelp_core
