#include "engine/telemetry_mailbox.h"

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<QLatin1StringView, TelemetryMailbox::slotCount> slotPrefixes = {"LVL "_L1, "SPC "_L1,
                                                                                     "PG "_L1};

std::optional<std::size_t> slotOf(const QString &line, bool isStderr)
{
    if (isStderr || line.size() < 4)
        return std::nullopt;
    for (std::size_t slot = 0; slot < slotPrefixes.size(); ++slot) {
        if (line.startsWith(slotPrefixes[slot]))
            return slot;
    }
    return std::nullopt;
}

} // namespace

TelemetryMailbox::TelemetryMailbox(PostLine postLine, PostDrain postDrain)
    : m_postLine(std::move(postLine))
    , m_postDrain(std::move(postDrain))
{
}

void TelemetryMailbox::close()
{
    const std::lock_guard lock(m_gate);
    m_closed = true;
}

void TelemetryMailbox::put(const QString &line, bool isStderr)
{
    const std::lock_guard lock(m_gate);
    if (!m_closed)
        putLine(line, isStderr);
}

void TelemetryMailbox::putLine(const QString &line, bool isStderr)
{
    const std::optional<std::size_t> slot = slotOf(line, isStderr);
    if (!slot) {
        m_postLine(line, isStderr);
        return;
    }
    // The former line is freed outside the lock.
    QString text = line;
    {
        const std::lock_guard lock(m_mutex);
        Slot &entry = m_slots[*slot];
        entry.text.swap(text);
        entry.isStderr = isStderr;
        entry.full = true;
        ++entry.count;
    }
    if (!m_mailboxPosted.exchange(true))
        m_postDrain();
}

void TelemetryMailbox::drain(const Deliver &deliver)
{
    // Cleared first: a line that comes during the drain posts a new one instead of being left behind.
    m_mailboxPosted.store(false);
    for (Slot &slot : m_slots) {
        QString text;
        bool isStderr = false;
        {
            const std::lock_guard lock(m_mutex);
            if (!std::exchange(slot.full, false))
                continue;
            text.swap(slot.text);
            isStderr = slot.isStderr;
        }
        // Outside the lock: what the line sets going may take its time, and writers must not wait for it.
        deliver(text, isStderr);
    }
}

qint64 TelemetryMailbox::countOf(std::size_t slot) const
{
    const std::lock_guard lock(m_mutex);
    return m_slots.at(slot).count;
}
