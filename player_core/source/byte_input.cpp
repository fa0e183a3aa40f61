#include "player_core/source/byte_input.h"

#include <algorithm>
#include <cstring>

namespace kelp_core {

int64_t MemoryInput::readAt(int64_t offset, uint8_t *to, size_t size)
{
    if (offset < 0)
        return -1;
    if (offset >= sizeBytes())
        return 0;
    const size_t count = std::min(size, bytes_.size() - static_cast<size_t>(offset));
    if (count > 0)
        std::memcpy(to, bytes_.data() + offset, count);
    return static_cast<int64_t>(count);
}

} // namespace kelp_core
