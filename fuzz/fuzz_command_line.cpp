// The engine's command line: arguments parted by line ends.

#include "player_core/session/options.h"

#include <cstdlib>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    std::vector<std::string> args(1);
    for (size_t i = 0; i < size; ++i) {
        if (data[i] == '\n')
            args.emplace_back();
        else
            args.back() += static_cast<char>(data[i]);
    }
    const kelp_core::ParsedCommand command = kelp_core::parseCommandLine(args);
    const bool bad = command.kind == kelp_core::CommandKind::bad;
    const kelp_core::SessionOptions &o = command.options;
    if (bad == command.error.empty() || o.volume < 0 || o.volume > 100 || !(o.startSec >= 0) ||
        !(o.crossfadeSec >= 0))
        std::abort();
    return 0;
}
