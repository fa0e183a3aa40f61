#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace kelp_core {

/// `-src-quality`.
enum class ResampleQuality
{
    fast,
    standard,
    best,
};

const char *resampleQualityName(ResampleQuality quality);
std::optional<ResampleQuality> resampleQualityByName(std::string_view name);

/// Sample-rate conversion by soxr in double precision. Decoder thread.
class Resampler
{
public:
    Resampler(ResampleQuality quality, int fromHz, int toHz, int channels);
    ~Resampler();
    void process(const double *in, size_t frames, std::vector<double> &out); ///< appends
    void flush(std::vector<double> &out); ///< appends the rest, then resets

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace kelp_core
