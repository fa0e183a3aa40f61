#pragma once

#include <cstdint>

namespace kelp_core {

inline uint32_t bigU16(const uint8_t *bytes)
{
    return static_cast<uint32_t>(bytes[0]) << 8 | bytes[1];
}
inline uint32_t bigU32(const uint8_t *bytes)
{
    return bigU16(bytes) << 16 | bigU16(bytes + 2);
}
inline uint64_t bigU64(const uint8_t *bytes)
{
    return static_cast<uint64_t>(bigU32(bytes)) << 32 | bigU32(bytes + 4);
}
inline uint32_t littleU32(const uint8_t *bytes)
{
    return static_cast<uint32_t>(bytes[0]) | static_cast<uint32_t>(bytes[1]) << 8 |
           static_cast<uint32_t>(bytes[2]) << 16 | static_cast<uint32_t>(bytes[3]) << 24;
}
inline uint64_t littleU64(const uint8_t *bytes)
{
    return static_cast<uint64_t>(littleU32(bytes + 4)) << 32 | littleU32(bytes);
}

} // namespace kelp_core
