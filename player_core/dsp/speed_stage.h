#pragma once

#include "player_core/dsp/resampler.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kelp_core {

/// How fast the music goes. Plain value.
struct SpeedPlan
{
    double ratio = 1.0;    ///< seconds of music in one second, slowest … fastest
    bool pitchKept = true; ///< false: the pitch goes with the speed, as on a turntable

    static constexpr double slowest = 0.5;
    static constexpr double fastest = 3.0;

    /// Within a two-thousandth of the original speed nothing is done at all.
    bool active() const { return ratio < 0.9995 || ratio > 1.0005; }
    bool operator==(const SpeedPlan &) const = default;
};

/// Plays PCM faster or slower at the same rate of samples: with the pitch kept by Rubber Band (its finer
/// engine up to 96 kHz, the faster one above, where the finer would need most of a processor), or with the
/// pitch going along by the resampler. One ratio for its whole life. Decoder thread; allocates.
///
/// What comes out begins with what went in first, and is round(frames / ratio) frames long to the frame.
class SpeedStage
{
public:
    SpeedStage(const SpeedPlan &plan, ResampleQuality quality, int rateHz, int channels);
    ~SpeedStage();
    void process(const double *in, size_t frames, std::vector<double> &out); ///< appends
    void flush(std::vector<double> &out); ///< appends the rest; nothing may follow

private:
    class Stretcher;

    const double ratio_;
    std::unique_ptr<Stretcher> stretcher_;
    std::unique_ptr<Resampler> resampler_;
};

} // namespace kelp_core
