// Frames of any bytes for the DST decoder; the first byte chooses the number of channels.

#include "player_core/source/dst_decoder.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    const int channels = 1 + data[0] % kelp_core::dstMaxChannels;
    kelp_core::DstDecoder decoder(channels, 4704);
    std::vector<uint8_t> out;
    (void)decoder.decode({data + 1, size - 1}, out);
    if (out.size() != static_cast<size_t>(channels) * 4704)
        std::abort();
    return 0;
}
