/// \file
/// The spectrum and waveform frames among the engine's output lines.
#pragma once

#include <QStringView>
#include <vector>

inline constexpr int mostSpectrumBands = 128;
inline constexpr int mostWaveformBuckets = 256;

/// Levels of frequency bands, -96 … 0 dB, lowest band first.
struct SpectrumFrame
{
    double rateHz = 0.;
    int bandCount = 0;         ///< 1 … mostSpectrumBands
    std::vector<double> main;  ///< bandCount values
    std::vector<double> peaks; ///< bandCount values, or none

    bool operator==(const SpectrumFrame &) const = default;
};

/// The smallest and largest sample of consecutive stretches of sound, -1 … 1.
struct WaveformChannel
{
    std::vector<double> first;  ///< the lower edges
    std::vector<double> second; ///< the upper edges

    bool operator==(const WaveformChannel &) const = default;
};
struct WaveformFrame
{
    double rateHz = 0.;
    int bucketCount = 0;      ///< 1 … mostWaveformBuckets
    WaveformChannel channel1; ///< bucketCount values each
    WaveformChannel channel2; ///< bucketCount values each, or none

    bool operator==(const WaveformFrame &) const = default;
};

/// "SPC rate n main [peaks]", where n bands have two hexadecimal digits each. Read from the first "SPC " of
/// the text onward. A missing or bad block of peaks leaves them empty; anything else that does not fit gives
/// false and leaves the frame as it was.
bool parseSpectrum(QStringView text, SpectrumFrame &frame);

/// "WVF rate n block [block]", where n buckets have two bytes of two hexadecimal digits each. The text begins
/// with "WVF ". A second block that is short or bad leaves channel 2 empty; anything else that does not fit
/// gives false and leaves the frame as it was.
bool parseWaveform(QStringView text, WaveformFrame &frame);
