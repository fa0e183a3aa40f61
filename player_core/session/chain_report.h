#pragma once

#include "player_core/dsp/effective_bits.h"
#include "player_core/output/output.h"
#include "player_core/session/stage_item.h"
#include "player_core/session/stream_transform.h"
#include "player_core/source/source.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kelp_core {

/// What the running stages are found to do, gathered from the stages themselves. Plain value.
struct ChainFacts
{
    std::string path;
    SourceFacts source;
    std::string deviceRequested; ///< as `-dev` gave it; empty is the system default
    OpenedOutput output;
    TransformPlan transform;
    double latencyMs = -1; ///< below 0: not measured yet
    VolumeFacts volume;
    bool fading = false;         ///< a fade or crossfade is under way
    bool dithered = false;       ///< the last samples were dithered
    unsigned underruns = 0;      ///< since the device was opened
    std::string replayGain;      ///< what was decided on it; empty: it is off
    double replayGainFactor = 1; ///< linear, part of the volume's gain
    SpeedPlan speedWanted;       ///< what was asked for; what is done stands in the transform
    bool looping = false;        ///< an A/B loop repeats a part of the track
    bool guard = false;          ///< the peak guard is on

    // Of the track in hand:
    std::string failure; ///< why its rest could not be read; empty when it could
    bool mixing = false; ///< it is being mixed with another
    bool paused = false;
    int64_t trackFrames = 0;     ///< handed over since it began or its place or speed changed
    int64_t scaledFrames = 0;    ///< scaled by the volume, faded or mixed
    uint64_t guardedFrames = 0;  ///< brought down by the peak guard
    double guardGain = 1.0;      ///< the lowest gain of these
    uint64_t clippedSamples = 0; ///< cut at full scale
    unsigned trackUnderruns = 0;
    /// What stages say for themselves that are not always in the chain (see verifyItems).
    std::vector<StageItem> stages;
};

/// The block that tells the listener what is done to the signal: twelve labelled lines between "SIGNAL CHAIN
/// BEGIN" and "SIGNAL CHAIN END".
[[nodiscard]] std::vector<std::string> chainReport(const ChainFacts &facts);

/// The whole "speed: …" line.
[[nodiscard]] std::string speedLine(const ChainFacts &facts);

/// The value of "chain:": one of the five verdicts that front ends know, and why.
[[nodiscard]] std::string chainVerdict(const ChainFacts &facts);

/// The value of "bit-perfect:", the verdict of `verify` in words. "YES" only when the source is lossless, no
/// stage changes a bit and the device was read back to run as the source does; a "NO" names the first stage
/// that breaks it.
[[nodiscard]] std::string bitPerfectVerdict(const ChainFacts &facts);

/// Whether the device was found to run at what we hand over. Only with a record that is known.
[[nodiscard]] bool readBackAgrees(const OpenedOutput &output);

/// "44100 Hz S16_LE 2 channels".
[[nodiscard]] std::string readBackText(const ReadBack &record);

} // namespace kelp_core
