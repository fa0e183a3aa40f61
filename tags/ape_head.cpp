// Monkey's Audio: an old layout up to version 3.97, then a descriptor with a header behind it.
#include "tags/head_readers.h"

namespace {

bool readOldHead(ByteView bytes, AudioFileInfo &info)
{
    constexpr uint64_t frameBlocks = 73728;
    constexpr uint16_t is8Bit = 1;
    constexpr uint16_t is24Bit = 8;
    constexpr uint16_t hasSeekElements = 16;
    const uint16_t flags = bytes.little16(8);
    info.channels = bytes.little16(10);
    info.sampleRate = bytes.little32(12);
    info.bitsPerSample = (flags & is24Bit) ? 24 : (flags & is8Bit) ? 8 : 16;
    info.dataOffset = bytes.little32(16) + 32 + ((flags & hasSeekElements) ? 4 : 0);
    info.totalSamples = bytes.little32(24) * frameBlocks + bytes.little32(28);
    return true;
}

} // namespace

bool readApeHead(LazyBytes &head, AudioFileInfo &info)
{
    constexpr uint16_t firstNewVersion = 3980;
    constexpr uint32_t newHeaderBytes = 24;
    const ByteView bytes = head.first(32);
    if (bytes.little16(4) < firstNewVersion)
        return readOldHead(bytes, info);

    const uint32_t descriptorBytes = bytes.little32(8);
    const uint32_t headerBytes = bytes.little32(12);
    if (!head.has(descriptorBytes, newHeaderBytes) || headerBytes < newHeaderBytes)
        return false;
    info.dataOffset = descriptorBytes + headerBytes + bytes.little32(16) + bytes.little32(20);
    const ByteView header = head.slice(descriptorBytes, newHeaderBytes);
    const uint64_t blocksPerFrame = header.little32(4);
    const uint64_t frames = header.little32(12);
    info.totalSamples = header.little32(8) + (frames >= 2 ? (frames - 1) * blocksPerFrame : 0);
    info.bitsPerSample = header.little16(16);
    info.channels = header.little16(18);
    info.sampleRate = header.little32(20);
    return true;
}
