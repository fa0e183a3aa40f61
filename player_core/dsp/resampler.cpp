#include "player_core/dsp/resampler.h"

#include <array>
#include <cstdint>

#include <soxr.h>

namespace kelp_core {

namespace {

struct QualityRow
{
    ResampleQuality quality;
    const char *name;
    unsigned long recipe;
};

constexpr std::array<QualityRow, 3> qualities{{
    {ResampleQuality::fast, "fast", SOXR_MQ},
    {ResampleQuality::standard, "standard", SOXR_24_BITQ},
    {ResampleQuality::best, "best", SOXR_VHQ},
}};

/// Frames a call to soxr may give back.
constexpr size_t chunkFrames = 4096;

const QualityRow &rowOf(ResampleQuality quality)
{
    return qualities[static_cast<size_t>(quality)];
}

} // namespace

const char *resampleQualityName(ResampleQuality quality)
{
    return rowOf(quality).name;
}

std::optional<ResampleQuality> resampleQualityByName(std::string_view name)
{
    for (const QualityRow &row : qualities) {
        if (name == row.name)
            return row.quality;
    }
    return std::nullopt;
}

struct Resampler::State
{
    int fromHz;
    int toHz;
    size_t channels;
    soxr_t soxr = nullptr;
    uint64_t framesIn = 0;
    uint64_t framesOut = 0;
    std::vector<double> chunk;

    uint64_t wantedFrames() const
    {
        const auto from = static_cast<uint64_t>(fromHz);
        return (framesIn * static_cast<uint64_t>(toHz) + from / 2) / from;
    }

    /// Appends up to `frames` of the chunk, but never more than the exact length allows.
    void take(size_t frames, uint64_t limit, std::vector<double> &out)
    {
        if (framesOut + frames > limit)
            frames = static_cast<size_t>(limit > framesOut ? limit - framesOut : 0);
        out.insert(out.end(), chunk.begin(), chunk.begin() + static_cast<std::ptrdiff_t>(frames * channels));
        framesOut += frames;
    }

    void reset()
    {
        framesIn = framesOut = 0;
        if (soxr)
            soxr_clear(soxr);
    }
};

Resampler::Resampler(ResampleQuality quality, int fromHz, int toHz, int channels)
    : state_(std::make_unique<State>())
{
    state_->fromHz = fromHz;
    state_->toHz = toHz;
    state_->channels = static_cast<size_t>(channels);
    state_->chunk.resize(chunkFrames * state_->channels);
    if (fromHz == toHz)
        return;
    const soxr_io_spec_t io = soxr_io_spec(SOXR_FLOAT64_I, SOXR_FLOAT64_I);
    // Without the flag soxr computes the lower qualities in single precision.
    const soxr_quality_spec_t spec = soxr_quality_spec(rowOf(quality).recipe, SOXR_DOUBLE_PRECISION);
    soxr_error_t error = nullptr;
    state_->soxr = soxr_create(fromHz, toHz, static_cast<unsigned>(channels), &error, &io, &spec, nullptr);
    if (error && state_->soxr) {
        soxr_delete(state_->soxr);
        state_->soxr = nullptr;
    }
}

Resampler::~Resampler()
{
    if (state_->soxr)
        soxr_delete(state_->soxr);
}

bool Resampler::works() const
{
    return state_->soxr != nullptr || state_->fromHz == state_->toHz;
}

void Resampler::process(const double *in, size_t frames, std::vector<double> &out)
{
    state_->framesIn += frames;
    if (!state_->soxr) {
        if (works())
            out.insert(out.end(), in, in + frames * state_->channels);
        return;
    }
    size_t used = 0;
    for (;;) {
        size_t taken = 0;
        size_t given = 0;
        const double *from = in + used * state_->channels;
        if (soxr_process(state_->soxr, from, frames - used, &taken, state_->chunk.data(), chunkFrames,
                         &given))
            return;
        used += taken;
        state_->take(given, UINT64_MAX, out);
        if (taken == 0 && given == 0)
            return;
        if (used == frames && given < chunkFrames)
            return;
    }
}

void Resampler::flush(std::vector<double> &out)
{
    if (state_->soxr) {
        const uint64_t wanted = state_->wantedFrames();
        while (state_->framesOut < wanted) {
            size_t given = 0;
            if (soxr_process(state_->soxr, nullptr, 0, nullptr, state_->chunk.data(), chunkFrames, &given) ||
                given == 0)
                break;
            state_->take(given, wanted, out);
        }
        // soxr rounds the length its own way: a frame it leaves out is silence at the very end.
        const auto missing = static_cast<size_t>(wanted > state_->framesOut ? wanted - state_->framesOut : 0);
        out.insert(out.end(), missing * state_->channels, 0.0);
    }
    state_->reset();
}

void Resampler::reset()
{
    state_->reset();
}

} // namespace kelp_core
