#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>
#include <string>
#include <thread>

namespace kelp_core {

/// Writes the session's text: output lines to a descriptor, and the engine log to a file. It has a thread of
/// its own, so that a host which does not read for a while never holds up music, control or telemetry.
/// Lines leave in the order in which they came, several whole ones in one write(2).
class LineWriter
{
public:
    /// Writes to fd, which stays the caller's. An empty logPath means no log file.
    LineWriter(int fd, const std::string &logPath);
    ~LineWriter(); ///< as finish()
    LineWriter(const LineWriter &) = delete;
    LineWriter &operator=(const LineWriter &) = delete;

    /// An output line, without its end. Never lost while somebody reads, up to a backlog of 10,000 lines.
    void say(const std::string &line);
    /// A telemetry frame: dropped while more than 64 lines wait, since a newer one follows soon. Frames are
    /// not copied to the log file: twenty a second would bury what people look for in it.
    void frame(const std::string &line);
    /// A line for the log file only.
    void log(const std::string &line);
    /// Writes what is left, for half a second at most, and ends the thread. Then nothing is taken any more.
    void finish();

private:
    struct Entry
    {
        std::string text;
        bool toHost;
        bool toLog;
    };
    void push(Entry entry, size_t mostWaiting);
    void run();
    void writeHost(const std::string &batch);
    void writeLog(const std::string &line);
    bool finishing();

    int fd_;
    int logFd_ = -1;
    bool hostGone_ = false; // writer thread
    std::mutex mutex_;
    std::condition_variable ready_;
    std::deque<Entry> entries_; // guarded by mutex_
    bool ending_ = false;       // guarded by mutex_
    std::thread thread_;
};

} // namespace kelp_core
