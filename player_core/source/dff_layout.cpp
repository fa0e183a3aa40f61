#include "player_core/source/dsd_layout.h"

#include "player_core/source/dsd_limits.h"
#include "player_core/source/endian.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <limits>

namespace kelp_core {
namespace {

constexpr int maxChunks = 4096;

/// A chunk's place: its id, where its body begins and how long the head says it is.
struct Chunk
{
    char id[5] = "";
    int64_t body = 0;
    int64_t size = 0;

    bool is(const char *word) const { return std::memcmp(id, word, 4) == 0; }
    /// Chunks are padded to an even length.
    int64_t next() const { return body + size + (size & 1); }
};

bool readChunk(ByteInput &input, int64_t at, Chunk &chunk)
{
    uint8_t head[12];
    if (!input.readFully(at, head, sizeof head))
        return false;
    std::memcpy(chunk.id, head, 4);
    const uint64_t size = bigU64(head + 4);
    constexpr uint64_t maxSize = uint64_t{1} << 60;
    if (size > maxSize)
        return false;
    chunk.body = at + 12;
    chunk.size = static_cast<int64_t>(size);
    return true;
}

/// The channel mask of the ids of a channel chunk; 0 when one is unknown or they stand in another order.
uint32_t readSpeakers(ByteInput &input, const Chunk &chunk, int channels)
{
    constexpr struct
    {
        const char *id;
        uint32_t bit;
    } ids[] = {{"SLFT", 0x01}, {"SRGT", 0x02}, {"MLFT", 0x01}, {"MRGT", 0x02},
               {"C   ", 0x04}, {"LFE ", 0x08}, {"LS  ", 0x10}, {"RS  ", 0x20}};
    uint32_t mask = 0;
    for (int channel = 0; channel < channels && channel < DsdLayout::maxChannels; ++channel) {
        uint8_t id[4];
        if (!input.readFully(chunk.body + 2 + 4 * channel, id, sizeof id))
            return 0;
        const auto known = std::find_if(std::begin(ids), std::end(ids),
                                        [&](const auto &one) { return std::memcmp(one.id, id, 4) == 0; });
        if (known == std::end(ids) || known->bit <= mask)
            return 0;
        mask |= known->bit;
    }
    return channels > 2 ? mask : 0;
}

/// The property chunk: rate, channels and coding.
bool readProperties(ByteInput &input, const Chunk &properties, DsdLayout &layout, std::string &coding)
{
    uint8_t word[4];
    if (!input.readFully(properties.body, word, 4) || std::memcmp(word, "SND ", 4) != 0)
        return true; // properties of something other than sound
    int64_t at = properties.body + 4;
    const int64_t end = properties.body + properties.size;
    Chunk chunk;
    for (int count = 0; count < maxChunks && at < end && readChunk(input, at, chunk); ++count) {
        if (chunk.is("FS  ") && input.readFully(chunk.body, word, 4)) {
            const uint32_t rate = bigU32(word);
            layout.rateHz = rate > std::numeric_limits<int>::max() ? 0 : static_cast<int>(rate);
        } else if (chunk.is("CHNL") && input.readFully(chunk.body, word, 2)) {
            layout.channels = static_cast<int>(bigU16(word));
            layout.speakers = readSpeakers(input, chunk, layout.channels);
        } else if (chunk.is("CMPR") && input.readFully(chunk.body, word, 4)) {
            coding.assign(reinterpret_cast<const char *>(word), 4);
        }
        if (chunk.next() <= at)
            return false;
        at = chunk.next();
    }
    return true;
}

bool readDstHead(ByteInput &input, const Chunk &chunk, DsdLayout &layout)
{
    Chunk information;
    uint8_t body[6];
    if (!readChunk(input, chunk.body, information) || !information.is("FRTE") ||
        !input.readFully(information.body, body, sizeof body) || bigU16(body + 4) != 75)
        return false;
    layout.dst = true;
    layout.totalFrames = static_cast<int64_t>(bigU32(body)) * layout.dstFrameBytes();
    layout.dataOffset = information.next();
    layout.dataBytes = chunk.body + chunk.size - layout.dataOffset;
    return layout.dataBytes >= 0;
}

} // namespace

DsdLayoutOutcome parseDff(ByteInput &input)
{
    Chunk form;
    if (!readChunk(input, 0, form) || !form.is("FRM8"))
        return {{}, "the file is damaged: its DFF head is cut off"};
    DsdLayout layout;
    layout.name = "DFF";
    std::string coding = "DSD ";
    bool found = false;
    int64_t at = form.body + 4;
    Chunk chunk;
    for (int count = 0; count < maxChunks && readChunk(input, at, chunk); ++count) {
        const bool plain = chunk.is("DSD "), dst = chunk.is("DST ");
        if (chunk.is("PROP") && !found && !readProperties(input, chunk, layout, coding))
            return {{}, "the file is damaged: its DFF properties make no sense"};
        if ((plain || dst) && !found) {
            found = true;
            if (std::string error = dsdLimitError(layout); !error.empty())
                return {{}, error};
            if (dst && (layout.rateHz % 600 != 0 || !readDstHead(input, chunk, layout)))
                return {{}, "the file is damaged: its DST head makes no sense"};
            if (plain) {
                layout.dataOffset = chunk.body;
                layout.totalFrames = chunk.size / layout.channels;
                layout.dataBytes = layout.totalFrames * layout.channels;
            }
            if ((coding == "DST ") != dst)
                return {{}, "the file is damaged: its DFF head and data disagree about the coding"};
        }
        if (chunk.is("ID3 "))
            layout.tagOffset = chunk.body;
        at = chunk.next();
    }
    if (!found)
        return {{}, "the file is damaged: its DFF data are missing"};
    return {layout, {}};
}

} // namespace kelp_core
