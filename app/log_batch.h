/// \file
/// Lines on their way to the log pane.
#pragma once

#include <QList>
#include <utility>

/// Collects entries until the event loop comes round, so that a burst of lines costs one repaint. GUI thread.
template<class Entry>
class LogBatch
{
public:
    /// \return whether a flush has to be posted to the event loop: true for the first entry after a take only
    [[nodiscard]] bool add(Entry entry)
    {
        m_entries.append(std::move(entry));
        return !std::exchange(m_flushPosted, true);
    }

    /// The entries in the order in which they came. Entries added from now on need a new flush.
    [[nodiscard]] QList<Entry> take()
    {
        m_flushPosted = false;
        return std::exchange(m_entries, {});
    }

private:
    QList<Entry> m_entries;
    bool m_flushPosted = false;
};
