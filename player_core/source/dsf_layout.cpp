#include "player_core/source/dsd_layout.h"

#include "player_core/source/dsd_limits.h"
#include "player_core/source/endian.h"

#include <cstring>
#include <iterator>
#include <limits>

namespace kelp_core {
namespace {

/// The channel mask of a channel type, where it goes with the number of channels.
uint32_t speakersOf(uint32_t type, int channels)
{
    constexpr struct
    {
        int channels;
        uint32_t mask;
    } types[] = {{0, 0}, {1, 0}, {2, 0}, {3, 0x07}, {4, 0x33}, {4, 0x0F}, {5, 0x37}, {6, 0x3F}};
    return type < std::size(types) && types[type].channels == channels ? types[type].mask : 0;
}

} // namespace

DsdLayoutOutcome parseDsf(ByteInput &input)
{
    constexpr int64_t maxBlockBytes = 1 << 20;
    uint8_t head[28], format[52], data[12];
    if (!input.readFully(0, head, sizeof head) || std::memcmp(head, "DSD ", 4) != 0)
        return {{}, "the file is damaged: its DSF head is cut off"};
    const uint64_t headSize = littleU64(head + 4);
    const auto fileSize = static_cast<uint64_t>(input.sizeBytes());
    if (headSize < sizeof head || headSize > fileSize)
        return {{}, "the file is damaged: its DSF head has a wrong size"};
    const auto formatAt = static_cast<int64_t>(headSize);
    if (!input.readFully(formatAt, format, sizeof format) || std::memcmp(format, "fmt ", 4) != 0)
        return {{}, "the file is damaged: its DSF format is cut off"};
    const uint64_t formatSize = littleU64(format + 4);
    if (formatSize < sizeof format || formatSize > fileSize)
        return {{}, "the file is damaged: its DSF format has a wrong size"};
    if (littleU32(format + 16) != 0)
        return {{}, "the coding inside this DSF file is not one this player decodes"};
    const int64_t dataAt = formatAt + static_cast<int64_t>(formatSize);
    if (!input.readFully(dataAt, data, sizeof data) || std::memcmp(data, "data", 4) != 0)
        return {{}, "the file is damaged: its DSF data are cut off"};

    DsdLayout layout;
    layout.name = "DSF";
    const uint32_t channels = littleU32(format + 24), rate = littleU32(format + 28);
    layout.channels = static_cast<int>(channels > 1000 ? 1000 : channels);
    layout.rateHz = rate > std::numeric_limits<int>::max() ? 0 : static_cast<int>(rate);
    if (std::string error = dsdLimitError(layout); !error.empty())
        return {{}, error};
    layout.speakers = speakersOf(littleU32(format + 20), layout.channels);
    const uint32_t order = littleU32(format + 32);
    layout.blockBytes = littleU32(format + 44);
    const uint64_t samples = littleU64(format + 36);
    // A sample count that no file could hold is a damaged one.
    constexpr uint64_t maxSamples = uint64_t{1} << 48;
    if ((order != 1 && order != 8) || layout.blockBytes < 1 || layout.blockBytes > maxBlockBytes ||
        samples > maxSamples)
        return {{}, "the file is damaged: its DSF format makes no sense"};
    layout.lowestBitFirst = order == 1;
    layout.totalFrames = static_cast<int64_t>((samples + 7) / 8);
    layout.validBitsOfLastFrame = samples % 8 ? static_cast<int>(samples % 8) : 8;
    layout.dataOffset = dataAt + static_cast<int64_t>(sizeof data);
    const int64_t blocks = (layout.totalFrames + layout.blockBytes - 1) / layout.blockBytes;
    layout.dataBytes = blocks * layout.blockBytes * layout.channels;
    const uint64_t tag = littleU64(head + 20);
    if (tag >= static_cast<uint64_t>(layout.dataOffset) && tag < fileSize)
        layout.tagOffset = static_cast<int64_t>(tag);
    return {layout, {}};
}

} // namespace kelp_core
