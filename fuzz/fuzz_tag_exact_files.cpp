// The exact readers on files of any bytes: FLAC blocks, and ID3 tags in WAV, DSF and DFF.

#include "fuzz/file_of_bytes.h"
#include "tags/flac_tags.h"
#include "tags/id3_tags.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static FileOfBytes file;
    file.hold(data, size);
    FlacBlocks blocks;
    std::string error;
    if (readFlacBlocks(file.path("flac"), blocks, &error) ? blocks.audioStart > size : error.empty())
        std::abort();
    TagSet tags;
    (void)readFlacTags(file.path("flac"), tags);
    for (const char *suffix : {"wav", "dsf", "dff"}) {
        error.clear();
        if (!readId3Tags(file.path(suffix), tags, &error) && error.empty())
            std::abort();
    }
    return 0;
}
