// Sheets of any bytes: text decoding, parsing, and the tracks' spans.

#include "player_core/source/cue_sheet.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto sheet = kelp_core::parseCueSheet({reinterpret_cast<const char *>(data), size});
    if (!sheet)
        return 0;
    for (const auto &span : kelp_core::cueSpans(*sheet)) {
        if (span.file >= sheet->files.size() || span.startFrames < 0 ||
            (span.endFrames >= 0 && span.endFrames <= span.startFrames))
            std::abort();
    }
    return 0;
}
