#pragma once

#include <string>
#include <vector>

namespace kelp_test {

/// What FFmpeg's own demuxer and decoder make of a file: an opinion beside ours.
struct AvDecoded
{
    std::vector<double> samples; ///< interleaved
    int channels = 0;
    std::string error; ///< "" or a line
};
AvDecoded decodeByFfmpeg(const std::string &path);

} // namespace kelp_test
