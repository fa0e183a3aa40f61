#include "player_core/source/dst_decoder.h"

#include "player_core/source/dsd_bits.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <cstring>

namespace kelp_core {

/// A filter's sums, worked out for every value of each eight bits of history: 16 additions replace 128.
struct DstDecoder::Tables
{
    std::array<std::array<std::array<int16_t, 256>, 16>, dstMaxTables> sum;
};

namespace {

/// The arithmetic decoder: 12 bits of interval and code.
class ArithmeticDecoder
{
public:
    explicit ArithmeticDecoder(DstBitReader &in)
        : in_(in)
        , code_(in.bits(12))
    {
    }

    /// The next bit, which is 0 with a probability of chance / 256.
    unsigned next(unsigned chance)
    {
        const unsigned part = ((range_ >> 8) | (range_ >> 7 & 1)) * chance;
        const unsigned rest = range_ - part;
        const unsigned bit = code_ < rest ? 1 : 0;
        // Without a branch: the bit is noise, and a branch on it would be foretold wrongly half the time.
        const unsigned zero = bit - 1;
        range_ = (rest & ~zero) | (part & zero);
        code_ -= rest & zero;
        if (range_ < 2048) {
            const int shift = 12 - static_cast<int>(std::bit_width(range_));
            code_ = code_ << shift | in_.bits(shift);
            range_ <<= shift;
        }
        return bit;
    }

private:
    DstBitReader &in_;
    unsigned range_ = 4095;
    unsigned code_;
};

/// What decoding of one channel stands on while it walks through a frame.
struct ChannelState
{
    uint64_t recent = 0xAAAAAAAAAAAAAAAA; ///< the last 64 bits, the latest in bit 0
    uint64_t older = 0xAAAAAAAAAAAAAAAA;  ///< the 64 before
    int filterSegment = 0;
    int probabilitySegment = 0;
    const std::array<std::array<int16_t, 256>, 16> *sums = nullptr;
    const uint8_t *probabilities = nullptr;
    int lastProbability = 0;
    int filterEnd = 0;      ///< where the segment of the filter ends
    int probabilityEnd = 0; ///< where the segment of the probabilities ends
    int halfBits = 0;       ///< up to here every bit is a coin toss

    int predict() const
    {
        int total = 0;
        for (size_t i = 0; i < 8; ++i)
            total += (*sums)[i][recent >> (8 * i) & 0xFF] + (*sums)[i + 8][older >> (8 * i) & 0xFF];
        return total;
    }
    void push(unsigned bit)
    {
        older = older << 1 | recent >> 63;
        recent = recent << 1 | bit;
    }
};

} // namespace

DstDecoder::DstDecoder(int channels, int frameBytes)
    : channels_(channels)
    , frameBytes_(frameBytes)
    , head_(std::make_unique<DstFrameHead>())
    , tables_(std::make_unique<Tables>())
{
}

DstDecoder::~DstDecoder() = default;

bool DstDecoder::supports(int channels, int frameBytes)
{
    // 1/75 s of DSD64 to DSD256 in bytes; the standard knows no others.
    return channels >= 1 && channels <= dstMaxChannels &&
           (frameBytes == 4704 || frameBytes == 9408 || frameBytes == 18816);
}

std::string DstDecoder::decode(std::span<const uint8_t> frame, std::vector<uint8_t> &out)
{
    const auto outBytes = static_cast<size_t>(channels_) * static_cast<size_t>(frameBytes_);
    out.assign(outBytes, 0);
    if (frame.empty())
        return "a DST frame is empty";
    if (frame[0] & 0x80)
        return decodeCoded(frame, out);
    // A frame that would not shrink is stored as it is, behind one byte.
    if ((frame[0] & 0x3F) != 0 || frame.size() < outBytes + 1)
        return "a stored DST frame is cut off";
    std::memcpy(out.data(), frame.data() + 1, outBytes);
    return {};
}

void DstDecoder::buildTables()
{
    for (size_t table = 0; table < static_cast<size_t>(head_->filters); ++table) {
        const auto &filter = head_->filter[table];
        for (size_t group = 0; group < 16; ++group) {
            auto &sums = tables_->sum[table][group];
            const int16_t *weights = filter.data() + group * 8;
            int all = 0;
            for (size_t i = 0; i < 8; ++i)
                all += weights[i];
            sums[0] = static_cast<int16_t>(-all);
            // Setting the highest bit of a value turns one weight from minus to plus.
            for (unsigned value = 1; value < 256; ++value) {
                const auto highest = static_cast<unsigned>(std::bit_width(value) - 1);
                sums[value] = static_cast<int16_t>(sums[value ^ (1U << highest)] + 2 * weights[highest]);
            }
        }
    }
}

std::string DstDecoder::decodeCoded(std::span<const uint8_t> frame, std::vector<uint8_t> &out)
{
    DstBitReader in(frame);
    in.bit();
    const int bitsPerChannel = frameBytes_ * 8;
    if (std::string error = readDstFrameHead(in, channels_, bitsPerChannel, *head_); !error.empty())
        return error;
    if (in.bit())
        return "a DST frame's code begins wrongly";
    buildTables();
    ArithmeticDecoder code(in);
    // The first bit only settles the decoder; its chance comes from the first coefficient.
    code.next((reversedBits[static_cast<size_t>(head_->filter[0][0] & 127)] >> 1) + 1U);

    std::array<ChannelState, dstMaxChannels> states;
    for (size_t channel = 0; channel < static_cast<size_t>(channels_); ++channel) {
        const auto first = static_cast<size_t>(head_->filterSegments[channel].table[0]);
        states[channel].halfBits = head_->halfProbability[channel] ? head_->filterLength[first] : 0;
        states[channel].filterSegment = states[channel].probabilitySegment = -1;
    }
    for (int bit = 0; bit < bitsPerChannel; ++bit) {
        uint8_t *bytes = out.data() + static_cast<size_t>(bit / 8) * static_cast<size_t>(channels_);
        for (size_t channel = 0; channel < static_cast<size_t>(channels_); ++channel) {
            ChannelState &state = states[channel];
            if (bit >= state.filterEnd) {
                const DstSegments &segments = head_->filterSegments[channel];
                const auto segment = static_cast<size_t>(++state.filterSegment);
                state.sums = &tables_->sum[static_cast<size_t>(segments.table[segment])];
                state.filterEnd = segments.endBit[segment];
            }
            if (bit >= state.probabilityEnd) {
                const DstSegments &segments = head_->probabilitySegments[channel];
                const auto segment = static_cast<size_t>(++state.probabilitySegment);
                const auto table = static_cast<size_t>(segments.table[segment]);
                state.probabilities = head_->probability[table].data();
                state.lastProbability = head_->probabilityLength[table] - 1;
                state.probabilityEnd = segments.endBit[segment];
            }
            const int prediction = state.predict();
            const int index = std::min(std::abs(prediction) >> 3, state.lastProbability);
            const unsigned chance = bit < state.halfBits ? 128 : state.probabilities[index];
            const unsigned value = code.next(chance) ^ (prediction < 0 ? 1U : 0U);
            state.push(value);
            bytes[channel] = static_cast<uint8_t>(bytes[channel] << 1 | value);
        }
    }
    // The coder may leave out zeros at the end, but never more than the decoder looks ahead.
    constexpr size_t lookAheadBits = 64;
    if (in.bitsTaken() > frame.size() * 8 + lookAheadBits)
        return "a DST frame is cut off";
    return {};
}

} // namespace kelp_core
