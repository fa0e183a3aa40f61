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
    /// Left and right peak in dBFS, 0.01 dB steps, −120.00 … +60.00; mono gives the same for both. Resets.
    std::array<double, 2> take();
    /// "LVL <left> <right>" with two decimals. Resets.
    std::string line();

private:
    std::array<double, 2> peak_{0.0, 0.0};
};

/// What the second block of an SPC line holds.
enum class SpectrumSecondBlock
{
    peakHold,     ///< the peaks of the first block, falling by 12 dB a second
    rightChannel, ///< the first block is the left channel, the second the right one
};

/// 64 bands of equal width on a logarithmic scale, from 20 Hz to half the rate (96 kHz at the most, so that
/// what a high-resolution file or a DSD modulator has above 20 kHz is seen), in dBFS, 0 … −96, by a
/// Hann-windowed FFT (FFTW). A full-scale sine reads 0 dB within 0.5 dB in its band, or where it stands on a
/// border in one of the two; below about 60 Hz several neighbouring bands share one line of the FFT. With
/// peakHold the first block is the louder of the first two channels in each band. Telemetry thread; add()
/// allocates nothing.
class SpectrumAnalyser
{
public:
    static constexpr int bands = 64;
    explicit SpectrumAnalyser(int rateHz, SpectrumSecondBlock second = SpectrumSecondBlock::peakHold);
    ~SpectrumAnalyser();
    void add(const double *pcm, size_t frames, int channels);
    /// "SPC <rate> 64 <128 hex digits> <128 hex digits>": the bands now, and the second block.
    /// A byte v stands for v / 255 × 96 − 96 dB. Empty until a window of samples is there.
    std::string line();
    /// "SPC zones low=… audible=… nyq=…": how many bands have their middle below 200 Hz, below 20 kHz and
    /// below 22.05 kHz, which is the index of the first band beyond; each 1 … 64.
    std::string zonesLine() const;
    /// "SPC cfg rate=… bands=64 window=… low=20 high=…": what the frames are made of.
    std::string configLine() const;
    /// Forgets samples and peaks, for a seek or a new track.
    void reset();

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
    /// Forgets the samples, for a seek or a new track.
    void reset();

private:
    std::string block(size_t channel) const;

    int rateHz_;
    bool stereo_ = false;
    size_t framesPerBucket_;
    size_t next_ = 0;   ///< place of the oldest frame in the ring
    size_t filled_ = 0; ///< frames in the ring
    std::vector<std::array<double, 2>> ring_;
};

} // namespace kelp_core
