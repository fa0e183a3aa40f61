#include "player_core/dsp/fir_design.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace kelp_core {

namespace {

constexpr double spareDb = 3.0;

/// The modified Bessel function of the first kind and order 0, by its power series. (std::cyl_bessel_i
/// is not in every standard library.)
double besselI0(double x)
{
    double sum = 1.0;
    double term = 1.0;
    for (int k = 1; term > sum * 1e-18; ++k) {
        term *= (x / (2.0 * k)) * (x / (2.0 * k));
        sum += term;
    }
    return sum;
}

double sinc(double x)
{
    return std::abs(x) < 1e-12 ? 1.0 : std::sin(std::numbers::pi * x) / (std::numbers::pi * x);
}

} // namespace

size_t kaiserLength(const LowPassSpec &spec)
{
    const double transition = (spec.stopHz - spec.passHz) / spec.rateHz;
    const double attenuation = spec.attenuationDb + spareDb;
    return static_cast<size_t>(std::ceil((attenuation - 7.95) / (14.36 * transition))) + 1;
}

std::vector<double> kaiserLowPass(const LowPassSpec &spec, size_t taps)
{
    const double beta = 0.1102 * (spec.attenuationDb + spareDb - 8.7);
    const double cut = (spec.passHz + spec.stopHz) / spec.rateHz;
    const double centre = static_cast<double>(taps - 1) / 2.0;
    std::vector<double> filter(taps);
    for (size_t i = 0; i < taps; ++i) {
        const double offset = static_cast<double>(i) - centre;
        const double place = centre > 0.0 ? offset / centre : 0.0;
        const double window = besselI0(beta * std::sqrt(std::max(0.0, 1.0 - place * place)));
        filter[i] = sinc(cut * offset) * window;
    }
    const double sum = std::accumulate(filter.begin(), filter.end(), 0.0);
    for (double &tap : filter)
        tap /= sum;
    return filter;
}

} // namespace kelp_core
