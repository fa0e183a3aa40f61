/// \file
/// Runs one-shot questions to the engine beside the GUI thread.
#pragma once

#include "engine/engine_probe.h"

#include <QMap>
#include <QObject>
#include <QPointer>
#include <chrono>
#include <functional>
#include <memory>

/// One thread that runs probes first in, first out, and delivers each answer on the thread of this object.
///
/// Made, used and destroyed on one thread with an event loop, the GUI thread. The probes themselves run on
/// the worker, and own or share what they touch. The worker's thread starts with the first probe.
class ProbeWorker : public QObject
{
    Q_OBJECT

public:
    using Probe = std::function<PlayerProbeResult()>;
    using Deliver = std::function<void(const PlayerProbeResult &result)>;

    /// \param endWait how long the destructor waits for a probe that is running
    explicit ProbeWorker(std::chrono::milliseconds endWait = std::chrono::seconds(2),
                         QObject *parent = nullptr);
    /// Drops what has not begun. A probe that does not end in time is left to itself: its thread goes on with
    /// state of its own, and its answer is dropped.
    ~ProbeWorker() override;

    /// Appends a probe. The answer is delivered by a queued call as long as the context lives; with the
    /// context it dies undelivered. A probe that throws answers with -1 and the exception's text.
    void run(Probe probe, QObject *context, Deliver deliver);
    /// Probes that have not been answered yet, the running one included.
    qsizetype pendingCount() const { return m_pending.size(); }

protected:
    /// The worker has answers.
    void customEvent(QEvent *event) override;

private:
    struct Shared;
    struct Pending
    {
        QPointer<QObject> context;
        Deliver deliver;
    };

    static void work(const std::shared_ptr<Shared> &shared);
    const std::chrono::milliseconds m_endWait;
    std::shared_ptr<Shared> m_shared; ///< with the worker's thread; its own mutex guards what is in it
    QMap<quint64, Pending> m_pending; ///< this object's thread only: the worker sees numbers
    quint64 m_nextId = 1;
    bool m_started = false;
};
