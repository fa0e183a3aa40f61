#include "player_core/source/dsd_layout.h"

#include "player_core/source/dsd_limits.h"
#include "player_core/source/endian.h"

#include <cstring>
#include <limits>

namespace kelp_core {

DsdLayoutOutcome parseWsd(ByteInput &input)
{
    uint8_t head[48];
    if (!input.readFully(0, head, sizeof head) || std::memcmp(head, "1bit", 4) != 0)
        return {{}, "the file is damaged: its WSD head is cut off"};
    DsdLayout layout;
    layout.name = "WSD";
    const uint32_t rate = bigU32(head + 36);
    layout.rateHz = rate > std::numeric_limits<int>::max() ? 0 : static_cast<int>(rate);
    layout.channels = head[44] & 0x0F;
    if (std::string error = dsdLimitError(layout); !error.empty())
        return {{}, error};
    // Before version 1.0 the data stood at a fixed place; since then the head says where.
    constexpr uint8_t versionWithOffsets = 0x10;
    layout.dataOffset = head[8] < versionWithOffsets ? 0x800 : static_cast<int64_t>(bigU32(head + 24));
    if (layout.dataOffset < static_cast<int64_t>(sizeof head) || layout.dataOffset > input.sizeBytes())
        return {{}, "the file is damaged: its WSD data are missing"};
    layout.totalFrames = (input.sizeBytes() - layout.dataOffset) / layout.channels;
    layout.dataBytes = layout.totalFrames * layout.channels;
    return {layout, {}};
}

} // namespace kelp_core
