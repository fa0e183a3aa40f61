// The heads of DSF, DFF, WSD and WAV files, and the recognition of contents.

#include "player_core/source/content_kind.h"
#include "player_core/source/dsd_layout.h"
#include "player_core/source/wav_head.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    using namespace kelp_core;
    MemoryInput input({data, size});
    (void)readWavHead(input);
    (void)detectContent(input);
    for (const auto parse : {parseDsf, parseDff, parseWsd}) {
        const DsdLayoutOutcome outcome = parse(input);
        if (outcome.layout.has_value() != outcome.error.empty())
            std::abort();
        if (!outcome.layout)
            continue;
        const DsdLayout &layout = *outcome.layout;
        if (layout.channels < 1 || layout.channels > DsdLayout::maxChannels || layout.rateHz < 1 ||
            layout.totalFrames < 0 || layout.dataBytes < 0 || layout.dataOffset < 0 || layout.blockBytes < 1)
            std::abort();
    }
    return 0;
}
