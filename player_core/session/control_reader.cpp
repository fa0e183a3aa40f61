#include "player_core/session/control_reader.h"

#include "player_core/session/control_line.h"

#include <cerrno>
#include <chrono>
#include <utility>
#include <vector>

#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace kelp_core {

void LineCutter::add(const char *data, size_t size)
{
    pending_.append(data, size);
}

bool LineCutter::next(std::string &line)
{
    while (true) {
        const size_t end = pending_.find('\n', searched_);
        if (end == std::string::npos) {
            searched_ = pending_.size();
            if (pending_.size() > maxControlLine) {
                pending_.clear();
                searched_ = 0;
                skipping_ = true;
            }
            return false;
        }
        line = pending_.substr(0, end);
        pending_.erase(0, end + 1);
        searched_ = 0;
        const bool tooLong = skipping_ || line.size() > maxControlLine;
        skipping_ = false;
        if (!tooLong)
            return true;
        lost_ = true;
    }
}

bool LineCutter::takeLost()
{
    return std::exchange(lost_, false);
}

std::string LineCutter::rest()
{
    return skipping_ ? std::string() : std::exchange(pending_, {});
}

struct ControlReader::Shared
{
    ControlOrigin origin;
    std::shared_ptr<Mailbox> mailbox;
    std::shared_ptr<std::atomic<bool>> cancel;
    int wakeFd = -1;
    std::atomic<bool> ending{false};
    std::atomic<bool> finished{false};

    ~Shared()
    {
        if (wakeFd >= 0)
            ::close(wakeFd);
    }

    /// False after `stop`: nothing that could follow it matters.
    bool post(std::string line)
    {
        while (!line.empty() && line.back() == '\r')
            line.pop_back();
        const bool stop = line == "stop";
        if (stop)
            cancel->store(true);
        mailbox->post({MessageKind::controlLine, std::move(line)});
        return !stop;
    }

    void postLost()
    {
        mailbox->post({MessageKind::controlLost, "A control line longer than 64 KiB was lost."});
    }

    void postEnd() { mailbox->post({MessageKind::controlEnd, {}}); }
};

ControlReader::ControlReader(const ControlOrigin &origin, std::shared_ptr<Mailbox> mailbox,
                             std::shared_ptr<std::atomic<bool>> cancel)
    : shared_(std::make_shared<Shared>())
{
    shared_->origin = origin;
    shared_->mailbox = std::move(mailbox);
    shared_->cancel = std::move(cancel);
    if (!origin.readLine)
        shared_->wakeFd = ::eventfd(0, EFD_CLOEXEC);
    thread_ = std::thread([shared = shared_] {
        pthread_setname_np(pthread_self(), "kelp-control");
        if (shared->origin.readLine)
            readQueue(shared);
        else
            readDescriptor(shared);
        shared->finished.store(true);
    });
}

ControlReader::~ControlReader()
{
    shared_->ending.store(true);
    if (shared_->wakeFd >= 0) {
        const uint64_t one = 1;
        [[maybe_unused]] const ssize_t n = ::write(shared_->wakeFd, &one, sizeof one);
        thread_.join();
    } else if (shared_->finished.load()) {
        thread_.join();
    } else {
        thread_.detach();
    }
}

void ControlReader::readQueue(const std::shared_ptr<Shared> &shared)
{
    std::vector<char> buffer(maxControlLine + 1);
    int refusals = 0;
    while (!shared->ending.load()) {
        const int length =
            shared->origin.readLine(shared->origin.queue, buffer.data(), static_cast<int>(buffer.size()));
        if (length == 0) {
            shared->cancel->store(true);
            shared->postEnd();
            return;
        }
        if (length < 0) {
            // -1 is a line that did not fit. A host that only ever says so is broken, and must not be asked
            // for ever at full speed.
            shared->postLost();
            if (++refusals >= 100)
                return shared->postEnd();
            continue;
        }
        refusals = 0;
        if (!shared->post(std::string(buffer.data(), static_cast<size_t>(length))))
            return;
    }
}

void ControlReader::readDescriptor(const std::shared_ptr<Shared> &shared)
{
    LineCutter cutter;
    char buffer[4096];
    std::string line;
    int input = shared->origin.fd; // below 0 from its end on, when only the process's end is waited for
    while (!shared->ending.load()) {
        pollfd wait[3]{{input, POLLIN, 0}, {shared->wakeFd, POLLIN, 0}, {shared->origin.stopFd, POLLIN, 0}};
        const bool broken = ::poll(wait, 3, -1) < 0 && errno != EINTR;
        if (wait[1].revents)
            return;
        if (wait[2].revents) {
            shared->post("stop");
            return;
        }
        if (!broken && !wait[0].revents)
            continue;
        const ssize_t n = broken ? 0 : ::read(input, buffer, sizeof buffer);
        if (n < 0 && (errno == EINTR || errno == EAGAIN))
            continue;
        if (n <= 0) {
            if (const std::string rest = cutter.rest(); !rest.empty() && !shared->post(rest))
                return;
            shared->postEnd();
            if (broken || shared->origin.stopFd < 0)
                return;
            input = -1;
            continue;
        }
        cutter.add(buffer, static_cast<size_t>(n));
        while (cutter.next(line)) {
            if (!shared->post(line))
                return;
        }
        if (cutter.takeLost())
            shared->postLost();
    }
}

} // namespace kelp_core
