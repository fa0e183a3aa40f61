#include "player_core/dsp/meters.h"

#include "player_core/dsp/hex_text.h"

#include <algorithm>
#include <cmath>

namespace kelp_core {

namespace {

constexpr double stretchSeconds = 0.040;

uint8_t byteOf(double value)
{
    // Written so that what is not a number becomes 0 and not an undefined conversion.
    const double inRange = value >= -1.0 ? std::min(value, 1.0) : (value < -1.0 ? -1.0 : 0.0);
    return static_cast<uint8_t>(std::lround((inRange + 1.0) * 127.5));
}

} // namespace

WaveformBuckets::WaveformBuckets(int rateHz)
    : rateHz_(rateHz)
    , framesPerBucket_(static_cast<size_t>(std::max(1L, std::lround(rateHz * stretchSeconds / buckets))))
    , ring_(framesPerBucket_ * buckets)
{
}

void WaveformBuckets::add(const double *pcm, size_t frames, int channels)
{
    stereo_ = channels > 1;
    const auto width = static_cast<size_t>(channels);
    const size_t skipped = frames > ring_.size() ? frames - ring_.size() : 0;
    pcm += skipped * width;
    for (size_t frame = skipped; frame < frames; ++frame, pcm += width) {
        ring_[next_] = {pcm[0], pcm[stereo_ ? 1 : 0]};
        next_ = next_ + 1 == ring_.size() ? 0 : next_ + 1;
    }
    filled_ = std::min(ring_.size(), filled_ + frames);
}

std::string WaveformBuckets::block(size_t channel) const
{
    std::string text;
    text.reserve(buckets * 4);
    size_t at = next_;
    for (int bucket = 0; bucket < buckets; ++bucket) {
        double low = ring_[at][channel];
        double high = low;
        for (size_t i = 0; i < framesPerBucket_; ++i) {
            low = std::min(low, ring_[at][channel]);
            high = std::max(high, ring_[at][channel]);
            at = at + 1 == ring_.size() ? 0 : at + 1;
        }
        appendHex(text, byteOf(low));
        appendHex(text, byteOf(high));
    }
    return text;
}

std::string WaveformBuckets::line()
{
    if (filled_ < ring_.size())
        return {};
    std::string text = "WVF " + std::to_string(rateHz_) + ' ' + std::to_string(buckets) + ' ' + block(0);
    if (stereo_)
        text += ' ' + block(1);
    return text;
}

void WaveformBuckets::reset()
{
    next_ = filled_ = 0;
}

} // namespace kelp_core
