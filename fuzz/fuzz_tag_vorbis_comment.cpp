// Payloads of Vorbis comments.

#include "tags/vorbis_comment.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    std::string vendor;
    std::vector<VorbisComment> comments;
    const bool whole = parseVorbisComment({data, size}, vendor, comments);
    size_t bytes = vendor.size();
    for (const VorbisComment &comment : comments)
        bytes += comment.key.size() + comment.value.size() + 1;
    if (bytes > size || (whole && size < 8))
        std::abort();
    return 0;
}
