#include "support_engine/test_engine_control.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <unistd.h>
#include <vector>

namespace test_engine {

Control::Control(int argc, char **argv)
{
    for (int i = 1; i + 1 < argc; ++i) {
        if (std::strcmp(argv[i], "-inproc-ctl") == 0)
            m_queue = reinterpret_cast<void *>(
                static_cast<std::uintptr_t>(std::strtoull(argv[i + 1], nullptr, 10)));
        if (std::strcmp(argv[i], "-inproc-ctl-fn") == 0)
            m_read = reinterpret_cast<kelp_player_ctl_read>(
                static_cast<std::uintptr_t>(std::strtoull(argv[i + 1], nullptr, 10)));
    }
}

std::optional<std::string> Control::next()
{
    return fromQueue() ? nextFromQueue() : nextFromStdin();
}

std::optional<std::string> Control::nextFromQueue()
{
    std::vector<char> buffer(static_cast<std::size_t>(m_bufferSizeBytes));
    const int length = m_read(m_queue, buffer.data(), m_bufferSizeBytes);
    if (length < 0)
        return "<lost>";
    if (length == 0)
        return std::nullopt;
    return std::string(buffer.data(), static_cast<std::size_t>(length));
}

std::optional<std::string> Control::nextFromStdin()
{
    for (;;) {
        if (const std::size_t newline = m_pending.find('\n'); newline != std::string::npos) {
            std::string line = m_pending.substr(0, newline);
            m_pending.erase(0, newline + 1);
            return line;
        }
        std::vector<char> buffer(static_cast<std::size_t>(m_bufferSizeBytes));
        const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
        if (count <= 0)
            return std::nullopt;
        m_pending.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

} // namespace test_engine
