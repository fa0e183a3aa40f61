// The readers of tags within a head, and of headers, each on the same bytes, whatever these begin with.

#include "tags/head_readers.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const ByteView bytes(std::span<const uint8_t>(data, size));
    for (const auto read : {readFlacComment, readId3, readApeTag, scanBareText}) {
        LazyBytes head(bytes);
        AudioFileInfo info;
        read(head, info);
        if (info.sampleRate != 0 || info.comment.size() > 3 * size)
            std::abort();
    }
    for (const auto read : {readWavHead, readAiffHead, readFlacHead, readApeHead, readWavPackHead,
                            readTtaHead, readOggHead, readDsfHead, readMp3Head}) {
        LazyBytes head(bytes);
        AudioFileInfo info;
        (void)read(head, info);
    }
    return 0;
}
