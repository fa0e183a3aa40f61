/// \file
/// Brings the engine's output lines to the GUI thread without letting telemetry flood it.
#pragma once

#include <QMutex>
#include <QString>
#include <array>
#include <atomic>
#include <functional>

/// Of the level, spectrum and position lines only the newest of each kind survives until the GUI thread has
/// time; all other lines are handed over one by one and are never lost or reordered among themselves.
///
/// put() on any thread. The two callbacks given to the constructor run on the thread that calls put(), and
/// have to queue a call to the GUI thread. drain() on the GUI thread.
class LineMailbox
{
public:
    static constexpr int slotCount = 3; ///< levels, spectrum, position

    using PostLine = std::function<void(const QString &line, bool isStderr)>;
    using PostDrain = std::function<void()>;
    using Deliver = std::function<void(const QString &line, bool isStderr)>;

    LineMailbox(PostLine postLine, PostDrain postDrain);

    void put(const QString &line, bool isStderr);
    void drain(const Deliver &deliver);
    /// From now on lines are dropped and the callbacks are not called: a thread of a session that could not
    /// be ended may speak long after its listener has gone.
    void close();
    /// How many lines came for a slot, delivered or not.
    qint64 countOf(int slot) const;

private:
    struct Slot
    {
        QString line;
        bool isStderr = false;
        bool full = false;
        qint64 count = 0;
    };

    void putLine(const QString &line, bool isStderr);
    static int slotOf(const QString &line, bool isStderr);

    const PostLine m_postLine;
    const PostDrain m_postDrain;
    QMutex m_gate;                          ///< held while a callback runs; guards m_closed
    bool m_closed = false;                  ///< guarded by m_gate
    mutable QMutex m_mutex;                 ///< guards m_slots
    std::array<Slot, slotCount> m_slots;    ///< guarded by m_mutex
    std::atomic<bool> m_drainPosted{false}; ///< a drain is on its way to the GUI thread
};
