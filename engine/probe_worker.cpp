#include "engine/probe_worker.h"

#include <QCoreApplication>
#include <QEvent>
#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

struct ProbeWorker::Shared
{
    struct Job
    {
        quint64 id = 0;
        Probe probe;
    };
    struct Answer
    {
        quint64 id = 0;
        PlayerProbeResult result;
    };

    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Job> jobs;            ///< guarded by mutex
    std::vector<Answer> answers;     ///< guarded by mutex
    ProbeWorker *receiver = nullptr; ///< guarded by mutex; null once the receiver is being destroyed
    bool running = false;            ///< guarded by mutex; the thread is in work()
};

namespace {

PlayerProbeResult answerOf(const ProbeWorker::Probe &probe)
{
    try {
        return probe();
    } catch (const std::exception &thrown) {
        return {session_code::refused, QString::fromUtf8(thrown.what())};
    } catch (...) {
        return {session_code::refused, u"the probe threw a non-std exception"_s};
    }
}

} // namespace

ProbeWorker::ProbeWorker(std::chrono::milliseconds endWait, QObject *parent)
    : QObject(parent)
    , m_endWait(endWait)
    , m_shared(std::make_shared<Shared>())
{
    m_shared->receiver = this;
}

ProbeWorker::~ProbeWorker()
{
    std::deque<Shared::Job> dropped;
    std::unique_lock lock(m_shared->mutex);
    m_shared->receiver = nullptr;
    dropped.swap(m_shared->jobs);
    m_shared->changed.notify_all();
    m_shared->changed.wait_for(lock, m_endWait, [this] { return !m_shared->running; });
}

void ProbeWorker::run(Probe probe, QObject *context, Deliver deliver)
{
    const quint64 id = m_nextId++;
    m_pending.insert(id, {context, std::move(deliver)});
    {
        const std::lock_guard lock(m_shared->mutex);
        m_shared->jobs.push_back({id, std::move(probe)});
        m_shared->running = true;
    }
    if (std::exchange(m_started, true)) {
        m_shared->changed.notify_all();
        return;
    }
    // Detached, since nobody can wait for a probe that hangs; what the thread needs it owns with us.
    std::thread([shared = m_shared] { work(shared); }).detach();
}

void ProbeWorker::work(const std::shared_ptr<Shared> &shared)
{
    std::unique_lock lock(shared->mutex);
    for (;;) {
        shared->changed.wait(lock, [&] { return shared->receiver == nullptr || !shared->jobs.empty(); });
        if (shared->receiver == nullptr)
            break;
        Shared::Job job = std::move(shared->jobs.front());
        shared->jobs.pop_front();
        lock.unlock();
        Shared::Answer answer{job.id, answerOf(job.probe)};
        job.probe = {};
        lock.lock();
        if (shared->receiver == nullptr)
            break;
        shared->answers.push_back(std::move(answer));
        // Posted under the lock: the receiver cannot be destroyed before this event has been queued.
        QCoreApplication::postEvent(shared->receiver, new QEvent(QEvent::User));
    }
    shared->running = false;
    shared->changed.notify_all();
}

void ProbeWorker::customEvent(QEvent *)
{
    std::vector<Shared::Answer> answers;
    {
        const std::lock_guard lock(m_shared->mutex);
        answers.swap(m_shared->answers);
    }
    const QPointer<ProbeWorker> self(this);
    for (const Shared::Answer &answer : answers) {
        const Pending pending = m_pending.take(answer.id);
        if (pending.context && pending.deliver)
            pending.deliver(answer.result);
        if (!self)
            return;
    }
}
