#include "player_core/dsp/pdm_decimator.h"

#include "player_core/dsp/pdm_filter.h"
#include "player_core/dsp/wire_writer.h"

#include <algorithm>
#include <array>

namespace kelp_core {

namespace {

constexpr int highestPcmHz = 352800;
constexpr int lowestPcmHz = 44100;

/// DSD frames taken in one go: bounds the memory and keeps the history in the cache.
constexpr size_t pieceFrames = 8192;

/// Sums in independent chains, so that the additions need not wait for each other. The order is fixed
/// by the filter alone, hence the same for every cutting of the input.
double filterBytes(const double *table, const uint8_t *bytes, size_t count)
{
    std::array<double, 4> sums{};
    size_t j = 0;
    for (; j + 4 <= count; j += 4, table += 4 * 256) {
        sums[0] += table[bytes[j]];
        sums[1] += table[256 + bytes[j + 1]];
        sums[2] += table[512 + bytes[j + 2]];
        sums[3] += table[768 + bytes[j + 3]];
    }
    for (; j < count; ++j, table += 256)
        sums[0] += table[bytes[j]];
    return (sums[0] + sums[1]) + (sums[2] + sums[3]);
}

double filterSamples(const double *taps, const double *samples, size_t count)
{
    std::array<double, 8> sums{};
    size_t i = 0;
    for (; i + 8 <= count; i += 8) {
        for (size_t lane = 0; lane < 8; ++lane)
            sums[lane] += taps[i + lane] * samples[i + lane];
    }
    for (; i < count; ++i)
        sums[0] += taps[i] * samples[i];
    return ((sums[0] + sums[1]) + (sums[2] + sums[3])) + ((sums[4] + sums[5]) + (sums[6] + sums[7]));
}

template<typename Value>
void dropFront(std::vector<Value> &line, size_t count)
{
    line.erase(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(count));
}

} // namespace

/// Each channel has its bytes and its intermediate samples in a line of its own; what a stage no longer needs
/// is cut off at the front after each piece.
/// Each channel has its bytes and the samples behind each stage in lines of its own; what a stage no longer
/// needs is cut off at the front after each piece.
struct PdmDecimator::State
{
    struct Channel
    {
        std::vector<uint8_t> bytes;
        std::vector<std::vector<double>>
            lines; ///< in front of each halving, and the last one at the PCM rate
    };

    std::shared_ptr<const PdmFilterTables> tables;
    uint64_t ratio = 0;
    std::vector<Channel> channels;
    uint64_t bytesIn = 0;   ///< a channel, since the last reset
    uint64_t framesOut = 0; ///< since the last reset

    uint64_t wantedFrames() const { return (bytesIn * 8 + ratio / 2) / ratio; }

    /// The idle pattern stands before the first byte, as far as the stages look back.
    void prime()
    {
        for (Channel &channel : channels) {
            channel.bytes.assign(tables->lookBackBytes(), dsdSilence);
            channel.lines.resize(tables->halvings.size() + 1);
            for (std::vector<double> &line : channel.lines)
                line.clear();
        }
        bytesIn = framesOut = 0;
    }

    void runFirstStage(Channel &channel) const
    {
        size_t at = 0;
        for (; at + tables->lengthBytes <= channel.bytes.size(); at += tables->bytesPerStep)
            channel.lines.front().push_back(
                filterBytes(tables->table.data(), channel.bytes.data() + at, tables->lengthBytes));
        dropFront(channel.bytes, at);
    }

    void runHalving(Channel &channel, size_t stage) const
    {
        const std::vector<double> &filter = tables->halvings[stage];
        std::vector<double> &line = channel.lines[stage];
        size_t at = 0;
        for (; at + filter.size() <= line.size(); at += 2)
            channel.lines[stage + 1].push_back(filterSamples(filter.data(), line.data() + at, filter.size()));
        dropFront(line, at);
    }

    /// Turns the bytes that stand ready into at most `most` frames.
    void run(std::vector<double> &out, uint64_t most)
    {
        for (Channel &channel : channels) {
            runFirstStage(channel);
            for (size_t stage = 0; stage < tables->halvings.size(); ++stage)
                runHalving(channel, stage);
        }
        const auto frames =
            static_cast<size_t>(std::min<uint64_t>(channels.front().lines.back().size(), most));
        const size_t start = out.size();
        out.resize(start + frames * channels.size());
        for (size_t c = 0; c < channels.size(); ++c) {
            std::vector<double> &line = channels[c].lines.back();
            for (size_t frame = 0; frame < frames; ++frame)
                out[start + frame * channels.size() + c] = line[frame];
            dropFront(line, frames);
        }
        framesOut += frames;
    }
};

PdmDecimator::PdmDecimator(PdmFilter filter, int dsdRateHz, int pcmRateHz, int channels)
    : state_(std::make_unique<State>())
{
    if (!supports(dsdRateHz, pcmRateHz) || channels < 1)
        return;
    state_->tables = pdmFilterTables(filter, dsdRateHz, pcmRateHz);
    state_->ratio = static_cast<uint64_t>(dsdRateHz / pcmRateHz);
    state_->channels.resize(static_cast<size_t>(channels));
    state_->prime();
}

PdmDecimator::~PdmDecimator() = default;

void PdmDecimator::process(const uint8_t *dsd, size_t frames, std::vector<double> &out)
{
    std::vector<State::Channel> &channels = state_->channels;
    if (channels.empty())
        return;
    while (frames > 0) {
        const size_t piece = std::min(frames, pieceFrames);
        for (size_t c = 0; c < channels.size(); ++c) {
            std::vector<uint8_t> &bytes = channels[c].bytes;
            const size_t start = bytes.size();
            bytes.resize(start + piece);
            for (size_t frame = 0; frame < piece; ++frame)
                bytes[start + frame] = dsd[frame * channels.size() + c];
        }
        state_->bytesIn += piece;
        state_->run(out, UINT64_MAX);
        dsd += piece * channels.size();
        frames -= piece;
    }
}

void PdmDecimator::flush(std::vector<double> &out)
{
    if (state_->channels.empty())
        return;
    const uint64_t wanted = state_->wantedFrames();
    while (state_->framesOut < wanted) {
        for (State::Channel &channel : state_->channels)
            channel.bytes.insert(channel.bytes.end(), state_->tables->lengthBytes, dsdSilence);
        state_->run(out, wanted - state_->framesOut);
    }
    state_->prime();
}

void PdmDecimator::reset()
{
    if (!state_->channels.empty())
        state_->prime();
}

bool PdmDecimator::supports(int dsdRateHz, int pcmRateHz)
{
    return pcmRateHz >= lowestPcmHz && dsdRateHz > 0 && dsdRateHz % (pcmRateHz * 8LL) == 0;
}

std::vector<int> PdmDecimator::pcmRatesFor(int dsdRateHz)
{
    std::vector<int> rates;
    for (int base : {44100, 48000}) {
        for (int rateHz = base * 8; rateHz >= base; rateHz /= 2) {
            if (rateHz <= highestPcmHz && supports(dsdRateHz, rateHz))
                rates.push_back(rateHz);
        }
        if (!rates.empty())
            break;
    }
    return rates;
}

} // namespace kelp_core
