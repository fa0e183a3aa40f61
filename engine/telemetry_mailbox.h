/// \file
/// Brings the engine's output lines to the GUI thread without letting telemetry flood it.
#pragma once

#include <QString>
#include <array>
#include <atomic>
#include <cstddef>
#include <functional>
#include <mutex>

/// Of the level, spectrum and progress lines only the newest of each kind survives until the GUI thread has
/// time; all other lines are posted one by one and are never dropped or reordered among themselves.
///
/// put() on any thread, drain() on the GUI thread. The two callbacks of the constructor run on the thread
/// that calls put() and have to post a queued call to the GUI thread.
class TelemetryMailbox
{
public:
    static constexpr std::size_t slotCount = 3; ///< levels, spectrum, progress

    using PostLine = std::function<void(const QString &line, bool isStderr)>;
    using PostDrain = std::function<void()>;
    using Deliver = std::function<void(const QString &line, bool isStderr)>;

    TelemetryMailbox(PostLine postLine, PostDrain postDrain);

    void put(const QString &line, bool isStderr);
    /// Delivers what the slots hold, in their order.
    void drain(const Deliver &deliver);
    /// From now on lines are dropped and the callbacks are not called: a thread of a session that could not
    /// be ended may speak long after its listener has gone. Returns when no callback runs any more.
    void close();
    /// How many lines have come for a slot, delivered or not.
    qint64 countOf(std::size_t slot) const;

private:
    struct Slot
    {
        QString text;
        qint64 count = 0;
        bool isStderr = false;
        bool full = false;
    };

    void putLine(const QString &line, bool isStderr);

    const PostLine m_postLine;
    const PostDrain m_postDrain;
    std::mutex m_gate;     ///< held while a callback runs; guards m_closed
    bool m_closed = false; ///< guarded by m_gate
    mutable std::mutex m_mutex;
    std::array<Slot, slotCount> m_slots;      ///< guarded by m_mutex
    std::atomic<bool> m_mailboxPosted{false}; ///< a drain is on its way to the GUI thread
};
