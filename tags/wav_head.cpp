// WAV: chunks with little-endian sizes behind "RIFF", a size and "WAVE".
#include "tags/head_readers.h"

bool readWavHead(LazyBytes &head, AudioFileInfo &info)
{
    constexpr uint16_t floatTag = 3;
    if (head.size() < 20)
        return false;
    for (uint64_t at = 12; head.has(at, 8);) {
        const ByteView chunk = head.slice(at, 8 + 16);
        const uint64_t size = chunk.little32(4);
        if (chunk.holds("fmt ") && size >= 16 && chunk.has(0, 24)) {
            info.isFloat = info.isFloat || chunk.little16(8) == floatTag;
            info.channels = chunk.little16(10);
            info.sampleRate = chunk.little32(12);
            info.bitsPerSample = chunk.little16(22);
        } else if (chunk.holds("data")) {
            info.dataOffset = static_cast<uint32_t>(at + 8);
            info.dataSize = static_cast<uint32_t>(size);
            if (info.channels > 0 && info.bitsPerSample >= 8)
                info.totalSamples = size / (uint64_t(info.bitsPerSample / 8) * info.channels);
        } else if (chunk.holds("ID3 ") && head.has(at + 8, size)) {
            LazyBytes tag(head.slice(at + 8, size));
            readId3(tag, info);
        }
        at += 8 + size + size % 2;
    }
    return info.sampleRate > 0;
}
