#pragma once

#include <atomic>
#include <cstdint>

namespace kelp_core {

/// What the audio thread has done, as others may read it at any time. All counts are frames at the device.
struct PlaybackState
{
    uint64_t written = 0;        ///< handed to the device since it was opened, silence included
    int64_t delay = 0;           ///< of these, not heard yet
    uint32_t serial = 0;         ///< the track last written from; 0: none yet
    int64_t trackFrames = 0;     ///< of that track, since the place told by the last event of it
    uint64_t trackWrittenAt = 0; ///< `written` just behind the track's last frame so far
    bool unity = true;           ///< the gain is exactly 1 and was so for the last frames
    bool dithered = false;       ///< the last frames of music were dithered
    bool mixing = false;         ///< the last frames of music were mixed of two tracks
    int64_t scaledFrames = 0;    ///< of that track, scaled by the volume, faded or mixed
    uint64_t guardedFrames = 0;  ///< of that track, brought down by the peak guard
    double guardGain = 1.0;      ///< the lowest gain of these
    uint64_t clippedSamples = 0; ///< of that track, cut at full scale
};

/// One writer, any number of readers, no waiting for the writer (a sequence lock).
class PlaybackBoard
{
public:
    void publish(const PlaybackState &s)
    {
        const uint32_t n = sequence_.load(std::memory_order_relaxed);
        sequence_.store(n + 1, std::memory_order_seq_cst);
        written_.store(s.written, std::memory_order_seq_cst);
        delay_.store(s.delay, std::memory_order_seq_cst);
        serial_.store(s.serial, std::memory_order_seq_cst);
        trackFrames_.store(s.trackFrames, std::memory_order_seq_cst);
        trackWrittenAt_.store(s.trackWrittenAt, std::memory_order_seq_cst);
        scaledFrames_.store(s.scaledFrames, std::memory_order_seq_cst);
        guardedFrames_.store(s.guardedFrames, std::memory_order_seq_cst);
        guardGain_.store(s.guardGain, std::memory_order_seq_cst);
        clippedSamples_.store(s.clippedSamples, std::memory_order_seq_cst);
        flags_.store((s.unity ? 1u : 0u) | (s.dithered ? 2u : 0u) | (s.mixing ? 4u : 0u),
                     std::memory_order_seq_cst);
        sequence_.store(n + 2, std::memory_order_seq_cst);
    }

    PlaybackState read() const
    {
        while (true) {
            const uint32_t before = sequence_.load(std::memory_order_seq_cst);
            PlaybackState s;
            s.written = written_.load(std::memory_order_seq_cst);
            s.delay = delay_.load(std::memory_order_seq_cst);
            s.serial = serial_.load(std::memory_order_seq_cst);
            s.trackFrames = trackFrames_.load(std::memory_order_seq_cst);
            s.trackWrittenAt = trackWrittenAt_.load(std::memory_order_seq_cst);
            s.scaledFrames = scaledFrames_.load(std::memory_order_seq_cst);
            s.guardedFrames = guardedFrames_.load(std::memory_order_seq_cst);
            s.guardGain = guardGain_.load(std::memory_order_seq_cst);
            s.clippedSamples = clippedSamples_.load(std::memory_order_seq_cst);
            const uint32_t flags = flags_.load(std::memory_order_seq_cst);
            s.unity = flags & 1u;
            s.dithered = flags & 2u;
            s.mixing = flags & 4u;
            if (before % 2 == 0 && sequence_.load(std::memory_order_seq_cst) == before)
                return s;
        }
    }

private:
    std::atomic<uint32_t> sequence_{0};
    std::atomic<uint64_t> written_{0};
    std::atomic<int64_t> delay_{0};
    std::atomic<uint32_t> serial_{0};
    std::atomic<int64_t> trackFrames_{0};
    std::atomic<uint64_t> trackWrittenAt_{0};
    std::atomic<int64_t> scaledFrames_{0};
    std::atomic<uint64_t> guardedFrames_{0};
    std::atomic<double> guardGain_{1.0};
    std::atomic<uint64_t> clippedSamples_{0};
    std::atomic<uint32_t> flags_{1};
};

} // namespace kelp_core
