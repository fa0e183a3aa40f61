#pragma once

#include "player_core/audio/stream_format.h"
#include "player_core/output/wire_format.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kelp_core {

/// `-output-path`.
enum class PathPolicy
{
    automatic, ///< exclusive where it can be had, else shared, else the clocked null device
    exclusive, ///< the hardware with the stream's own rate and format, or a refusal
    shared,
};

/// `-dop`.
enum class DopPolicy
{
    automatic, ///< native DSD where the device takes it, DoP where it is known to work, else PCM
    force,     ///< DoP on every path that can carry it untouched, else PCM
    native,    ///< native DSD, else PCM
};

/// What is to be played, and on what.
struct OutputRequest
{
    std::string deviceId; ///< as `-dev` gave it; empty is the system default
    PathPolicy path = PathPolicy::automatic;
    DopPolicy dop = DopPolicy::automatic;
    StreamFormat stream;   ///< the source's format, or the format behind the decoder of DSD when forcePcm
    bool forcePcm = false; ///< DSD is decoded, whatever the device could take
    bool pcmBitsChosen = false; ///< `-pcm-bits` was given
    int pcmBits = 24;           ///< depth of PCM made from DSD: 16, 24, 32
    bool pcmFloat = false;      ///< `-pcm-bits float32`
    bool allowResample = false; ///< `-resample`: another rate of the device may be chosen, we convert to it
};

/// What the opened device was found to run at, read from where it cannot lie: the kernel's record of a
/// hardware PCM, the server's record of its sink. known is false where there is no such record; the rest is
/// then unset.
struct ReadBack
{
    bool known = false;
    std::string origin; ///< "kernel (/proc/asound/card0/pcm0p/sub0/hw_params)", "sound server"
    int rateHz = 0;
    std::string format; ///< as the record spells it
    int channels = 0;
};

/// Facts of an opened output. Fixed while it is open, but for what the functions of Output tell.
struct OpenedOutput
{
    WireFormat wire;         ///< what write() expects
    std::string device;      ///< the id it was opened by ("hw:1,0", "pulse", "null clock")
    std::string deviceLabel; ///< for people
    std::string backend;     ///< "ALSA hardware", "ALSA file", "PulseAudio", "null device"
    bool exclusive = false;  ///< nobody else can write to it, and nothing stands between us and it
    bool mixer = false;      ///< a mixer or server stands between us and the hardware
    bool converts = false;   ///< rate or format are known to be changed behind us
    bool clocked = true;     ///< writes are paced by the device
    ReadBack readBack;
    /// Rate of the PCM that write() wants. Differs from the source's when the stream is DSD decoded to PCM or
    /// when resampling was chosen.
    int pcmRateHz = 0;
    uint32_t speakers = 0; ///< the places of the channels that write() is given, as in StreamFormat
    /// The device's own order of the same places, where the channels are put into it ("FL FR RL RR FC LFE").
    std::string speakerOrder;
    std::vector<std::string>
        notes; ///< whole sentences for the log: which rungs of the ladder were tried and why not taken
};

/// An opened device. The audio thread calls write(); what else may be called from where is said at each
/// function.
class Output
{
public:
    virtual ~Output() = default; ///< closes at once and gives back a reservation; session thread

    virtual const OpenedOutput &opened() const = 0;

    /// Hands frames to the device; blocks until at least one was taken, for at most about 200 ms. Audio
    /// thread; neither allocates nor logs. Returns the number of frames taken, 0 when none could be taken in
    /// that time or after interrupt(), or -1 when the device is gone (message() then says why).
    [[nodiscard]] virtual long write(const uint8_t *frames, size_t count) = 0;

    /// Frames handed over and not yet heard. Audio thread.
    virtual int64_t delayFrames() = 0;

    /// Plays what was handed over, then returns, within the time it takes plus 500 ms. Audio thread.
    virtual void drain() = 0;

    /// Throws away what was handed over and not yet heard; writing may go on at once. Audio thread.
    virtual void drop() = 0;

    /// Makes a waiting write() or drain() return soon; when none waits, the next one returns at once. Any
    /// thread.
    virtual void interrupt() = 0;

    /// Frames were late this many times since it was opened. Any thread.
    virtual unsigned underruns() const = 0;

    /// One sentence on the last failure. After a -1 of write(), any thread.
    virtual std::string message() const = 0;

    /// Measured latency from write() to the converter in milliseconds, below 0 when not known yet. Any
    /// thread.
    virtual double latencyMs() const = 0;
};

/// An output, or the reason why there is none.
struct OutputOutcome
{
    std::unique_ptr<Output> output;
    /// One line. For a refusal of the exclusive path it holds "cannot get exclusive access", for a device
    /// that does not exist "device '<id>' endpoint not found". Empty exactly when output is set.
    std::string error;
    std::vector<std::string> notes; ///< as OpenedOutput::notes, also on failure
};

/// Opens a device for a stream by the ladder of the path policy. DoP and native DSD go only to a path that is
/// known to change nothing. May block for some seconds. Session thread. Throws nothing.
[[nodiscard]] OutputOutcome openOutput(const OutputRequest &request);

} // namespace kelp_core
