#include "player_core/dsp/volume.h"

#include <algorithm>
#include <cmath>

namespace kelp_core {

namespace {

constexpr double rampSeconds = 0.005;
constexpr double floorDb = -120.0;

} // namespace

double gainForVolume(int volume)
{
    const double part = std::clamp(volume, 0, 100) / 100.0;
    return part * part * part;
}

double decibels(double gain)
{
    if (!(gain > 0.0))
        return floorDb;
    const double db = std::round(20.0 * std::log10(gain) * 100.0) / 100.0;
    // Adding zero turns the −0 that a gain just below one rounds to into a plain 0.
    return std::max(floorDb, db) + 0.0;
}

GainRamp::GainRamp(int rateHz, double startGain)
    : current_(startGain)
    , target_(startGain)
    , rampFrames_(std::max(1, static_cast<int>(std::lround(rateHz * rampSeconds))))
{
}

void GainRamp::setTarget(double gain)
{
    if (gain == target_)
        return;
    target_ = gain;
    step_ = (target_ - current_) / rampFrames_;
}

void GainRamp::jump(double gain)
{
    current_ = target_ = gain;
    step_ = 0.0;
}

void GainRamp::apply(double *pcm, size_t frames, int channels)
{
    size_t frame = 0;
    for (; frame < frames && !settled(); ++frame) {
        current_ += step_;
        // The last step lands on the target exactly, whatever the sum of the steps has rounded to.
        if ((step_ >= 0.0) == (current_ >= target_))
            current_ = target_;
        for (int channel = 0; channel < channels; ++channel)
            pcm[frame * static_cast<size_t>(channels) + static_cast<size_t>(channel)] *= current_;
    }
    if (target_ == 1.0)
        return;
    const size_t samples = frames * static_cast<size_t>(channels);
    for (size_t i = frame * static_cast<size_t>(channels); i < samples; ++i)
        pcm[i] *= target_;
}

} // namespace kelp_core
