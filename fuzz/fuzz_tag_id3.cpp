// ID3v2 tags, by the exact reader and by the one for lists.

#include "tags/head_readers.h"
#include "tags/id3_tags.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::span<const uint8_t> bytes(data, size);
    const TagSet tags = parseId3Tag(bytes);
    size_t total = 0;
    for (const auto field : tagSetFields)
        total += (tags.*field).size();
    if (total > size || tags.title.find('\0') != std::string::npos)
        std::abort();
    LazyBytes lazy{ByteView(bytes)};
    AudioFileInfo info;
    readId3(lazy, info);
    if (decodeId3Text(ByteView(bytes)).size() > 3 * size)
        std::abort();
    return 0;
}
