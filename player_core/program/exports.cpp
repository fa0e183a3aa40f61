#include "kelp_player_core.h"

#include "player_core/probe/probe_table.h"
#include "player_core/session/engine_main.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <string>
#include <vector>

#include <unistd.h>

namespace {

std::vector<std::string> argumentsOf(int argc, char **argv)
{
    return argc > 1 && argv ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

} // namespace

// Nothing may be thrown across a C interface; what can still be thrown here is a lack of memory.

int kelp_player_main(int argc, char **argv)
{
    try {
        const std::vector<std::string> args = argumentsOf(argc, argv);
        if (const auto answer = kelp_core::answerProbe(args))
            return kelp_core::printAnswer(*answer);
        return kelp_core::runEngine(args);
    } catch (const std::exception &) {
        return 1;
    }
}

int kelp_player_probe(char **argv, int argc, char *buffer, int size)
{
    if (!buffer || size < 1)
        return -1;
    buffer[0] = '\0';
    try {
        const std::vector<std::string> args = argumentsOf(argc, argv);
        const kelp_core::ProbeAnswer answer =
            kelp_core::answerProbe(args).value_or(kelp_core::unknownProbe(args));
        const size_t n = std::min(answer.text.size(), static_cast<size_t>(size - 1));
        std::memcpy(buffer, answer.text.data(), n);
        buffer[n] = '\0';
        return answer.code;
    } catch (const std::exception &) {
        return 1;
    }
}
