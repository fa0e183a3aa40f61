#pragma once

#include <cstdint>

namespace kelp_core {

/// What the samples of a stream are.
enum class SignalKind
{
    pcm, ///< linear PCM
    dsd, ///< one-bit delta-sigma, packed eight to a byte
};

/// The format of a stream of samples, as its source has it. Plain value.
///
/// A *frame* is the unit in which all stages count. For PCM it is one sample of every channel. For DSD it is
/// one byte (eight bits in time, the oldest in bit 7) of every channel, so a DSD64 stream has 352,800 frames
/// a second.
struct StreamFormat
{
    SignalKind kind = SignalKind::pcm;
    int rateHz = 0; ///< PCM: samples a second of one channel. DSD: bits a second of one channel (2822400 …)
    int channels = 0;     ///< 1 … maxChannels
    int depthBits = 0;    ///< valid bits of a sample: PCM integer 8 … 32, PCM float 32 or 64, DSD 1
    bool isFloat = false; ///< PCM only
    /// Of more than two channels their places, as the bits of a WAVE file's channel mask; the channels stand
    /// in the order of the bits. 0: not known.
    uint32_t speakers = 0;

    static constexpr int maxChannels = 32;

    /// Frames in one second of this stream.
    int64_t framesPerSecond() const { return kind == SignalKind::dsd ? rateHz / 8 : rateHz; }
    bool isDsd() const { return kind == SignalKind::dsd; }
    bool operator==(const StreamFormat &) const = default;
};

} // namespace kelp_core
