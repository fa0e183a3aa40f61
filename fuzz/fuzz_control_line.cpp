// Control lines of a session: cut out of a stream of bytes in pieces, and parsed.

#include "player_core/session/control_line.h"
#include "player_core/session/control_reader.h"

#include <algorithm>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const size_t step = 1 + data[0];
    kelp_core::LineCutter cutter;
    std::string line;
    for (size_t at = 1; at < size; at += step) {
        cutter.add(reinterpret_cast<const char *>(data) + at, std::min(step, size - at));
        while (cutter.next(line)) {
            const kelp_core::ControlLine parsed = kelp_core::parseControlLine(line);
            const bool malformed = parsed.kind == kelp_core::ControlKind::malformed;
            if (malformed == parsed.error.empty() || line.size() > kelp_core::maxControlLine)
                std::abort();
        }
    }
    return 0;
}
