// The two entries. A session: "-test MODE [OPERAND]"; the arguments are printed with "-print-args".
// "-stream", as a window starts it, is the mode "player". A probe: "-fill N", "-exit N TEXT", "-where"
// (working directory), or else the arguments one a line.
#include "player_core/include/kelp_player_core.h"
#include "support_engine/test_engine_control.h"
#include "support_engine/test_engine_modes.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <unistd.h>

namespace {

constexpr int badCommandLine = 2;

std::string probeText(char **argv, int argc, int &rc)
{
    const std::string flag = argc > 1 ? argv[1] : "";
    const std::string operand = argc > 2 ? argv[2] : "";
    if (flag == "-fill")
        return std::string(std::strtoul(operand.c_str(), nullptr, 10), 'f');
    if (flag == "-exit") {
        rc = std::atoi(operand.c_str());
        return argc > 3 ? argv[3] : "";
    }
    if (flag == "-where") {
        char directory[4096];
        return getcwd(directory, sizeof directory) != nullptr ? directory : "";
    }
    std::string text;
    for (int i = 0; i < argc; ++i)
        text += std::string(argv[i]) + "\n";
    return text;
}

} // namespace

extern "C" KELP_PLAYER_CORE_EXPORT int kelp_player_main(int argc, char **argv)
{
    std::string name, operand;
    bool printArgs = false;
    for (int i = 1; i < argc; ++i) {
        if (name.empty() && std::strcmp(argv[i], "-stream") == 0)
            name = "player";
        printArgs = printArgs || std::strcmp(argv[i], "-print-args") == 0;
        if (std::strcmp(argv[i], "-test") == 0 && i + 1 < argc) {
            name = argv[i + 1];
            operand = i + 2 < argc ? argv[i + 2] : "";
        }
    }
    if (printArgs) {
        for (int i = 0; i < argc; ++i)
            std::printf("arg %d %s\n", i, argv[i]);
        std::printf("terminated %d\n", argv[argc] == nullptr);
        std::fflush(stdout);
    }
    test_engine::Control control(argc, argv);
    const test_engine::Mode mode = test_engine::findMode(name);
    return mode != nullptr ? mode(control, operand) : badCommandLine;
}

extern "C" KELP_PLAYER_CORE_EXPORT int kelp_player_probe(char **argv, int argc, char *buffer, int size)
{
    if (buffer == nullptr || size < 1)
        return -1;
    int rc = 0;
    const std::string text = probeText(argv, argc, rc);
    const std::size_t length = std::min(text.size(), static_cast<std::size_t>(size) - 1);
    std::memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
    return rc;
}
