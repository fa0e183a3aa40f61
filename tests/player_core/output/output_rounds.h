#pragma once

#include "player_core/output/output.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

namespace output_test {

/// A request for PCM on a device.
inline kelp_core::OutputRequest pcmRequest(const std::string &device, int rateHz = 44100, int depthBits = 16,
                                           int channels = 2)
{
    kelp_core::OutputRequest request;
    request.deviceId = device;
    request.stream = {kelp_core::SignalKind::pcm, rateHz, channels, depthBits, false};
    return request;
}

/// A request for DSD on a device.
inline kelp_core::OutputRequest dsdRequest(const std::string &device, int rateHz = 2822400)
{
    kelp_core::OutputRequest request;
    request.deviceId = device;
    request.stream = {kelp_core::SignalKind::dsd, rateHz, 2, 1, false};
    return request;
}

/// Bytes that repeat only after a long time, none of them zero.
inline std::string noise(size_t size)
{
    std::string bytes(size, '\0');
    uint32_t state = 12345;
    for (char &byte : bytes) {
        state = state * 1664525u + 1013904223u;
        byte = static_cast<char>(1 + (state >> 24) % 255);
    }
    return bytes;
}

/// Writes all of it, as the audio thread would; false when the device failed.
inline bool writeAll(kelp_core::Output &output, const std::string &bytes, size_t framesAtOnce = 1000)
{
    const size_t frameBytes = static_cast<size_t>(output.opened().wire.bytesPerFrame());
    const size_t frames = bytes.size() / frameBytes;
    size_t done = 0;
    while (done < frames) {
        const long taken = output.write(reinterpret_cast<const uint8_t *>(bytes.data()) + done * frameBytes,
                                        std::min(framesAtOnce, frames - done));
        if (taken < 0)
            return false;
        done += static_cast<size_t>(taken);
    }
    return true;
}

/// The most that was seen in hand.
struct InHand
{
    int64_t delayFrames = 0;
    double latencyMs = 0;
};

/// Writes all of it, and looks behind each write: a machine that is busy at one moment is not so at all of
/// them.
inline InHand writeAndLook(kelp_core::Output &output, const std::string &bytes, size_t framesAtOnce = 1000)
{
    InHand most;
    const size_t step = framesAtOnce * static_cast<size_t>(output.opened().wire.bytesPerFrame());
    for (size_t at = 0; at < bytes.size(); at += step) {
        if (!writeAll(output, bytes.substr(at, step), framesAtOnce))
            break;
        most.delayFrames = std::max<int64_t>(most.delayFrames, output.delayFrames());
        most.latencyMs = std::max(most.latencyMs, output.latencyMs());
    }
    return most;
}

/// Plays it until it went out without a gap, which on a busy machine may take some tries; false when all had
/// one. An output tells of its gaps.
inline bool playInPeace(kelp_core::Output &output, const std::string &bytes, InHand &most)
{
    for (int tries = 0; tries < 8; ++tries) {
        const unsigned before = output.underruns();
        most = writeAndLook(output, bytes, 700);
        output.drain();
        if (output.underruns() == before)
            return true;
    }
    return false;
}

} // namespace output_test
