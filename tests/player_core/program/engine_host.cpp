#include "player_core/program/engine_host.h"

#include "kelp_player_core.h"

#include <cstdint>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace kelp_core::test {

/// An engine that ended by itself may still wait in its queue, so there are only ever a few of them, each
/// used again when its reader has left.
struct EngineHost::Queue
{
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<std::string> lines;
    bool closed = false;
    int readers = 0;
};

EngineHost::~EngineHost()
{
    if (engine_.joinable())
        wait();
    if (!queue_)
        return;
    // Closed, it lets its reader go; only then may it be destroyed.
    std::unique_lock lock(queue_->mutex);
    queue_->closed = true;
    queue_->changed.notify_all();
    queue_->changed.wait(lock, [this] { return queue_->readers == 0; });
    lock.unlock();
    delete queue_;
}

int EngineHost::readQueue(void *address, char *buffer, int size)
{
    auto *queue = static_cast<Queue *>(address);
    std::unique_lock lock(queue->mutex);
    ++queue->readers;
    queue->changed.wait(lock, [queue] { return queue->closed || !queue->lines.empty(); });
    int length = 0;
    if (!queue->lines.empty()) {
        const std::string line = queue->lines.front();
        queue->lines.pop_front();
        length = line.size() < static_cast<size_t>(size) ? static_cast<int>(line.size()) : -1;
        if (length > 0)
            std::memcpy(buffer, line.c_str(), line.size() + 1);
    }
    --queue->readers;
    queue->changed.notify_all();
    return length;
}

void EngineHost::start(std::vector<std::string> args)
{
    if (!queue_)
        queue_ = new Queue;
    args.insert(args.begin(), "KelpPlayer");
    args.insert(args.end(),
                {"-inproc-host", "-inproc-ctl", std::to_string(reinterpret_cast<uintptr_t>(queue_)),
                 "-inproc-ctl-fn", std::to_string(reinterpret_cast<uintptr_t>(&readQueue))});
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return;
    std::fflush(stdout);
    savedOut_ = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3);
    ::dup2(ends[1], STDOUT_FILENO);
    ::close(ends[1]);
    ended_ = false;
    reader_ = std::thread([this, fd = ends[0]] { readLines(fd); });
    engine_ = std::thread([this, args] {
        std::vector<char *> argv;
        for (const std::string &arg : args)
            argv.push_back(const_cast<char *>(arg.c_str()));
        argv.push_back(nullptr);
        code_ = kelp_player_main(static_cast<int>(args.size()), argv.data());
        // Closes the pipe's last writing end, which is how the reader hears of the end.
        ::dup2(savedOut_, STDOUT_FILENO);
    });
}

void EngineHost::send(const std::string &line)
{
    const std::lock_guard lock(queue_->mutex);
    queue_->lines.push_back(line);
    queue_->changed.notify_all();
}

std::string EngineHost::waitLine(const std::string &prefix)
{
    std::unique_lock lock(mutex_);
    while (true) {
        for (; waited_ < lines_.size(); ++waited_) {
            if (lines_[waited_].starts_with(prefix))
                return lines_[waited_++];
        }
        if (ended_)
            return {};
        changed_.wait(lock);
    }
}

int EngineHost::wait()
{
    engine_.join();
    reader_.join();
    ::close(savedOut_);
    return code_;
}

std::vector<std::string> EngineHost::lines(const std::string &prefix)
{
    const std::lock_guard lock(mutex_);
    std::vector<std::string> result;
    for (const std::string &line : lines_) {
        if (line.starts_with(prefix))
            result.push_back(line);
    }
    return result;
}

void EngineHost::readLines(int fd)
{
    std::string pending;
    char buffer[4096];
    while (true) {
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n <= 0)
            break;
        pending.append(buffer, static_cast<size_t>(n));
        const std::lock_guard lock(mutex_);
        for (size_t end = 0; (end = pending.find('\n')) != std::string::npos; pending.erase(0, end + 1))
            lines_.push_back(pending.substr(0, end));
        changed_.notify_all();
    }
    ::close(fd);
    const std::lock_guard lock(mutex_);
    ended_ = true;
    changed_.notify_all();
}

} // namespace kelp_core::test
