#include "player_core/dsp/speed_stage.h"

#include <algorithm>
#include <cmath>

#include <rubberband/RubberBandStretcher.h>

namespace kelp_core {

namespace {

using RubberBand::RubberBandStretcher;

constexpr size_t stepFrames = 4096;
constexpr int finerUpToHz = 96000;
// Silence fed behind the end until the last of the music has come out; a bound, never reached in practice.
constexpr int mostTailSteps = 64;

RubberBandStretcher::Options optionsFor(int rateHz)
{
    return RubberBandStretcher::OptionProcessRealTime | RubberBandStretcher::OptionThreadingNever |
           RubberBandStretcher::OptionChannelsTogether |
           (rateHz <= finerUpToHz ? RubberBandStretcher::OptionEngineFiner
                                  : RubberBandStretcher::OptionEngineFaster);
}

} // namespace

/// The library with its delay taken away and its length made exact.
class SpeedStage::Stretcher
{
public:
    Stretcher(double ratio, int rateHz, int channels)
        : ratio_(ratio)
        , channels_(static_cast<size_t>(channels))
        , stretcher_(static_cast<size_t>(rateHz), channels_, optionsFor(rateHz), 1.0 / ratio, 1.0)
        , planes_(channels_, std::vector<float>(stepFrames))
        , pointers_(channels_)
    {
        stretcher_.setMaxProcessSize(stepFrames);
        std::transform(planes_.begin(), planes_.end(), pointers_.begin(), [](auto &p) { return p.data(); });
        toDrop_ = stretcher_.getStartDelay();
        std::vector<double> nothing;
        const std::vector<double> silence(stepFrames * channels_);
        for (size_t left = stretcher_.getPreferredStartPad(); left > 0;) {
            const size_t n = std::min(left, stepFrames);
            feed(silence.data(), n, nothing);
            left -= n;
        }
    }

    void process(const double *in, size_t frames, std::vector<double> &out)
    {
        taken_ += static_cast<int64_t>(frames);
        for (size_t done = 0; done < frames; done += stepFrames)
            feed(in + done * channels_, std::min(stepFrames, frames - done), out);
    }

    void flush(std::vector<double> &out)
    {
        const std::vector<double> silence(stepFrames * channels_);
        take(0, out);
        for (int step = 0; given_ < wanted() && step < mostTailSteps; ++step)
            feed(silence.data(), stepFrames, out);
    }

private:
    int64_t wanted() const { return std::llround(static_cast<double>(taken_) / ratio_); }

    void feed(const double *in, size_t frames, std::vector<double> &out)
    {
        for (size_t c = 0; c < channels_; ++c)
            for (size_t f = 0; f < frames; ++f)
                planes_[c][f] = static_cast<float>(in[f * channels_ + c]);
        stretcher_.process(pointers_.data(), frames, false);
        while (stretcher_.available() > 0) {
            const size_t n = stretcher_.retrieve(
                pointers_.data(), std::min(stepFrames, static_cast<size_t>(stretcher_.available())));
            take(n, out);
        }
    }

    void take(size_t frames, std::vector<double> &out)
    {
        const size_t dropped = std::min(frames, toDrop_);
        toDrop_ -= dropped;
        for (size_t f = dropped; f < frames; ++f)
            for (size_t c = 0; c < channels_; ++c)
                early_.push_back(static_cast<double>(planes_[c][f]));
        // What comes before its time waits, so that the end can be cut to the frame.
        const auto due = static_cast<size_t>(std::max<int64_t>(0, wanted() - given_));
        const size_t n = std::min(early_.size() / channels_, due);
        const auto end = early_.begin() + static_cast<std::ptrdiff_t>(n * channels_);
        out.insert(out.end(), early_.begin(), end);
        early_.erase(early_.begin(), end);
        given_ += static_cast<int64_t>(n);
    }

    const double ratio_;
    const size_t channels_;
    RubberBandStretcher stretcher_;
    std::vector<std::vector<float>> planes_;
    std::vector<float *> pointers_;
    std::vector<double> early_;
    size_t toDrop_ = 0;
    int64_t taken_ = 0;
    int64_t given_ = 0;
};

SpeedStage::SpeedStage(const SpeedPlan &plan, ResampleQuality quality, int rateHz, int channels)
    : ratio_(plan.ratio)
{
    if (plan.pitchKept)
        stretcher_ = std::make_unique<Stretcher>(ratio_, rateHz, channels);
    else
        resampler_ = std::make_unique<Resampler>(quality, static_cast<int>(std::lround(rateHz * ratio_)),
                                                 rateHz, channels);
}

SpeedStage::~SpeedStage() = default;

void SpeedStage::process(const double *in, size_t frames, std::vector<double> &out)
{
    if (stretcher_)
        stretcher_->process(in, frames, out);
    else
        resampler_->process(in, frames, out);
}

void SpeedStage::flush(std::vector<double> &out)
{
    if (stretcher_)
        stretcher_->flush(out);
    else
        resampler_->flush(out);
}

} // namespace kelp_core
