#pragma once

#include "player_core/dsp/pdm_decimator.h"
#include "player_core/dsp/resampler.h"
#include "player_core/dsp/speed_stage.h"
#include "player_core/output/output.h"
#include "player_core/session/replay_gain.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kelp_core {

/// Everything a session is told on its command line. Plain value.
struct SessionOptions
{
    // The source. At most one of the three paths is set; none of them with `-stream` alone.
    std::string path;    ///< `-i`
    std::string cuePath; ///< `-cue`
    std::string isoPath; ///< `-iso`
    int track = 0;       ///< `-track`; below 1 means the whole sheet
    bool stream = false; ///< `-stream`: tracks come as control lines
    double startSec = 0; ///< `-start`: where the first track begins

    // The device and the way to it.
    std::string device; ///< `-dev`; empty is the system default
    PathPolicy outputPath = PathPolicy::automatic;
    DopPolicy dop = DopPolicy::automatic;
    bool resample = false;
    ResampleQuality srcQuality = ResampleQuality::standard;

    // DSD decoded to PCM.
    bool forcePcm = false;
    bool pcmBitsChosen = false;
    int pcmBits = 24;
    bool pcmFloat = false;
    PdmFilter pcmFilter = PdmFilter::standard;
    bool pcmFilterChosen = false;

    // Playing.
    int volume = 100;
    bool peakGuard = false;
    ReplayGainMode replayGain = ReplayGainMode::off;
    SpeedPlan speed;
    double crossfadeSec = 0;
    bool gapless = true;
    bool spectrum = false;
    bool scope = false;

    // The host.
    int64_t parentPid = 0;     ///< 0: plain console use
    uint64_t inprocQueue = 0;  ///< `-inproc-ctl`: address of the host's queue
    uint64_t inprocReadFn = 0; ///< `-inproc-ctl-fn`: address of its read function
    /// Whole sentences about wishes that this engine cannot grant, for WARN lines.
    std::vector<std::string> warnings;

    bool hasSource() const { return !path.empty() || !cuePath.empty() || !isoPath.empty(); }
    /// The session stays up when a track has ended and waits for the next load line.
    bool staysUp() const { return parentPid != 0; }
};

/// What a command line asks for.
enum class CommandKind
{
    session,
    help,
    version,
    bad, ///< error holds the sentence for the user
};

struct ParsedCommand
{
    CommandKind kind = CommandKind::bad;
    SessionOptions options;
    std::string error;
};

/// Parses the arguments behind the program's name. Flags have one dash and their operand as the next
/// argument. A later flag overrides an earlier one; `-stream` and `-pcm` may stand twice.
[[nodiscard]] ParsedCommand parseCommandLine(const std::vector<std::string> &args);

/// A number of plain decimal text with a dot, whole and finite; the locale plays no part.
bool parseNumber(std::string_view text, double &value);
bool parseInteger(std::string_view text, int64_t &value);

} // namespace kelp_core
