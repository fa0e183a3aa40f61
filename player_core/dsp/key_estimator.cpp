#include "player_core/dsp/key_estimator.h"

#include "player_core/dsp/tempo_estimator.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace kelp_core {
namespace {

constexpr size_t windowSamples = 8192;
constexpr size_t hopSamples = 4096;
constexpr double lowestHz = 60, highestHz = 2000;

using Tones = std::array<double, 12>;

/// How well each tone, from the tonic up, fits into a key by the judgement of listeners.
constexpr Tones majorFit{6.35, 2.23, 3.48, 2.33, 4.38, 4.09, 2.52, 5.19, 2.39, 3.66, 2.29, 2.88};
constexpr Tones minorFit{6.33, 2.68, 3.52, 5.38, 2.60, 3.53, 2.54, 4.75, 3.98, 2.69, 3.34, 3.17};

constexpr std::array majorNames{"C", "Db", "D", "Eb", "E", "F", "F#", "G", "Ab", "A", "Bb", "B"};
constexpr std::array minorNames{"C", "C#", "D", "Eb", "E", "F", "F#", "G", "G#", "A", "Bb", "B"};

double meanOf(const Tones &tones)
{
    return std::accumulate(tones.begin(), tones.end(), 0.0) / 12;
}

/// The correlation of tones, counted from a tonic, with a key's.
double correlation(const Tones &tones, size_t tonic, const Tones &fit)
{
    const double toneMean = meanOf(tones), fitMean = meanOf(fit);
    double both = 0, ofTones = 0, ofFit = 0;
    for (size_t i = 0; i < 12; ++i) {
        const double a = tones[(tonic + i) % 12] - toneMean, b = fit[i] - fitMean;
        both += a * b;
        ofTones += a * a;
        ofFit += b * b;
    }
    return ofTones > 0 ? both / std::sqrt(ofTones * ofFit) : 0;
}

} // namespace

KeyEstimator::KeyEstimator()
    : fft_(windowSamples)
{
}

void KeyEstimator::process(const double *samples, size_t count)
{
    pending_.insert(pending_.end(), samples, samples + count);
    size_t at = 0;
    for (; at + windowSamples <= pending_.size(); at += hopSamples)
        addWindow(pending_.data() + at);
    pending_.erase(pending_.begin(), pending_.begin() + static_cast<std::ptrdiff_t>(at));
}

void KeyEstimator::addWindow(const double *samples)
{
    constexpr double quietest = 1e-3;  // -60 dBFS
    constexpr double leastPart = 0.03; // of the strongest peak
    constexpr double binHz = static_cast<double>(analysisRateHz) / windowSamples;
    constexpr double a4Hz = 440;
    constexpr int semitonesFromCToA = 9;
    const auto magnitudes = fft_.magnitudes(samples);
    const auto first = static_cast<size_t>(lowestHz / binHz), end = static_cast<size_t>(highestHz / binHz);
    const double strongest = *std::max_element(magnitudes.begin() + static_cast<std::ptrdiff_t>(first),
                                               magnitudes.begin() + static_cast<std::ptrdiff_t>(end));
    if (strongest < quietest)
        return;
    for (size_t bin = first; bin < end; ++bin) {
        const double here = magnitudes[bin], left = magnitudes[bin - 1], right = magnitudes[bin + 1];
        if (here < leastPart * strongest || here <= left || here < right)
            continue;
        // A parabola through the logarithms finds the peak between the bins.
        constexpr double tiny = 1e-12;
        const double a = std::log(left + tiny), b = std::log(here + tiny), c = std::log(right + tiny);
        const double bend = a - 2 * b + c;
        const double shift = bend < 0 ? std::clamp((a - c) / (2 * bend), -0.5, 0.5) : 0;
        const double hz = (static_cast<double>(bin) + shift) * binHz;
        double semitones = std::fmod(12 * std::log2(hz / a4Hz) + semitonesFromCToA, 12);
        if (semitones < 0)
            semitones += 12;
        const auto pitch = static_cast<size_t>(std::lround(semitones * parts)) % pitches_.size();
        // The root keeps a loud voice from hiding the others.
        pitches_[pitch] += std::sqrt(here / strongest);
    }
}

/// The strength of the twelve tones, once the tuning is taken out.
std::array<double, 12> KeyEstimator::tones() const
{
    double sine = 0, cosine = 0;
    for (size_t i = 0; i < pitches_.size(); ++i) {
        const double angle = 2 * std::numbers::pi * static_cast<double>(i % parts) / parts;
        sine += pitches_[i] * std::sin(angle);
        cosine += pitches_[i] * std::cos(angle);
    }
    const double offset = std::atan2(sine, cosine) / (2 * std::numbers::pi); // semitones
    Tones tones{};
    for (size_t i = 0; i < pitches_.size(); ++i) {
        const double semitones = static_cast<double>(i) / parts - offset;
        const double nearest = std::round(semitones);
        const double away = semitones - nearest;
        constexpr double width = 0.2;
        tones[static_cast<size_t>(nearest + 12) % 12] +=
            pitches_[i] * std::exp(-0.5 * away * away / (width * width));
    }
    return tones;
}

std::optional<std::string> KeyEstimator::key() const
{
    constexpr double leastContrast = 0.35, leastFit = 0.6, leastLead = 0.02;
    const Tones found = tones();
    const double mean = meanOf(found);
    if (mean <= 0)
        return {};
    double spread = 0;
    for (const double tone : found)
        spread += (tone - mean) * (tone - mean);
    // All tones alike: noise, or music without a key.
    if (std::sqrt(spread / 12) / mean < leastContrast)
        return {};
    double best = 0, second = 0;
    std::string name;
    for (size_t tonic = 0; tonic < 12; ++tonic) {
        for (const bool minor : {false, true}) {
            const double fit = correlation(found, tonic, minor ? minorFit : majorFit);
            if (fit <= best) {
                second = std::max(second, fit);
                continue;
            }
            second = best;
            best = fit;
            name = std::string(minor ? minorNames[tonic] : majorNames[tonic]) + (minor ? " minor" : " major");
        }
    }
    if (best < leastFit || best - second < leastLead)
        return {};
    return name;
}

} // namespace kelp_core
