#pragma once

#include "player_core/source/source.h"

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace kelp_core {

/// What is known of a track on its way through the session.
struct TrackInfo
{
    uint32_t serial = 0;
    std::string path; ///< as it was asked for
    SourceFacts facts;
    double startSec = 0; ///< where playing begins within the track
    double totalSec = -1;
    std::vector<SourceSegment> segments; ///< empty but for whole sheets
    std::string failure;                 ///< why its rest could not be read; empty when it could
    bool fromCommandLine = false;
    double gain = 1.0;    ///< ReplayGain's
    std::string gainText; ///< what was decided on it; empty when it is off
};

/// The tracks that a session has in hand, by serial number: counted up from 1, so a higher one is later.
/// Session and telemetry thread.
class TrackBook
{
public:
    uint32_t add(TrackInfo info)
    {
        const std::lock_guard lock(mutex_);
        info.serial = ++last_;
        tracks_.emplace(info.serial, std::move(info));
        return last_;
    }

    std::optional<TrackInfo> find(uint32_t serial) const
    {
        const std::lock_guard lock(mutex_);
        const auto it = tracks_.find(serial);
        return it == tracks_.end() ? std::nullopt : std::optional(it->second);
    }

    void setFailure(uint32_t serial, const std::string &reason)
    {
        const std::lock_guard lock(mutex_);
        if (const auto it = tracks_.find(serial); it != tracks_.end())
            it->second.failure = reason;
    }

    /// Forgets all tracks before this one.
    void forgetBefore(uint32_t serial)
    {
        const std::lock_guard lock(mutex_);
        tracks_.erase(tracks_.begin(), tracks_.lower_bound(serial));
    }

private:
    mutable std::mutex mutex_;
    std::map<uint32_t, TrackInfo> tracks_; // guarded by mutex_
    uint32_t last_ = 0;                    // guarded by mutex_
};

} // namespace kelp_core
