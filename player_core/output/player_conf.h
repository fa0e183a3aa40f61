#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kelp_core {

/// Looks up an environment variable; null when it is not set.
using EnvironmentLookup = std::function<const char *(const char *name)>;

/// Where the engine's settings file stands: the file KELP_PLAYER_CONF names, else kelp/player.conf in the
/// first folder that is set of APPDATA, USERPROFILE and HOME. Empty when none is set.
std::string playerConfPath(const EnvironmentLookup &lookup);
/// The same for this process.
std::string playerConfPath();

/// The entries of all "dsd_ok=" lines of the file's text: names or parts of names of devices that the
/// listener marked as DSD decoders.
std::vector<std::string> parseDsdOk(std::string_view text);

/// True when the name holds one of the entries, letter case of ASCII aside.
bool isDsdMarked(const std::vector<std::string> &entries, std::string_view name);

/// The entries of this process's file; empty when it cannot be read. At most 64 KiB of it are read.
std::vector<std::string> readDsdOk();

} // namespace kelp_core
