#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace kelp_core {

/// Peak level of the first two channels since it was last taken. Telemetry thread.
class LevelMeter
{
public:
    void add(const double *pcm, size_t frames, int channels);
    /// Left and right peak in dBFS, 0.01 dB steps, −120.00 at the least; mono gives the same for both.
    /// Resets.
    std::array<double, 2> take();

private:
    std::array<double, 2> peak_{0.0, 0.0};
};

/// 64 logarithmic bands from 20 Hz to 20 kHz or half the rate, in dBFS, 0 … −96, by a Hann-windowed FFT
/// (FFTW). A full-scale sine in a band reads 0 dB within 0.5 dB. Telemetry thread; allocates only when made.
class SpectrumAnalyser
{
public:
    static constexpr int bands = 64;
    explicit SpectrumAnalyser(int rateHz);
    ~SpectrumAnalyser();
    void add(const double *pcm, size_t frames, int channels);
    /// "SPC <rate> 64 <128 hex digits> <128 hex digits>": the bands now, and their slowly falling peaks.
    /// A byte v stands for v / 255 × 96 − 96 dB. Empty until a window of samples is there.
    std::string line();
    /// "SPC zones low=… audible=… nyq=…": the first band (1-based) at or above 200 Hz, the last at or below
    /// 20 kHz, the last below half the rate.
    std::string zonesLine() const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

/// Minima and maxima of the last stretch of samples for the oscilloscope. Telemetry thread.
class WaveformBuckets
{
public:
    static constexpr int buckets = 128;
    explicit WaveformBuckets(int rateHz);
    void add(const double *pcm, size_t frames, int channels);
    /// "WVF <rate> 128 <512 hex digits> [<512 hex digits>]": per bucket minimum and maximum of channel 1,
    /// then of channel 2; a byte v stands for v / 127.5 − 1. Empty until there is a stretch (about 40 ms).
    std::string line();

private:
    int rateHz_;
    int channels_ = 0;
    size_t framesPerBucket_;
    std::vector<double> history_;
};

} // namespace kelp_core
