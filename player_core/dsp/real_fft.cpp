#include "player_core/dsp/real_fft.h"

#include "player_core/dsp/fftw_lock.h"

#include <cmath>
#include <fftw3.h>
#include <numbers>

namespace kelp_core {

WindowedFft::WindowedFft(size_t size)
    : window_(size)
    , magnitudes_(size / 2 + 1)
{
    for (size_t i = 0; i < size; ++i)
        window_[i] =
            0.5 - 0.5 * std::cos(2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(size));
    const std::lock_guard lock(fftwPlannerMutex());
    in_ = fftw_alloc_real(size);
    out_ = fftw_alloc_real(2 * (size / 2 + 1));
    plan_ = fftw_plan_dft_r2c_1d(static_cast<int>(size), in_, reinterpret_cast<fftw_complex *>(out_),
                                 FFTW_ESTIMATE);
}

WindowedFft::~WindowedFft()
{
    const std::lock_guard lock(fftwPlannerMutex());
    fftw_destroy_plan(plan_);
    fftw_free(in_);
    fftw_free(out_);
}

std::span<const double> WindowedFft::magnitudes(const double *samples)
{
    for (size_t i = 0; i < window_.size(); ++i)
        in_[i] = samples[i] * window_[i];
    fftw_execute(plan_);
    // Half of the energy stands at negative frequencies, and the window takes half of the rest.
    const double scale = 4.0 / static_cast<double>(window_.size());
    for (size_t bin = 0; bin < magnitudes_.size(); ++bin)
        magnitudes_[bin] = scale * std::hypot(out_[2 * bin], out_[2 * bin + 1]);
    return magnitudes_;
}

} // namespace kelp_core
