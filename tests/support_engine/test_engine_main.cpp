// The program form: a session with -test or -stream among the arguments, a probe else.
#include "player_core/include/kelp_player_core.h"

#include <cstdio>
#include <cstring>
#include <vector>

int main(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "-test") == 0 || std::strcmp(argv[i], "-stream") == 0)
            return kelp_player_main(argc, argv);
    }
    std::vector<char> buffer(4 * 1024 * 1024);
    const int rc = kelp_player_probe(argv, argc, buffer.data(), static_cast<int>(buffer.size()));
    std::fputs(buffer.data(), stdout);
    return rc;
}
