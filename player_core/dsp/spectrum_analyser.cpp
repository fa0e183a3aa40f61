#include "player_core/dsp/meters.h"

#include "player_core/dsp/fftw_lock.h"
#include "player_core/dsp/hex_text.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <fftw3.h>

namespace kelp_core {

namespace {

constexpr double lowestHz = 20.0;
constexpr double highestHz = 96000.0;
constexpr double floorDb = -96.0;
constexpr double peakFallDbPerSecond = 12.0;
/// A Hann window spreads a sine over the two lines to either side of it.
constexpr double lobeLines = 2.0;

struct Lines
{
    size_t first = 0;
    size_t last = 0;
};

/// About 93 ms: a power of two that grows with the rate.
size_t windowFor(int rateHz)
{
    size_t frames = 4096;
    for (int rate = rateHz; rate > 50000; rate /= 2)
        frames *= 2;
    return frames;
}

uint8_t byteOf(double db)
{
    return static_cast<uint8_t>(std::lround(std::clamp((db - floorDb) / -floorDb, 0.0, 1.0) * 255.0));
}

} // namespace

std::mutex &fftwPlannerMutex()
{
    static std::mutex mutex;
    return mutex;
}

/// One complex transform serves two channels: left is the real part, right the imaginary one.
struct SpectrumAnalyser::State
{
    int rateHz;
    SpectrumSecondBlock second;
    size_t window;
    double topHz;
    size_t next = 0;
    size_t filled = 0;
    uint64_t framesSinceLine = 0;
    std::vector<std::array<double, 2>> ring;
    std::vector<double> hann;
    double hannPower = 0.0; ///< sum of the squares
    std::array<Lines, bands> lines{};
    std::array<double, bands> main{};
    std::array<double, bands> other{};
    fftw_complex *in = nullptr;
    fftw_complex *out = nullptr;
    fftw_plan plan = nullptr;

    State(int rate, SpectrumSecondBlock block)
        : rateHz(std::max(rate, 1000))
        , second(block)
        , window(windowFor(rateHz))
        , topHz(std::min(highestHz, rateHz / 2.0))
        , ring(window)
        , hann(window)
    {
        for (size_t i = 0; i < window; ++i) {
            hann[i] = 0.5 - 0.5 * std::cos(2.0 * std::numbers::pi * static_cast<double>(i) /
                                           static_cast<double>(window));
            hannPower += hann[i] * hann[i];
        }
        for (size_t band = 0; band < bands; ++band)
            lines[band] = linesOf(band);
        other.fill(floorDb);
        const std::lock_guard lock(fftwPlannerMutex());
        in = fftw_alloc_complex(window);
        out = fftw_alloc_complex(window);
        plan = fftw_plan_dft_1d(static_cast<int>(window), in, out, FFTW_FORWARD, FFTW_ESTIMATE);
    }

    ~State()
    {
        const std::lock_guard lock(fftwPlannerMutex());
        fftw_destroy_plan(plan);
        fftw_free(in);
        fftw_free(out);
    }

    State(const State &) = delete;
    State &operator=(const State &) = delete;

    double borderHz(double place) const { return lowestHz * std::pow(topHz / lowestHz, place / bands); }

    /// The lines of the transform that hold all of a sine anywhere inside the band.
    Lines linesOf(size_t band) const
    {
        const double linesPerHz = static_cast<double>(window) / rateHz;
        const double low = borderHz(static_cast<double>(band)) * linesPerHz;
        const double high = borderHz(static_cast<double>(band) + 1.0) * linesPerHz;
        Lines range;
        range.first = static_cast<size_t>(std::max(1.0, std::ceil(low - lobeLines)));
        range.last = std::min(window / 2 - 1, static_cast<size_t>(std::floor(high + lobeLines)));
        return range;
    }

    /// Windows the last stretch without its mean, which would leak into the lowest bands, and transforms it.
    void transform()
    {
        std::array<double, 2> mean{};
        double weight = 0.0;
        for (size_t i = 0; i < window; ++i) {
            const auto &frame = ring[(next + i) % window];
            for (size_t c = 0; c < 2; ++c)
                mean[c] += frame[c] * hann[i];
            weight += hann[i];
        }
        for (size_t i = 0; i < window; ++i) {
            const auto &frame = ring[(next + i) % window];
            for (size_t c = 0; c < 2; ++c)
                in[i][c] = (frame[c] - mean[c] / weight) * hann[i];
        }
        fftw_execute(plan);
    }

    /// Left and right level of a band: the power in its lines, over that of a full-scale sine.
    std::array<double, 2> bandDb(const Lines &range) const
    {
        std::array<double, 2> power{};
        for (size_t k = range.first; k <= range.last; ++k) {
            const auto &a = out[k];
            const auto &b = out[window - k];
            power[0] += ((a[0] + b[0]) * (a[0] + b[0]) + (a[1] - b[1]) * (a[1] - b[1])) / 4.0;
            power[1] += ((a[1] + b[1]) * (a[1] + b[1]) + (a[0] - b[0]) * (a[0] - b[0])) / 4.0;
        }
        const double fullScale = static_cast<double>(window) * hannPower / 4.0;
        std::array<double, 2> db{};
        for (size_t c = 0; c < 2; ++c)
            db[c] =
                power[c] > 0.0 ? std::clamp(10.0 * std::log10(power[c] / fullScale), floorDb, 0.0) : floorDb;
        return db;
    }

    void measure()
    {
        transform();
        const double fall = peakFallDbPerSecond * static_cast<double>(framesSinceLine) / rateHz;
        for (size_t band = 0; band < bands; ++band) {
            const std::array<double, 2> db = bandDb(lines[band]);
            if (second == SpectrumSecondBlock::rightChannel) {
                main[band] = db[0];
                other[band] = db[1];
            } else {
                main[band] = std::max(db[0], db[1]);
                other[band] = std::max({main[band], other[band] - fall, floorDb});
            }
        }
        framesSinceLine = 0;
    }

    int bandsBelow(double hz) const
    {
        int count = 0;
        while (count < bands && borderHz(count + 0.5) < hz)
            ++count;
        return std::max(1, count);
    }
};

SpectrumAnalyser::SpectrumAnalyser(int rateHz, SpectrumSecondBlock second)
    : state_(std::make_unique<State>(rateHz, second))
{
}

SpectrumAnalyser::~SpectrumAnalyser() = default;

void SpectrumAnalyser::add(const double *pcm, size_t frames, int channels)
{
    State &s = *state_;
    const auto width = static_cast<size_t>(channels);
    const size_t right = channels > 1 ? 1 : 0;
    const size_t skipped = frames > s.window ? frames - s.window : 0;
    pcm += skipped * width;
    for (size_t frame = skipped; frame < frames; ++frame, pcm += width) {
        s.ring[s.next] = {pcm[0], pcm[right]};
        s.next = s.next + 1 == s.window ? 0 : s.next + 1;
    }
    s.filled = std::min(s.window, s.filled + frames);
    s.framesSinceLine += frames;
}

std::string SpectrumAnalyser::line()
{
    if (state_->filled < state_->window)
        return {};
    state_->measure();
    std::string text = "SPC " + std::to_string(state_->rateHz) + ' ' + std::to_string(bands) + ' ';
    text.reserve(text.size() + 4 * bands + 1);
    for (double db : state_->main)
        appendHex(text, byteOf(db));
    text += ' ';
    for (double db : state_->other)
        appendHex(text, byteOf(db));
    return text;
}

std::string SpectrumAnalyser::zonesLine() const
{
    return "SPC zones low=" + std::to_string(state_->bandsBelow(200.0)) +
           " audible=" + std::to_string(state_->bandsBelow(20000.0)) +
           " nyq=" + std::to_string(state_->bandsBelow(22050.0));
}

std::string SpectrumAnalyser::configLine() const
{
    return "SPC cfg rate=" + std::to_string(state_->rateHz) + " bands=" + std::to_string(bands) +
           " window=" + std::to_string(state_->window) + " low=" + std::to_string(std::lround(lowestHz)) +
           " high=" + std::to_string(std::lround(state_->topHz));
}

void SpectrumAnalyser::reset()
{
    state_->next = state_->filled = 0;
    state_->framesSinceLine = 0;
    state_->other.fill(floorDb);
}

} // namespace kelp_core
