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

/// Sample-rate conversion by soxr in double precision: `fast` is its medium quality (16 bits), `standard` 24
/// bits and `best` 28 bits; all three are linear-phase. Decoder thread.
///
/// However the input is cut into calls, the same samples come out, in all round(frames · to / from).
class Resampler
{
public:
    Resampler(ResampleQuality quality, int fromHz, int toHz, int channels);
    ~Resampler();
    /// False when soxr has refused the rates; then nothing comes out.
    bool works() const;
    void process(const double *in, size_t frames, std::vector<double> &out); ///< appends
    void flush(std::vector<double> &out); ///< appends the rest, then resets
    void reset();                         ///< forgets what is in it, for a seek

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace kelp_core
