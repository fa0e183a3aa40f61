#include "player_core/session/stream_transform.h"

#include <algorithm>

namespace kelp_core {

namespace {

/// Both kinds of samples; `silent` stands for a channel without a source.
template<typename T>
void spread(const std::vector<T> &in, int from, int to, T silent, std::vector<T> &out)
{
    const size_t frames = in.size() / static_cast<size_t>(from);
    out.assign(frames * static_cast<size_t>(to), silent);
    for (size_t f = 0; f < frames; ++f) {
        const T *src = in.data() + f * static_cast<size_t>(from);
        T *dst = out.data() + f * static_cast<size_t>(to);
        std::copy(src, src + std::min(from, to), dst);
        if (from == 1 && to >= 2)
            dst[1] = src[0];
    }
}

void fold(const std::vector<double> &in, int from, int to, std::vector<double> &out)
{
    const size_t frames = in.size() / static_cast<size_t>(from);
    const int targets = std::min(to, 2);
    const double scale = 1.0 / ((from + targets - 1) / targets);
    out.assign(frames * static_cast<size_t>(to), 0.0);
    for (size_t f = 0; f < frames; ++f) {
        for (int c = 0; c < from; ++c) {
            const int target = c % targets;
            out[f * static_cast<size_t>(to) + static_cast<size_t>(target)] +=
                scale * in[f * static_cast<size_t>(from) + static_cast<size_t>(c)];
        }
    }
}

} // namespace

int TransformPlan::decodedRateHz() const
{
    if (!decodesDsd())
        return from.rateHz;
    if (PdmDecimator::supports(from.rateHz, toRateHz))
        return toRateHz;
    const std::vector<int> rates = PdmDecimator::pcmRatesFor(from.rateHz);
    return rates.empty() ? toRateHz : rates.front();
}

double TransformPlan::framesOutPerFrame() const
{
    return static_cast<double>(framesPerSecondOut()) /
           static_cast<double>(std::max<int64_t>(1, from.framesPerSecond())) / speedRatio();
}

StreamTransform::StreamTransform(const TransformPlan &plan)
    : plan_(plan)
{
    if (plan.decodesDsd())
        decimator_ = std::make_unique<PdmDecimator>(plan.filter, plan.from.rateHz, plan.decodedRateHz(),
                                                    plan.from.channels);
    if (plan.resamples())
        resampler_ = std::make_unique<Resampler>(plan.quality, plan.decodedRateHz(), plan.toRateHz,
                                                 plan.from.channels);
    if (plan.changesSpeed())
        speed_ = std::make_unique<SpeedStage>(plan.speed, plan.quality, plan.toRateHz, plan.from.channels);
}

void StreamTransform::scale(std::vector<double> &pcm) const
{
    if (gain_ == 1.0)
        return;
    for (double &sample : pcm)
        sample *= gain_;
}

void StreamTransform::process(const AudioBlock &in, AudioBlock &out)
{
    out.clear();
    if (plan_.toDsd) {
        if (plan_.mapsChannels())
            spread<uint8_t>(in.dsd, plan_.from.channels, plan_.toChannels, 0x69, out.dsd);
        else
            out.dsd = in.dsd;
        out.frames = in.frames;
        return;
    }
    decoded_.clear();
    if (decimator_)
        decimator_->process(in.dsd.data(), in.frames, decoded_);
    else
        decoded_ = in.pcm;
    scale(decoded_);
    const auto channels = static_cast<size_t>(plan_.from.channels);
    std::vector<double> *pcm = &decoded_;
    if (resampler_) {
        resampled_.clear();
        resampler_->process(pcm->data(), pcm->size() / channels, resampled_);
        pcm = &resampled_;
    }
    if (speed_) {
        sped_.clear();
        speed_->process(pcm->data(), pcm->size() / channels, sped_);
        pcm = &sped_;
    }
    finish(*pcm, out);
}

void StreamTransform::flush(AudioBlock &out)
{
    out.clear();
    decoded_.clear();
    if (decimator_)
        decimator_->flush(decoded_);
    scale(decoded_);
    const auto channels = static_cast<size_t>(plan_.from.channels);
    std::vector<double> *pcm = &decoded_;
    if (resampler_) {
        resampled_.clear();
        if (!pcm->empty())
            resampler_->process(pcm->data(), pcm->size() / channels, resampled_);
        resampler_->flush(resampled_);
        pcm = &resampled_;
    }
    if (speed_) {
        sped_.clear();
        if (!pcm->empty())
            speed_->process(pcm->data(), pcm->size() / channels, sped_);
        speed_->flush(sped_);
        pcm = &sped_;
    }
    finish(*pcm, out);
}

void StreamTransform::finish(std::vector<double> &pcm, AudioBlock &out)
{
    if (!plan_.mapsChannels())
        out.pcm.swap(pcm);
    else if (plan_.from.channels > plan_.toChannels)
        fold(pcm, plan_.from.channels, plan_.toChannels, out.pcm);
    else
        spread<double>(pcm, plan_.from.channels, plan_.toChannels, 0.0, out.pcm);
    out.frames = plan_.toChannels > 0 ? out.pcm.size() / static_cast<size_t>(plan_.toChannels) : 0;
}

} // namespace kelp_core
