// The bytes of a fuzz run as a file in memory, under names with the suffixes that readers go by.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

class FileOfBytes
{
public:
    FileOfBytes()
        : descriptor_(memfd_create("fuzz", MFD_CLOEXEC))
    {
        char folder[] = "/tmp/kelp-fuzz-XXXXXX";
        if (descriptor_ < 0 || !mkdtemp(folder))
            std::abort();
        folder_ = folder;
    }
    ~FileOfBytes()
    {
        close(descriptor_);
        for (const char *suffix : {"flac", "wav", "dsf", "dff"})
            unlink(link(suffix).c_str());
        rmdir(folder_.c_str());
    }
    FileOfBytes(const FileOfBytes &) = delete;
    FileOfBytes &operator=(const FileOfBytes &) = delete;

    void hold(const uint8_t *data, size_t size)
    {
        if (ftruncate(descriptor_, 0) != 0 ||
            pwrite(descriptor_, data, size, 0) != static_cast<ssize_t>(size))
            std::abort();
    }
    std::string path(const char *suffix)
    {
        const std::string target = "/proc/self/fd/" + std::to_string(descriptor_);
        // Fails after the first time, when the name is there.
        (void)!symlink(target.c_str(), link(suffix).c_str());
        return link(suffix);
    }

private:
    std::string link(const char *suffix) const { return folder_ + "/a." + suffix; }

    int descriptor_;
    std::string folder_;
};
