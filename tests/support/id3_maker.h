#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace kelp_test {

struct Id3Options
{
    int version = 3;     ///< 2, 3 or 4
    bool unsync = false; ///< zeros behind 0xFF, as the version does it
    std::vector<std::pair<std::string, std::string>> texts = {}; ///< frame id and UTF-8 value ("TIT2" …)
    std::vector<uint8_t> backCover = {};                         ///< a picture of type 4, before the front's
    std::vector<uint8_t> frontCover = {};
    bool wideDescription = false; ///< the front's description in UTF-16
};

/// An ID3v2 tag.
std::vector<uint8_t> id3Bytes(const Id3Options &options);

} // namespace kelp_test
