#pragma once

#include <cstddef>

namespace kelp_core {

/// Linear gain of `vol n`: a cubic law, so that half of the slider's way is −18.06 dB. 100 is exactly 1.0, 0
/// is silence; values outside 0 … 100 are clamped.
double gainForVolume(int volume);

/// 20·log10(gain) with 0.01 dB steps; −120.0 is the floor and stands for silence.
double decibels(double gain);

/// A gain that moves to its target over a few milliseconds, so that no step clicks. Audio thread.
class GainRamp
{
public:
    explicit GainRamp(int rateHz, double startGain = 1.0);
    void setTarget(double gain);
    /// Jumps without a ramp.
    void jump(double gain);
    /// Scales in place. Frames at a settled gain of exactly 1.0 are not touched.
    void apply(double *pcm, size_t frames, int channels);
    bool settled() const { return current_ == target_; }
    /// Settled at exactly 1.0: what went in comes out.
    bool isUnity() const { return settled() && target_ == 1.0; }
    double target() const { return target_; }

private:
    double current_;
    double target_;
    double step_ = 0.0;
    int rampFrames_;
};

} // namespace kelp_core
