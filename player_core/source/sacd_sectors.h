#pragma once

#include "player_core/source/byte_input.h"

#include <vector>

namespace kelp_core {

/// Bytes of every sector that count, whatever stands around them.
inline constexpr size_t sacdSectorBytes = 2048;

/// Where the three copies of the master table begin, in sectors.
inline constexpr int64_t sacdMasterSectors[] = {510, 520, 530};

/// The sectors of an SACD image (Scarlet Book): of 2,048 bytes, or of 2,064 with 12 before and 4 behind those
/// that count. A view of an input that must outlive it. One thread at a time.
class SacdSectors
{
public:
    /// storedBytes: 2048 or 2064.
    SacdSectors(ByteInput &input, int storedBytes)
        : input_(input)
        , storedBytes_(storedBytes)
    {
    }

    /// Whole sectors of the image; what is cut off at its end does not count.
    int64_t count() const { return input_.sizeBytes() / storedBytes_; }

    /// Reads sectors one behind the other, count * sacdSectorBytes bytes. False when one of them is not there
    /// or cannot be read.
    [[nodiscard]] bool read(int64_t first, size_t count, uint8_t *to);

    /// Bytes that a sector takes in the file: 2048, 2064, or 0 when the input is no SACD image. One of the
    /// three master tables must show its name.
    static int detect(ByteInput &input);

private:
    ByteInput &input_;
    int storedBytes_;
    std::vector<uint8_t> stored_;
};

} // namespace kelp_core
