#pragma once

#include <functional>
#include <string>

namespace kelp_core {

/// Where the traces of a sound server are looked for.
struct ServerSearch
{
    /// The environment: null for a variable that is not set.
    std::function<const char *(const char *)> variable;
    /// Stands before every path that is not the user's own.
    std::string root;
};

/// Whether a PulseAudio server could be reached from here, by any of the ways in which its client library
/// looks for one: told by the environment or a configuration file, on another machine's display, or by the
/// socket of a server that runs. Asked before that library is loaded, with its thirty others, only to say
/// that there is none. A trace is enough: whether somebody answers is for the library to find out.
bool soundServerMayExist(const ServerSearch &search);

/// The same for this process.
bool soundServerMayExist();

} // namespace kelp_core
