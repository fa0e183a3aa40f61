/// \file
/// The payload of a Vorbis comment: a vendor and a list of "KEY=value", all lengths 32-bit little-endian.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

struct VorbisComment
{
    std::string key; ///< spelled as in the file
    std::string value;

    bool operator==(const VorbisComment &) const = default;
};

/// Replaces vendor and comments by what the payload holds, in its order; an entry without "=" is left out.
/// \return false on a malformed payload (under 8 bytes, or a length that does not fit); what was read before
///         the fault stands in vendor and comments.
[[nodiscard]] bool parseVorbisComment(std::span<const uint8_t> payload, std::string &vendor,
                                      std::vector<VorbisComment> &comments);
