#pragma once

#include <cstddef>
#include <vector>

namespace kelp_core {

/// A low-pass: flat up to passHz, below −attenuationDb from stopHz on.
struct LowPassSpec
{
    double rateHz = 0.0;
    double passHz = 0.0;
    double stopHz = 0.0;
    double attenuationDb = 0.0;
};

/// Taps that a Kaiser window needs for a specification (J. F. Kaiser's estimate, with 3 dB to spare).
size_t kaiserLength(const LowPassSpec &spec);

/// A linear-phase low-pass of exactly `taps` taps, a sinc under a Kaiser window; its gain at 0 Hz is 1. The
/// ripple of the pass band is that of the stop band: below 0.0001 dB from 100 dB on.
std::vector<double> kaiserLowPass(const LowPassSpec &spec, size_t taps);

} // namespace kelp_core
