#include "engine/inproc_ctl_queue.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <unordered_map>
#include <utility>

namespace kelp {
namespace {

/// All queues that exist, by the address that the engine knows.
struct Registry
{
    std::mutex mutex; ///< guards queues
    std::unordered_map<const void *, std::weak_ptr<InprocCtlQueue>> queues;
};

Registry &registry()
{
    // Never destroyed: an engine's thread may come here while the process is already ending.
    static Registry *const instance = new Registry;
    return *instance;
}

std::shared_ptr<InprocCtlQueue> findQueue(const void *address)
{
    Registry &all = registry();
    const std::lock_guard lock(all.mutex);
    const auto found = all.queues.find(address);
    return found == all.queues.end() ? nullptr : found->second.lock();
}

/// The queue that this thread reads from: kept alive between two reads and while one waits.
thread_local std::shared_ptr<InprocCtlQueue> readerLease;

} // namespace

std::shared_ptr<InprocCtlQueue> InprocCtlQueue::create()
{
    std::shared_ptr<InprocCtlQueue> queue(new InprocCtlQueue);
    Registry &all = registry();
    const std::lock_guard lock(all.mutex);
    all.queues[queue.get()] = queue;
    return queue;
}

InprocCtlQueue::~InprocCtlQueue()
{
    Registry &all = registry();
    const std::lock_guard lock(all.mutex);
    all.queues.erase(this);
}

void InprocCtlQueue::open()
{
    const std::lock_guard lock(m_mutex);
    m_lines.clear();
    m_closed = false;
}

void InprocCtlQueue::close()
{
    {
        const std::lock_guard lock(m_mutex);
        m_closed = true;
    }
    m_changed.notify_all();
}

bool InprocCtlQueue::push(std::string_view line, Accept accept)
{
    {
        const std::lock_guard lock(m_mutex);
        if (accept == Accept::WithinLimits && (m_closed || m_lines.size() >= capacityLines))
            return false;
        m_lines.emplace_back(line);
    }
    m_changed.notify_one();
    return true;
}

std::optional<std::string> InprocCtlQueue::take()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_closed || !m_lines.empty(); });
    if (m_lines.empty())
        return std::nullopt;
    std::string line = std::move(m_lines.front());
    m_lines.pop_front();
    return line;
}

std::size_t InprocCtlQueue::aliveCount()
{
    Registry &all = registry();
    const std::lock_guard lock(all.mutex);
    return all.queues.size();
}

} // namespace kelp

extern "C" int kelp_inproc_ctl_read(void *queue, char *buffer, int sizeBytes)
{
    if (buffer == nullptr || sizeBytes < 2)
        return -1;
    if (kelp::readerLease.get() != queue)
        kelp::readerLease = kelp::findQueue(queue);
    if (!kelp::readerLease)
        return 0;
    for (;;) {
        std::optional<std::string> line = kelp::readerLease->take();
        if (!line) {
            kelp::readerLease.reset();
            return 0;
        }
        line->erase(line->find_last_not_of("\r\n") + 1);
        if (line->empty())
            continue;
        if (line->size() >= static_cast<std::size_t>(sizeBytes))
            return -1;
        std::memcpy(buffer, line->data(), line->size());
        buffer[line->size()] = '\0';
        return static_cast<int>(line->size());
    }
}
