// ID3v2 tags of any bytes.

#include "player_core/source/id3_picture.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    kelp_core::MemoryInput input({data, size});
    const auto picture = kelp_core::readId3Picture(input, 0);
    if (picture && picture->size() > size)
        std::abort();
    return 0;
}
