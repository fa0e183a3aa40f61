#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace kelp_core::test {

/// Runs kelp_player_main on a thread of this process, as a front end does: descriptor 1 leads into a pipe as
/// long as the session lives, and control lines come through a queue with a read function.
class EngineHost
{
public:
    EngineHost() = default;
    ~EngineHost();
    EngineHost(const EngineHost &) = delete;
    EngineHost &operator=(const EngineHost &) = delete;

    void start(std::vector<std::string> args);
    void send(const std::string &line);
    /// Waits for a line that begins so, from the last one waited for; an empty text when the session ended.
    std::string waitLine(const std::string &prefix);
    /// Waits for the end; the exit code. Descriptor 1 is back where it was then.
    int wait();
    std::vector<std::string> lines(const std::string &prefix = {});

private:
    struct Queue;
    static int readQueue(void *queue, char *buffer, int size);
    void readLines(int fd);

    Queue *queue_ = nullptr;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::string> lines_; // guarded by mutex_
    size_t waited_ = 0;
    bool ended_ = true; // guarded by mutex_
    int code_ = -1000;
    int savedOut_ = -1;
    std::thread engine_;
    std::thread reader_;
};

} // namespace kelp_core::test
