// Control lines as an engine gets them: from the host's queue or from standard input.
#pragma once

#include "player_core/include/kelp_player_core.h"

#include <optional>
#include <string>

namespace test_engine {

class Control
{
public:
    // Looks for the host's hand-shake in the arguments.
    Control(int argc, char **argv);

    // Waits for a line. None at the end of the channel. A line lost for want of room gives "<lost>".
    std::optional<std::string> next();
    void setBufferSize(int sizeBytes) { m_bufferSizeBytes = sizeBytes; }
    bool fromQueue() const { return m_read != nullptr; }

private:
    std::optional<std::string> nextFromQueue();
    std::optional<std::string> nextFromStdin();

    void *m_queue = nullptr;
    kelp_player_ctl_read m_read = nullptr;
    int m_bufferSizeBytes = 4096;
    std::string m_pending;
};

} // namespace test_engine
