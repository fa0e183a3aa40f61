#include "player_core/session/line_writer.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <ctime>

#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <signal.h>
#include <unistd.h>

namespace kelp_core {

namespace {

constexpr size_t mostLines = 10'000;
constexpr size_t mostFrames = 64;
// A pipe that poll() calls writable takes this much without blocking.
constexpr size_t pieceBytes = 4096;
constexpr auto endLimit = std::chrono::milliseconds(500);

std::string timeStamp()
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    tm local{};
    localtime_r(&now.tv_sec, &local);
    char text[96];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d.%03d ", local.tm_year + 1900,
                  local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec,
                  static_cast<int>(now.tv_nsec / 1'000'000));
    return text;
}

} // namespace

LineWriter::LineWriter(int fd, const std::string &logPath)
    : fd_(fd)
{
    if (!logPath.empty())
        logFd_ = ::open(logPath.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
    thread_ = std::thread([this] { run(); });
}

LineWriter::~LineWriter()
{
    finish();
    if (logFd_ >= 0)
        ::close(logFd_);
}

void LineWriter::say(const std::string &line)
{
    push({line, true, true}, mostLines);
}

void LineWriter::frame(const std::string &line)
{
    push({line, true, false}, mostFrames);
}

void LineWriter::log(const std::string &line)
{
    if (logFd_ >= 0)
        push({line, false, true}, mostLines);
}

void LineWriter::push(Entry entry, size_t mostWaiting)
{
    {
        const std::lock_guard lock(mutex_);
        if (ending_ || entries_.size() >= mostWaiting)
            return;
        entries_.push_back(std::move(entry));
    }
    ready_.notify_one();
}

void LineWriter::finish()
{
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    ready_.notify_one();
    if (thread_.joinable())
        thread_.join();
}

void LineWriter::run()
{
    pthread_setname_np(pthread_self(), "kelp-lines");
    // A host that has gone must not end the process it left us in: here the broken pipe is an errno.
    sigset_t pipeSignal;
    sigemptyset(&pipeSignal);
    sigaddset(&pipeSignal, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &pipeSignal, nullptr);

    std::unique_lock lock(mutex_);
    while (true) {
        ready_.wait(lock, [this] { return ending_ || !entries_.empty(); });
        if (entries_.empty())
            return;
        std::string batch;
        while (!entries_.empty() && batch.size() < pieceBytes) {
            const Entry entry = std::move(entries_.front());
            entries_.pop_front();
            if (entry.toLog)
                writeLog(entry.text);
            if (entry.toHost && !batch.empty() && batch.size() + entry.text.size() + 1 > pieceBytes) {
                entries_.push_front({entry.text, true, false});
                break;
            }
            if (entry.toHost)
                batch += entry.text + '\n';
        }
        lock.unlock();
        writeHost(batch);
        lock.lock();
    }
}

bool LineWriter::finishing()
{
    const std::lock_guard lock(mutex_);
    return ending_;
}

void LineWriter::writeHost(const std::string &batch)
{
    size_t done = 0;
    std::chrono::steady_clock::time_point endingSince{};
    while (done < batch.size() && !hostGone_) {
        pollfd wait{fd_, POLLOUT, 0};
        const int ready = ::poll(&wait, 1, 100);
        if (ready == 0 || (ready < 0 && errno == EINTR)) {
            if (!finishing())
                continue;
            const auto now = std::chrono::steady_clock::now();
            if (endingSince == std::chrono::steady_clock::time_point{})
                endingSince = now;
            hostGone_ = now - endingSince > endLimit;
            continue;
        }
        const ssize_t n = ::write(fd_, batch.data() + done, std::min(pieceBytes, batch.size() - done));
        if (n > 0)
            done += static_cast<size_t>(n);
        else if (errno != EINTR && errno != EAGAIN)
            hostGone_ = true;
    }
}

void LineWriter::writeLog(const std::string &line)
{
    if (logFd_ < 0)
        return;
    const std::string text = timeStamp() + line + '\n';
    // A full disk loses log lines, never music.
    [[maybe_unused]] const ssize_t n = ::write(logFd_, text.data(), text.size());
}

} // namespace kelp_core
