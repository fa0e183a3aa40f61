#pragma once

#include "player_core/source/source.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kelp_test {

/// All that a source gives until its end or its failure.
struct Delivered
{
    std::vector<double> pcm;
    std::vector<uint8_t> dsd;
    size_t frames = 0;
    kelp_core::ReadOutcome last; ///< end or failed
};

/// Reads a source to its end in blocks of the given size.
Delivered readAll(kelp_core::Source &source, size_t blockFrames = 1000);

/// Reads a given number of frames, fewer at the end.
Delivered readSome(kelp_core::Source &source, size_t frames);

/// Opens a plain file.
kelp_core::OpenedSource openPath(const std::string &path);

} // namespace kelp_test
