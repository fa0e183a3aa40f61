#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <vector>

/// A second-order delta-sigma modulator: DSD bytes of a sine, or of anything else below about half scale.
class Modulator
{
public:
    int bit(double input)
    {
        const double output = second_ >= 0.0 ? 1.0 : -1.0;
        first_ += input - output;
        second_ += first_ - output;
        return output > 0.0 ? 1 : 0;
    }

private:
    double first_ = 0.0;
    double second_ = 0.0;
};

/// `bytes` DSD bytes of one channel.
inline std::vector<uint8_t> dsdSine(double hz, double amplitude, int dsdRateHz, size_t bytes)
{
    Modulator modulator;
    std::vector<uint8_t> dsd(bytes);
    for (size_t i = 0; i < bytes * 8; ++i) {
        const double phase = 2.0 * std::numbers::pi * hz * static_cast<double>(i) / dsdRateHz;
        dsd[i / 8] = static_cast<uint8_t>(dsd[i / 8] << 1 | modulator.bit(amplitude * std::sin(phase)));
    }
    return dsd;
}

/// A sine fitted to samples by least squares.
struct SineFit
{
    double amplitude = 0.0;
    double delaySeconds = 0.0; ///< how much later than sin(2π f t) it is
    double snrDb = 0.0;        ///< power of the sine over that of all the rest
};

/// Fits samples[first … last) of a mono signal.
inline SineFit fitSine(const std::vector<double> &samples, size_t first, size_t last, double hz,
                       double rateHz)
{
    double ss = 0, sc = 0, cc = 0, sx = 0, cx = 0;
    const auto phaseOf = [&](size_t i) {
        return 2.0 * std::numbers::pi * hz * static_cast<double>(i) / rateHz;
    };
    for (size_t i = first; i < last; ++i) {
        const double s = std::sin(phaseOf(i)), c = std::cos(phaseOf(i));
        ss += s * s;
        sc += s * c;
        cc += c * c;
        sx += s * samples[i];
        cx += c * samples[i];
    }
    const double determinant = ss * cc - sc * sc;
    const double a = (sx * cc - cx * sc) / determinant;
    const double b = (cx * ss - sx * sc) / determinant;
    double noise = 0.0;
    for (size_t i = first; i < last; ++i) {
        const double rest = samples[i] - a * std::sin(phaseOf(i)) - b * std::cos(phaseOf(i));
        noise += rest * rest;
    }
    SineFit fit;
    fit.amplitude = std::hypot(a, b);
    fit.delaySeconds = -std::atan2(b, a) / (2.0 * std::numbers::pi * hz);
    const double power = fit.amplitude * fit.amplitude / 2.0 * static_cast<double>(last - first);
    fit.snrDb = 10.0 * std::log10(power / noise);
    return fit;
}
