/// \file
/// Holds what is measured until it is heard.
#pragma once

#include "engine/frame_lines.h"
#include "engine/telemetry_lines.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <utility>

/// First in, first out; when it is full the oldest entry makes way. Knows no clock: times are what the caller
/// says they are, in milliseconds. An entry never overtakes an earlier one, also when the latency has shrunk
/// between them. GUI thread only.
template<typename Sample>
class DelayQueue
{
public:
    explicit DelayQueue(std::size_t capacity)
        : m_capacity(capacity)
    {
    }

    void push(double dueMs, Sample sample)
    {
        if (m_entries.size() == m_capacity)
            m_entries.pop_front();
        m_entries.push_back({dueMs, std::move(sample)});
    }

    /// The oldest sample, when its time has come. Asked until there is none, it releases all that are due.
    std::optional<Sample> takeDue(double nowMs)
    {
        if (m_entries.empty() || m_entries.front().dueMs > nowMs)
            return std::nullopt;
        std::optional<Sample> sample(std::move(m_entries.front().sample));
        m_entries.pop_front();
        return sample;
    }

    bool isEmpty() const { return m_entries.empty(); }
    std::size_t size() const { return m_entries.size(); }
    void clear() { m_entries.clear(); }

private:
    struct Entry
    {
        double dueMs;
        Sample sample;
    };

    std::size_t m_capacity;
    std::deque<Entry> m_entries;
};

inline constexpr std::size_t mostDelayedLevels = 256;
inline constexpr std::size_t mostDelayedSpectra = 512;

using LevelQueue = DelayQueue<LevelLine>;
using SpectrumQueue = DelayQueue<SpectrumFrame>;
