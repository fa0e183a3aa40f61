// KelpPlayerEngine: the engine as a program of its own.
//
// Questions about devices are answered from here: hosts ask them while they start, and FFmpeg's libraries
// take longer to load than a list of devices takes to make. Everything else is in the library next to us.

#include "player_core/probe/device_answers.h"

#include <cstdio>
#include <string>
#include <vector>

#include <climits>
#include <cstdlib>
#include <dlfcn.h>
#include <unistd.h>

namespace {

constexpr const char *libraryName = "libkelp_player_core.so";

/// The folder this program stands in, with a slash behind it.
std::string programFolder()
{
    char path[PATH_MAX];
    const ssize_t n = ::readlink("/proc/self/exe", path, sizeof path - 1);
    if (n <= 0)
        return {};
    const std::string full(path, static_cast<size_t>(n));
    return full.substr(0, full.rfind('/') + 1);
}

void *openLibrary(std::string &error)
{
    const std::string folder = programFolder();
    for (const std::string &path : {folder + libraryName, folder + "../lib/kelp-player/" + libraryName}) {
        if (::access(path.c_str(), F_OK) != 0)
            continue;
        if (void *library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL))
            return library;
        error = ::dlerror();
        return nullptr;
    }
    error = std::string(libraryName) + " stands neither next to the program nor in ../lib/kelp-player";
    return nullptr;
}

} // namespace

int main(int argc, char **argv)
{
    const std::vector<std::string> args(argv + (argc > 0 ? 1 : 0), argv + argc);
    if (const auto answer = kelp_core::answerDeviceProbe(args))
        return kelp_core::printAnswer(*answer);

    std::string error;
    void *library = openLibrary(error);
    void *entry = library ? ::dlsym(library, "kelp_player_main") : nullptr;
    if (!entry) {
        std::fprintf(stderr, "The engine's library cannot be loaded: %s\n", error.c_str());
        return 1;
    }
    // Never closed again: a thread of the session may outlive it in there.
    return reinterpret_cast<int (*)(int, char **)>(entry)(argc, argv);
}
