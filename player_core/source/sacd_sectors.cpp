#include "player_core/source/sacd_sectors.h"

#include <cstring>

namespace kelp_core {
namespace {

constexpr int plainBytes = 2048;
constexpr int framedBytes = 2064;
constexpr int framedHeadBytes = 12;

int headBytes(int storedBytes)
{
    return storedBytes == framedBytes ? framedHeadBytes : 0;
}

} // namespace

bool SacdSectors::read(int64_t first, size_t count, uint8_t *to)
{
    if (first < 0 || first + static_cast<int64_t>(count) > this->count())
        return false;
    const int64_t offset = first * storedBytes_;
    if (headBytes(storedBytes_) == 0)
        return input_.readFully(offset, to, count * sacdSectorBytes);
    const auto stride = static_cast<size_t>(storedBytes_);
    stored_.resize(count * stride);
    if (!input_.readFully(offset, stored_.data(), stored_.size()))
        return false;
    for (size_t sector = 0; sector < count; ++sector)
        std::memcpy(to + sector * sacdSectorBytes,
                    stored_.data() + sector * stride + static_cast<size_t>(headBytes(storedBytes_)),
                    sacdSectorBytes);
    return true;
}

int SacdSectors::detect(ByteInput &input)
{
    constexpr char name[] = "SACDMTOC";
    for (const int64_t sector : sacdMasterSectors) {
        for (const int storedBytes : {plainBytes, framedBytes}) {
            uint8_t word[8];
            if (input.readFully(sector * storedBytes + headBytes(storedBytes), word, sizeof word) &&
                std::memcmp(word, name, sizeof word) == 0)
                return storedBytes;
        }
    }
    return 0;
}

} // namespace kelp_core
