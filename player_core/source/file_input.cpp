#include "player_core/source/file_input.h"

#include <cctype>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace kelp_core {

std::string systemErrorWords(int errorNumber)
{
    if (errorNumber == ENOENT || errorNumber == ENOTDIR)
        return "no such file";
    std::string words = std::generic_category().message(errorNumber);
    if (!words.empty())
        words[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(words[0])));
    return words;
}

std::unique_ptr<FileInput> FileInput::open(const std::string &path, std::string &error)
{
    if (path.find('\0') != std::string::npos) {
        error = "cannot open: no such file";
        return nullptr;
    }
    // Not blocking, because opening a pipe would otherwise wait for a writer that may never come.
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        error = "cannot open: " + systemErrorWords(errno);
        return nullptr;
    }
    struct stat info = {};
    const char *reason = nullptr;
    if (::fstat(descriptor, &info) != 0)
        reason = "its state cannot be read";
    else if (S_ISDIR(info.st_mode))
        reason = "it is a folder";
    else if (!S_ISREG(info.st_mode))
        reason = "it is not a regular file";
    if (reason) {
        ::close(descriptor);
        error = std::string("cannot open: ") + reason;
        return nullptr;
    }
    return std::unique_ptr<FileInput>(new FileInput(descriptor, info.st_size));
}

FileInput::~FileInput()
{
    ::close(descriptor_);
}

int64_t FileInput::readAt(int64_t offset, uint8_t *to, size_t size)
{
    if (offset < 0)
        return -1;
    size_t done = 0;
    while (done < size) {
        const ssize_t got = ::pread(descriptor_, to + done, size - done, offset + static_cast<int64_t>(done));
        if (got < 0) {
            if (errno == EINTR)
                continue;
            lastError_ = errno;
            // What was read before the error is still good; the next call meets the error again.
            return done > 0 ? static_cast<int64_t>(done) : -1;
        }
        if (got == 0)
            break;
        done += static_cast<size_t>(got);
    }
    return static_cast<int64_t>(done);
}

} // namespace kelp_core
