#pragma once

#include "player_core/audio/stream_format.h"
#include "player_core/output/wire_format.h"

#include <optional>
#include <string>

namespace kelp_core {

/// How a load line finds the session.
struct LoadFacts
{
    bool playing = false; ///< a track sounds, or is paused in its middle
    bool paused = false;
    bool preloaded = false;   ///< a track has already been handed over to follow the present one
    bool hasPosition = false; ///< the line was `loadat`
    double positionSec = 0;   ///< heard so far
    double totalSec = -1;     ///< below 0: not known
    double crossfadeSec = 0;
    bool gapless = true;
    double speed = 1.0;   ///< seconds of the track in one second
    bool looping = false; ///< a part of the track is repeated, so that it has no end
};

/// What a load line does.
enum class LoadAction
{
    start,     ///< nothing plays: begin
    switchNow, ///< the listener chose another track: leave the present one at once
    preload,   ///< the present one is near its end: the new one follows it
};

/// One word, `load`, is sent for two wishes: another track now, and the next track a little early. What tells
/// them apart is the time left. A host hands the next track over when at most its preload window is left: the
/// crossfade time when there is one, else 1.5 s with gapless playing on. A quarter of a second is added for
/// the way of the progress line to the host and of the load line back. A load that comes earlier, or while
/// paused, or in a track whose length is not known or that is looped, is the listener's choice of another
/// track; so is a second one behind a preload, since a host hands over only one.
[[nodiscard]] LoadAction planLoad(const LoadFacts &facts);

/// What must agree for a track to follow another on an opened device.
struct JoinFacts
{
    StreamFormat opened; ///< the stream the device was opened for
    WireFormat wire;     ///< what it runs at
    StreamFormat next;
};

/// Empty when `next` can go out through the device as it is open, else the reason why not, as part of a
/// sentence ("the rate differs (48000 Hz after 44100 Hz)").
[[nodiscard]] std::string whyNotJoin(const JoinFacts &facts);

} // namespace kelp_core
