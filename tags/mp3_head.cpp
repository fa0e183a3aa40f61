// MP3 behind an ID3v2 tag: the first frame header.
#include "tags/head_readers.h"

bool readMp3Head(LazyBytes &head, AudioFileInfo &info)
{
    constexpr uint32_t rates[4] = {44100, 48000, 32000, 0}; // MPEG-1
    constexpr uint8_t mpeg1 = 3;
    constexpr uint8_t mono = 3;
    info.bitsPerSample = 16;
    for (uint64_t at = 10 + uint64_t(head.first(10).syncSafe28(6)); head.has(at, 4); ++at) {
        const ByteView frame = head.slice(at, 4);
        if (frame.at(0) != 0xFF || (frame.at(1) & 0xE0) != 0xE0)
            continue;
        if ((frame.at(1) >> 3 & 3) == mpeg1)
            info.sampleRate = rates[frame.at(2) >> 2 & 3];
        info.channels = frame.at(3) >> 6 == mono ? 1 : 2;
        return info.sampleRate > 0;
    }
    return false;
}
