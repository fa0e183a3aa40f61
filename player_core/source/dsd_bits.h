#pragma once

#include <array>
#include <cstdint>

namespace kelp_core {

/// The silence pattern: equal numbers of ones and zeros, far above hearing.
inline constexpr uint8_t dsdSilence = 0x69;

/// Each byte with its bits in the other order.
inline constexpr std::array<uint8_t, 256> reversedBits = [] {
    std::array<uint8_t, 256> table{};
    for (unsigned value = 0; value < 256; ++value) {
        unsigned turned = 0;
        for (int bit = 0; bit < 8; ++bit)
            turned |= (value >> bit & 1U) << (7 - bit);
        table[value] = static_cast<uint8_t>(turned);
    }
    return table;
}();

} // namespace kelp_core
