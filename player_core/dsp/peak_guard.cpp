#include "player_core/dsp/peak_guard.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kelp_core {

namespace {

constexpr double lookAheadSec = 0.0015;
constexpr double releaseSec = 0.1; // to 1/e of the way back
constexpr double nearOne = 0.999;  // 0.01 dB: as good as back

size_t windowFor(int rateHz)
{
    return std::max<size_t>(8, static_cast<size_t>(std::lround(rateHz * lookAheadSec)));
}

} // namespace

PeakGuard::PeakGuard(int rateHz, int channels, size_t mostFrames)
    : channels_(static_cast<size_t>(std::max(1, channels)))
    , window_(windowFor(rateHz))
    , release_(1.0 / (std::max(1, rateHz) * releaseSec))
    , samples_((mostFrames + window_) * channels_)
    , needed_(mostFrames + window_)
    , recent_(window_, 1.0)
    , recentSum_(static_cast<double>(window_))
    , quietFrames_(window_)
{
}

void PeakGuard::forgetCounts()
{
    guarded_ = 0;
    lowest_ = 1.0;
}

double PeakGuard::neededFor(const double *frame)
{
    double peak = 0.0;
    for (size_t c = 0; c < channels_; ++c)
        peak = std::max(peak, std::abs(frame[c])); // what is not a number never wins
    const double back = lastNeeded_ + (1.0 - lastNeeded_) * release_;
    const double released = back > nearOne ? 1.0 : back;
    return lastNeeded_ = peak > 1.0 ? std::min(released, 1.0 / peak) : released;
}

size_t PeakGuard::process(const double *in, size_t frames, double *out)
{
    std::copy_n(in, frames * channels_, samples_.begin() + static_cast<std::ptrdiff_t>(held_ * channels_));
    for (size_t f = 0; f < frames; ++f)
        needed_[held_ + f] = neededFor(in + f * channels_);
    held_ += frames;
    const size_t back = window_ - 1;
    return give(held_ > back ? held_ - back : 0, out);
}

size_t PeakGuard::flush(double *out)
{
    const size_t given = give(held_, out);
    fresh_ = true;
    return given;
}

/// The gain of a frame is the mean of the last window_ minima, and each of these looked at the frame itself,
/// so the gain is never above what the frame may have, and moves in a straight line to it.
size_t PeakGuard::give(size_t frames, double *out)
{
    acted_ = false;
    const auto begin = needed_.begin();
    const auto held = static_cast<std::ptrdiff_t>(held_);
    const bool idle =
        quietFrames_ >= window_ && std::all_of(begin, begin + held, [](double n) { return n == 1.0; });
    std::copy_n(samples_.begin(), frames * channels_, out);
    fresh_ = fresh_ && (!idle || frames == 0);
    for (size_t f = 0; f < frames && !idle; ++f) {
        const auto from = begin + static_cast<std::ptrdiff_t>(f);
        const double lowest =
            *std::min_element(from, std::min(from + static_cast<std::ptrdiff_t>(window_), begin + held));
        if (fresh_) {
            // Nothing has looked ahead to this frame, so the gain cannot move to it: it begins with it.
            for (double &one : recent_)
                one = std::min(one, lowest);
            recentSum_ = std::accumulate(recent_.begin(), recent_.end(), 0.0);
            quietFrames_ = lowest == 1.0 ? quietFrames_ : 0;
            fresh_ = false;
        }
        recentSum_ += lowest - recent_[recentAt_];
        recent_[recentAt_] = lowest;
        recentAt_ = (recentAt_ + 1) % window_;
        quietFrames_ = lowest == 1.0 ? quietFrames_ + 1 : 0;
        if (quietFrames_ >= window_) {
            recentSum_ = static_cast<double>(window_); // rid of what the sums have rounded
            continue;
        }
        const double gain = std::min(1.0, recentSum_ / static_cast<double>(window_));
        for (size_t c = 0; c < channels_; ++c) {
            double &sample = out[f * channels_ + c];
            sample = std::clamp(sample * gain, -1.0, 1.0);
        }
        acted_ = true;
        ++guarded_;
        lowest_ = std::min(lowest_, gain);
    }
    held_ -= frames;
    const auto given = static_cast<std::ptrdiff_t>(frames);
    std::copy(begin + given, begin + held, begin);
    std::copy_n(samples_.begin() + given * static_cast<std::ptrdiff_t>(channels_), held_ * channels_,
                samples_.begin());
    return frames;
}

} // namespace kelp_core
