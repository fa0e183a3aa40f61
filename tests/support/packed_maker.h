#pragma once

#include "tests/support/pcm_signal.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace kelp_test {

/// Words of a file: a title and the like, and a picture of the front cover.
struct FileTags
{
    std::vector<std::pair<std::string, std::string>> words; ///< key and value, as FFmpeg calls them
    std::vector<uint8_t> coverPng;
};

/// Packs a signal with an encoder of FFmpeg's and writes the file. kind: "flac", "m4a" (ALAC), "wv", "tta",
/// "dts". Returns "" or a line that says what failed (an encoder may be missing from a build of FFmpeg).
/// Only "flac" and "m4a" take a cover.
std::string writePacked(const std::string &kind, const std::string &path, const PcmSignal &signal,
                        const FileTags &tags = {});

/// A small picture, eight pixels square, of one colour.
std::vector<uint8_t> smallPng();

} // namespace kelp_test
