#include "player_core/dsp/tempo_estimator.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kelp_core {
namespace {

constexpr size_t windowSamples = 1024;
constexpr size_t hopSamples = 128;
constexpr double hopsPerMinute = 60.0 * analysisRateHz / hopSamples;
constexpr double slowestBpm = 50, fastestBpm = 220;
constexpr double shortestSec = 6;

/// The mean over a neighbourhood of reach values on either side.
std::vector<double> movingMean(const std::vector<double> &values, size_t reach)
{
    std::vector<double> sums(values.size() + 1, 0.0), out(values.size());
    std::partial_sum(values.begin(), values.end(), sums.begin() + 1);
    for (size_t i = 0; i < values.size(); ++i) {
        const size_t first = i > reach ? i - reach : 0, end = std::min(values.size(), i + reach + 1);
        out[i] = (sums[end] - sums[first]) / static_cast<double>(end - first);
    }
    return out;
}

/// Onsets without their slow changes and without their mean. A beat is made a few hops wide, so that beats
/// between two hops meet their like.
std::vector<double> sharpened(const std::vector<double> &onsets)
{
    constexpr size_t smoothReach = 2, levelReach = 43; // half a second
    std::vector<double> smooth = movingMean(movingMean(onsets, smoothReach), 1);
    const std::vector<double> level = movingMean(smooth, levelReach);
    for (size_t i = 0; i < smooth.size(); ++i)
        smooth[i] = std::max(0.0, smooth[i] - level[i]);
    const double mean =
        std::accumulate(smooth.begin(), smooth.end(), 0.0) / static_cast<double>(smooth.size());
    for (double &value : smooth)
        value -= mean;
    return smooth;
}

/// How like itself a signal is after a number of hops: 1 for a perfect repetition.
class SelfLikeness
{
public:
    SelfLikeness(const std::vector<double> &signal, size_t maxLag)
        : values_(std::min(maxLag, signal.size() / 2) + 1)
    {
        for (size_t lag = 0; lag < values_.size(); ++lag) {
            const double sum = std::inner_product(signal.begin() + static_cast<std::ptrdiff_t>(lag),
                                                  signal.end(), signal.begin(), 0.0);
            values_[lag] = sum / static_cast<double>(signal.size() - lag);
        }
        power_ = values_[0];
        for (double &value : values_)
            value = power_ > 0 ? value / power_ : 0;
    }

    double power() const { return power_; }

    /// The highest value about a lag and where it stands, between the hops by a parabola. The value is 0
    /// where there is no peak.
    std::pair<double, double> peakAbout(double lag, double reach) const
    {
        const auto first = static_cast<size_t>(std::max(1.0, std::ceil(lag - reach)));
        const size_t end = std::min(values_.size(), static_cast<size_t>(std::floor(lag + reach)) + 1);
        if (first >= end)
            return {0, lag};
        const auto best =
            static_cast<size_t>(std::max_element(values_.begin() + static_cast<std::ptrdiff_t>(first),
                                                 values_.begin() + static_cast<std::ptrdiff_t>(end)) -
                                values_.begin());
        if (best + 1 >= values_.size())
            return {values_[best], static_cast<double>(best)};
        const double left = values_[best - 1], right = values_[best + 1];
        const double bend = left - 2 * values_[best] + right;
        const double shift = bend < 0 ? std::clamp((left - right) / (2 * bend), -0.5, 0.5) : 0;
        return {values_[best], static_cast<double>(best) + shift};
    }

private:
    std::vector<double> values_;
    double power_ = 0;
};

/// The mean likeness after one to four beats.
double likenessOfBeat(const SelfLikeness &likeness, double lag)
{
    constexpr int beats = 4;
    double sum = 0;
    for (int beat = 1; beat <= beats; ++beat)
        sum += likeness.peakAbout(beat * lag, 0.5 + beat / 2.0).first;
    return sum / beats;
}

/// Many beats tell the length of one more exactly than one does.
double refined(const SelfLikeness &likeness, double lag)
{
    double best = likeness.peakAbout(lag, 1).second;
    const double strength = likeness.peakAbout(lag, 1).first;
    for (int beats = 2; beats <= 16; beats *= 2) {
        const auto [value, at] = likeness.peakAbout(best * beats, 2);
        if (value < strength / 2)
            break;
        best = at / beats;
    }
    return best;
}

} // namespace

TempoEstimator::TempoEstimator()
    : fft_(windowSamples)
{
}

void TempoEstimator::process(const double *samples, size_t count)
{
    pending_.insert(pending_.end(), samples, samples + count);
    size_t at = 0;
    for (; at + windowSamples <= pending_.size(); at += hopSamples)
        addWindow(pending_.data() + at);
    pending_.erase(pending_.begin(), pending_.begin() + static_cast<std::ptrdiff_t>(at));
}

void TempoEstimator::addWindow(const double *samples)
{
    // Loudness is felt in ratios; what is below -60 dBFS does not count.
    constexpr double floorMagnitude = 1e-3;
    const auto magnitudes = fft_.magnitudes(samples);
    std::vector<double> spectrum(magnitudes.size());
    for (size_t bin = 0; bin < magnitudes.size(); ++bin)
        spectrum[bin] = std::log1p(magnitudes[bin] / floorMagnitude);
    double rise = 0;
    for (size_t bin = 0; bin < previous_.size(); ++bin)
        rise += std::max(0.0, spectrum[bin] - previous_[bin]);
    onsets_.push_back(rise / static_cast<double>(spectrum.size()));
    previous_ = std::move(spectrum);
}

std::optional<double> TempoEstimator::beatsPerMinute() const
{
    constexpr double usualBpm = 120, octavesAround = 0.9;
    constexpr double leastLikeness = 0.1, noiseLimit = 6, hopsOfAnOnset = 3;
    constexpr double asGood = 0.9;
    if (static_cast<double>(onsets_.size()) < shortestSec * hopsPerMinute / 60)
        return {};
    const std::vector<double> signal = sharpened(onsets_);
    const double slowest = hopsPerMinute / slowestBpm, fastest = hopsPerMinute / fastestBpm;
    const SelfLikeness likeness(signal, static_cast<size_t>(slowest * 16) + 4);
    constexpr double leastPower = 1e-8;
    if (likeness.power() < leastPower)
        return {};
    double best = 0, bestScore = 0;
    for (double lag = std::ceil(fastest); lag <= slowest; lag += 0.5) {
        const double octaves = std::log2(hopsPerMinute / lag / usualBpm) / octavesAround;
        const double score = likenessOfBeat(likeness, lag) * std::exp(-0.5 * octaves * octaves);
        if (score > bestScore) {
            bestScore = score;
            best = lag;
        }
    }
    if (best <= 0)
        return {};
    // What chance gives shrinks with the length of what was heard.
    const double least =
        std::max(leastLikeness, noiseLimit / std::sqrt(static_cast<double>(signal.size()) / hopsOfAnOnset));
    if (likenessOfBeat(likeness, best) < least)
        return {};
    // Two beats are as like each other as one, where all beats are the same: then the shorter is the beat.
    for (const double part : {2.0, 3.0}) {
        while (best / part >= fastest &&
               likeness.peakAbout(best / part, 1).first >= asGood * likeness.peakAbout(best, 1).first)
            best /= part;
    }
    const double bpm = hopsPerMinute / refined(likeness, best);
    return bpm >= slowestBpm - 1 && bpm <= fastestBpm + 1 ? std::optional(bpm) : std::nullopt;
}

} // namespace kelp_core
