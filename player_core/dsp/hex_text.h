#pragma once

#include <cstdint>
#include <string>

namespace kelp_core {

/// Appends two hexadecimal digits.
inline void appendHex(std::string &text, uint8_t byte)
{
    constexpr char digits[] = "0123456789abcdef";
    text += digits[byte >> 4];
    text += digits[byte & 15];
}

} // namespace kelp_core
