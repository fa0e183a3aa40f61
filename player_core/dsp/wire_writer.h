#pragma once

#include "player_core/output/wire_format.h"

#include <cstddef>
#include <cstdint>

namespace kelp_core {

/// A byte of DSD silence: as many ones as zeros, and nothing below an eighth of the bit rate. Never 0x00,
/// which is full negative level.
inline constexpr uint8_t dsdSilence = 0x69;

/// Turns PCM doubles into the bytes a device takes. Audio thread: no allocation, no lock.
///
/// Without dither an integer source of up to validBits bits comes out bit for bit. With dither, triangular
/// noise of two least significant bits' width is added before rounding (own generator, so runs are
/// reproducible); a float device gets none. Values outside −1 … +1 are clipped and counted; +1.0 itself
/// becomes the highest integer and does not count; what is not a number becomes silence.
class PcmWriter
{
public:
    explicit PcmWriter(const WireFormat &wire);
    void write(const double *in, size_t frames, uint8_t *out, bool dither);
    /// Samples clipped since construction.
    uint64_t clipped() const { return clipped_; }

private:
    WireFormat wire_;
    uint64_t clipped_ = 0;
    uint64_t noise_ = 0x9E3779B97F4A7C15ull;
};

/// Packs DSD bytes (one a channel and frame, oldest bit in bit 7) into DoP 1.1 frames (encodings s24in3,
/// s24in4 and s32) or native ones (the DSD encodings). Keeps the DoP marker in step over all calls, silence
/// included. Audio thread: no allocation, no lock.
class DsdWriter
{
public:
    explicit DsdWriter(const WireFormat &wire);
    /// DSD frames (bytes a channel) that one frame at the device holds: DoP 2, DSD_U8 1, DSD_U16 2,
    /// DSD_U32 4.
    size_t dsdFramesPerWireFrame() const;
    /// Returns the number of frames at the device. dsdFrames should be a multiple of
    /// dsdFramesPerWireFrame(); what is over is not written, and the caller gives it again with the next
    /// bytes.
    size_t write(const uint8_t *dsd, size_t dsdFrames, uint8_t *out);
    /// Writes so many device frames of the DSD silence pattern 0x69.
    void silence(size_t wireFrames, uint8_t *out);

private:
    void packFrame(const uint8_t *dsd, size_t timeStride, size_t channelStride, uint8_t *out);
    WireFormat wire_;
    bool marker_ = false; ///< false: the next DoP marker is 0x05
};

} // namespace kelp_core
