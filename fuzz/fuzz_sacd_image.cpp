// The tables, texts and audio sectors of an SACD image. An image's sectors below 510 hold nothing that is
// read, and a fuzzer would drown in them, so the input is a packed form: each piece is two bytes of sector
// number and one of how many of the sector's first 16-byte lines follow.

#include "player_core/source/sacd_frame_reader.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

using namespace kelp_core;

constexpr size_t mostSectors = 640;

std::vector<uint8_t> unpack(const uint8_t *data, size_t size)
{
    std::vector<uint8_t> image(mostSectors * sacdSectorBytes, 0);
    for (size_t at = 0; at + 3 <= size;) {
        const size_t sector = (static_cast<size_t>(data[at]) << 8 | data[at + 1]) % mostSectors;
        const size_t bytes = std::min<size_t>({data[at + 2] * size_t{16}, size - at - 3, sacdSectorBytes});
        std::memcpy(image.data() + sector * sacdSectorBytes, data + at + 3, bytes);
        at += 3 + bytes;
    }
    return image;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::vector<uint8_t> image = unpack(data, size);
    MemoryInput input(image);
    const SacdOutcome outcome = readSacdImage(input);
    if (outcome.image.has_value() == !outcome.error.empty())
        std::abort();
    if (!outcome.image)
        return 0;
    const SacdArea &area = outcome.image->area;
    if (area.tracks.empty() || area.channels < 1 || area.lastSector < area.firstSector ||
        area.lastSector >= static_cast<int64_t>(mostSectors))
        std::abort();
    SacdSectors sectors(input, outcome.image->storedBytes);
    SacdFrameReader reader(sectors, area);
    SacdFrame frame;
    for (const SacdTrack &track : area.tracks) {
        if (track.frames < 1 || track.startFrame < 0)
            std::abort();
        for (int64_t number = track.startFrame; number < std::min(track.endFrame(), track.startFrame + 4);
             ++number) {
            if (reader.read(number, track.firstSector, frame) == SacdFrameReader::Result::found &&
                frame.number != number)
                std::abort();
        }
    }
    return 0;
}
