#include "platform/file_reader.h"

#include <cerrno>
#include <limits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

FileReader::FileReader(const std::string &path)
{
    // Without O_NONBLOCK a pipe without a writer would hold us here for ever.
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        return;
    struct stat facts = {};
    if (::fstat(descriptor, &facts) != 0 || S_ISDIR(facts.st_mode)) {
        ::close(descriptor);
        return;
    }
    m_descriptor = descriptor;
    m_size = static_cast<uint64_t>(facts.st_size);
}

FileReader::~FileReader()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

size_t FileReader::readAt(uint64_t offset, std::span<uint8_t> bytes) const
{
    if (m_descriptor < 0 || offset > static_cast<uint64_t>(std::numeric_limits<off_t>::max()))
        return 0;
    size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t got = ::pread(m_descriptor, bytes.data() + done, bytes.size() - done,
                                    static_cast<off_t>(offset + done));
        if (got > 0)
            done += static_cast<size_t>(got);
        else if (got == 0 || errno != EINTR)
            break;
    }
    return done;
}
