// Headers of one fixed block: WavPack, TTA and DSF.
#include "tags/head_readers.h"

bool readWavPackHead(LazyBytes &head, AudioFileInfo &info)
{
    constexpr uint32_t rates[16] = {6000,  8000,  9600,  11025, 12000, 16000, 22050,  24000,
                                    32000, 44100, 48000, 64000, 88200, 96000, 192000, 0};
    constexpr uint32_t isMono = 4;
    const ByteView bytes = head.first(32);
    const uint32_t flags = bytes.little32(24);
    const uint32_t rate = rates[flags >> 23U & 15U];
    info.sampleRate = rate > 0 ? rate : 44100;
    info.channels = (flags & isMono) ? 1 : 2;
    const uint32_t storedBits = (flags & 3U) * 8 + 8;
    const uint32_t unusedBits = flags >> 13U & 31U;
    info.bitsPerSample = storedBits - std::min(storedBits, unusedBits);
    info.totalSamples = bytes.little32(12);
    info.dataOffset = 32;
    return true;
}

bool readTtaHead(LazyBytes &head, AudioFileInfo &info)
{
    const ByteView bytes = head.first(22);
    info.channels = bytes.little16(6);
    info.bitsPerSample = bytes.little16(8);
    info.sampleRate = bytes.little32(10);
    info.totalSamples = bytes.little32(14);
    info.dataOffset = 22;
    return info.sampleRate > 0;
}

bool readDsfHead(LazyBytes &head, AudioFileInfo &info)
{
    const ByteView bytes = head.first(28);
    info.channels = bytes.little32(20) & 0x3FF;
    info.sampleRate = bytes.little32(24);
    info.bitsPerSample = 1;
    return true;
}
