#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace kelp_core {

/// The low-pass filters that turn DSD into PCM, by stop band and length.
enum class PdmFilter
{
    fast,
    standard,
    best,
};

/// "fast", "standard", "best", the words of `-pcm-filter` and of the "PDM2PCM filter" line.
const char *pdmFilterName(PdmFilter filter);
std::optional<PdmFilter> pdmFilterByName(std::string_view name);

/// Decodes DSD to PCM: a linear-phase low-pass with decimation, computed a byte at a time from tables (the
/// bands stand at pdmBand in pdm_filter.h). Its delay is taken out: PCM frame k stands at the time of DSD bit
/// k · ratio, and before the first and behind the last bit the filter sees DSD silence, so a track neither
/// begins nor ends with a step. However the input is cut into calls, the same samples come out.
/// 0 dB of DSD (a modulation of 50 %, SA-CD Scarlet Book) becomes −6.02 dBFS, so that peaks the format allows
/// do not clip. Decoder thread.
class PdmDecimator
{
public:
    /// The rates must be ones that supports() accepts and channels 1 or more; otherwise nothing comes out.
    PdmDecimator(PdmFilter filter, int dsdRateHz, int pcmRateHz, int channels);
    ~PdmDecimator();

    /// Appends the PCM frames that `frames` further DSD frames (one byte a channel, oldest bit in bit 7)
    /// give.
    void process(const uint8_t *dsd, size_t frames, std::vector<double> &out);
    /// Appends what the filter still holds, so that out has in all round(dsdBits / ratio) frames. Resets.
    void flush(std::vector<double> &out);
    void reset();

    /// Whether dsdRateHz / pcmRateHz is a whole multiple of 8, and the PCM rate 44100 Hz or more.
    static bool supports(int dsdRateHz, int pcmRateHz);
    /// PCM rates that a DSD rate can be decoded to, highest first, 352800 Hz at most.
    static std::vector<int> pcmRatesFor(int dsdRateHz);

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace kelp_core
