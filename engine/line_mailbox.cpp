#include "engine/line_mailbox.h"

#include "engine/output_lines.h"

#include <QMutexLocker>
#include <utility>

LineMailbox::LineMailbox(PostLine postLine, PostDrain postDrain)
    : m_postLine(std::move(postLine))
    , m_postDrain(std::move(postDrain))
{
}

int LineMailbox::slotOf(const QString &line, bool isStderr)
{
    if (isStderr)
        return -1;
    for (int slot = 0; slot < slotCount; ++slot) {
        if (line.startsWith(engine_line::mailboxPrefixes.at(static_cast<std::size_t>(slot))))
            return slot;
    }
    return -1;
}

void LineMailbox::close()
{
    const QMutexLocker lock(&m_gate);
    m_closed = true;
}

void LineMailbox::put(const QString &line, bool isStderr)
{
    const QMutexLocker lock(&m_gate);
    if (!m_closed)
        putLine(line, isStderr);
}

void LineMailbox::putLine(const QString &line, bool isStderr)
{
    const int slot = slotOf(line, isStderr);
    if (slot < 0) {
        m_postLine(line, isStderr);
        return;
    }
    {
        const QMutexLocker lock(&m_mutex);
        Slot &entry = m_slots.at(static_cast<std::size_t>(slot));
        entry.line = line;
        entry.isStderr = isStderr;
        entry.full = true;
        ++entry.count;
    }
    if (!m_drainPosted.exchange(true))
        m_postDrain();
}

void LineMailbox::drain(const Deliver &deliver)
{
    // Cleared first: a line that comes during the drain posts a new one instead of being left behind.
    m_drainPosted.store(false);
    for (Slot &slot : m_slots) {
        QString line;
        bool isStderr = false;
        {
            const QMutexLocker lock(&m_mutex);
            if (!std::exchange(slot.full, false))
                continue;
            line = std::exchange(slot.line, QString());
            isStderr = slot.isStderr;
        }
        deliver(line, isStderr);
    }
}

qint64 LineMailbox::countOf(int slot) const
{
    const QMutexLocker lock(&m_mutex);
    return m_slots.at(static_cast<std::size_t>(slot)).count;
}
