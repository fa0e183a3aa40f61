#include "player_core/output/sound_server.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

namespace kelp_core {
namespace {

namespace fs = std::filesystem;

/// More of a configuration file than anybody writes; the rest is not looked at.
constexpr int mostLines = 10000;

std::string textOf(const ServerSearch &search, const char *name)
{
    const char *text = search.variable(name);
    return text ? text : "";
}

bool exists(const fs::path &path)
{
    std::error_code error;
    return fs::exists(path, error);
}

/// Of a folder that may be missing or closed to us.
std::vector<fs::path> entriesOf(const fs::path &folder)
{
    std::vector<fs::path> entries;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
        entries.push_back(entry->path());
    return entries;
}

/// A display of another machine names the server that belongs to it.
bool isElsewhere(const std::string &display)
{
    return !display.empty() && !display.starts_with(':') && !display.starts_with("unix:");
}

/// Whether a client's configuration names a server, or has it looked for in further places.
bool namesServer(const fs::path &path)
{
    std::ifstream file(path);
    int lines = 0;
    for (std::string line; lines < mostLines && std::getline(file, line); ++lines) {
        line.erase(0, line.find_first_not_of(" \t"));
        if (line.starts_with("default-server") || line.starts_with("auto-connect"))
            return true;
    }
    return false;
}

std::vector<fs::path> ownFolders(const ServerSearch &search)
{
    const std::string home = textOf(search, "HOME");
    const std::string config = textOf(search, "XDG_CONFIG_HOME");
    std::vector<fs::path> folders;
    if (!config.empty())
        folders.push_back(fs::path(config) / "pulse");
    if (!home.empty()) {
        folders.push_back(fs::path(home) / ".config/pulse");
        folders.push_back(fs::path(home) / ".pulse");
    }
    return folders;
}

bool isConfigured(const ServerSearch &search)
{
    const fs::path system = search.root + "/etc/pulse";
    std::vector<fs::path> files{system / "client.conf"};
    for (const fs::path &folder : ownFolders(search))
        files.push_back(folder / "client.conf");
    for (const fs::path &file : entriesOf(system / "client.conf.d"))
        files.push_back(file);
    return std::any_of(files.begin(), files.end(), namesServer);
}

/// A server of the user's, of the whole system's, or of somebody else's whom the user may have become.
bool hasSocket(const ServerSearch &search)
{
    const std::string runtime = textOf(search, "XDG_RUNTIME_DIR");
    std::vector<fs::path> sockets{search.root + "/run/pulse/native", search.root + "/var/run/pulse/native"};
    if (!runtime.empty())
        sockets.push_back(fs::path(runtime) / "pulse/native");
    for (const fs::path &user : entriesOf(search.root + "/run/user"))
        sockets.push_back(user / "pulse/native");
    // Without a runtime folder a server's own is linked here, under the name of the machine.
    for (const fs::path &folder : ownFolders(search)) {
        for (const fs::path &entry : entriesOf(folder)) {
            if (entry.filename().string().ends_with("-runtime"))
                sockets.push_back(entry / "native");
        }
    }
    return std::any_of(sockets.begin(), sockets.end(), exists);
}

} // namespace

bool soundServerMayExist(const ServerSearch &search)
{
    for (const char *told :
         {"PULSE_SERVER", "PULSE_CLIENTCONFIG", "PULSE_RUNTIME_PATH", "PULSE_STATE_PATH"}) {
        if (!textOf(search, told).empty())
            return true;
    }
    return isElsewhere(textOf(search, "DISPLAY")) || hasSocket(search) || isConfigured(search);
}

bool soundServerMayExist()
{
    return soundServerMayExist({[](const char *name) { return std::getenv(name); }, {}});
}

} // namespace kelp_core
