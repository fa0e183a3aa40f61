#pragma once

#include <cstddef>
#include <span>
#include <vector>

typedef struct fftw_plan_s *fftw_plan;

namespace kelp_core {

/// A Fourier transform of real samples under a Hann window. One thread at a time.
class WindowedFft
{
public:
    /// size: samples of a window, a power of two.
    explicit WindowedFft(size_t size);
    ~WindowedFft();
    WindowedFft(const WindowedFft &) = delete;
    WindowedFft &operator=(const WindowedFft &) = delete;

    size_t size() const { return window_.size(); }
    /// The magnitudes of size / 2 + 1 bins; a full-scale sine in the middle of a bin gives about 1. Valid
    /// until the next call. samples: size of them.
    std::span<const double> magnitudes(const double *samples);

private:
    std::vector<double> window_;
    std::vector<double> magnitudes_;
    double *in_;
    double *out_; ///< pairs of real and imaginary parts
    fftw_plan plan_;
};

} // namespace kelp_core
