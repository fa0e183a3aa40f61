#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kelp_core {

/// What a text channel says of the disc; UTF-8, one line each, empty where it is silent.
struct SacdDiscText
{
    std::string albumTitle;
    std::string albumArtist;
    std::string discTitle;
    std::string discArtist;
};

/// What a text channel says of a track; UTF-8, one line each, empty where it is silent.
struct SacdTrackText
{
    std::string title;
    std::string performer;
};

/// Text of an SACD in one of its character sets (1 ISO 646, 2 ISO 8859-1, 3 Music Shift-JIS, 4 KS C 5601,
/// 5 GB 2312, 6 Big5, 7 ISO 8859-1 with escapes) as UTF-8. Bytes that are not valid in the set, or an unknown
/// set, are guessed at. Control characters become blanks.
std::string sacdTextToUtf8(std::string_view bytes, int characterSet);

/// Reads a sector that begins with "SACDText"; all empty when it does not.
SacdDiscText readSacdDiscText(std::span<const uint8_t> sector, int characterSet);

/// Reads the texts of the first `tracks` tracks. table: the bytes from the sector that begins with "SACDTTxt"
/// to the end of the area table. Empty when it does not begin so.
std::vector<SacdTrackText> readSacdTrackTexts(std::span<const uint8_t> table, int tracks, int characterSet);

} // namespace kelp_core
