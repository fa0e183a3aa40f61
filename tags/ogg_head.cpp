// Ogg: pages of a header, a table of segment lengths and the segments (RFC 3533).
#include "tags/head_readers.h"

bool readOggHead(LazyBytes &head, AudioFileInfo &info)
{
    constexpr uint64_t headerBytes = 27;
    constexpr std::string_view identification("\x01vorbis", 7);
    info.bitsPerSample = 16;
    for (uint64_t at = 0; head.has(at, headerBytes);) {
        const ByteView header = head.slice(at, headerBytes);
        const uint64_t segments = header.at(26);
        if (!header.holds("OggS") || !head.has(at + headerBytes, segments))
            return false;
        const ByteView table = head.slice(at + headerBytes, segments);
        uint64_t bodyBytes = 0;
        for (uint64_t i = 0; i < segments; ++i)
            bodyBytes += table.at(i);
        at += headerBytes + segments;
        const ByteView packet = head.slice(at, std::min<uint64_t>(bodyBytes, 16));
        if (packet.holds(identification) && packet.has(0, 16)) {
            info.channels = packet.at(11);
            info.sampleRate = packet.little32(12);
            return info.sampleRate > 0;
        }
        at += bodyBytes;
    }
    return false;
}
