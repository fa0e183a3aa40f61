#include "player_core/source/atomic_file.h"

#include "player_core/source/file_input.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace kelp_core {

std::string writeAtomically(const std::string &path, std::span<const uint8_t> bytes)
{
    std::string name = path + ".XXXXXX";
    const int descriptor = ::mkostemp(name.data(), 0);
    if (descriptor < 0)
        return "cannot write: " + systemErrorWords(errno);
    size_t done = 0;
    int error = 0;
    while (done < bytes.size() && error == 0) {
        const ssize_t put = ::write(descriptor, bytes.data() + done, bytes.size() - done);
        if (put >= 0)
            done += static_cast<size_t>(put);
        else if (errno != EINTR)
            error = errno;
    }
    // A temporary file is made for its owner alone; the picture is as public as any other file.
    if (error == 0 && ::fchmod(descriptor, S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH) != 0)
        error = errno;
    if (::close(descriptor) != 0 && error == 0)
        error = errno;
    if (error == 0 && std::rename(name.c_str(), path.c_str()) != 0)
        error = errno;
    if (error == 0)
        return {};
    ::unlink(name.c_str());
    return "cannot write: " + systemErrorWords(error);
}

} // namespace kelp_core
