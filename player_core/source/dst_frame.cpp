#include "player_core/source/dst_frame.h"

#include <bit>

namespace kelp_core {
namespace {

constexpr int maxFilterSegments = 4;
constexpr int maxProbabilitySegments = 8;
constexpr int minFilterSegmentBits = 1024;
constexpr int minProbabilitySegmentBits = 32;

int bitsFor(int value)
{
    return std::bit_width(static_cast<unsigned>(value));
}

using Segments = std::array<DstSegments, dstMaxChannels>;

/// Reads the segment lengths of one table kind.
class SegmentReader
{
public:
    SegmentReader(DstBitReader &in, int bitsPerChannel, int maxSegments, int minBits)
        : in_(in)
        , frameBytes_(bitsPerChannel / 8)
        , maxSegments_(maxSegments)
        , minBits_(minBits)
    {
    }

    bool read(Segments &segments, int channels)
    {
        const bool sameForAll = in_.bit();
        if (!readChannel(segments[0]))
            return false;
        for (int channel = 1; channel < channels; ++channel) {
            auto &own = segments[static_cast<size_t>(channel)];
            if (sameForAll)
                own = segments[0];
            else if (!readChannel(own))
                return false;
        }
        return true;
    }

private:
    bool readChannel(DstSegments &own)
    {
        int definedBits = 0;
        int roomBytes = frameBytes_ - minBits_ / 8;
        own.count = 1;
        while (!in_.bit()) {
            if (own.count >= maxSegments_ || in_.overrun())
                return false;
            if (resolution_ == 0) {
                resolution_ = static_cast<int>(in_.bits(bitsFor(frameBytes_ - minBits_ / 8)));
                if (resolution_ == 0 || resolution_ > frameBytes_ - minBits_ / 8)
                    return false;
            }
            const int units = static_cast<int>(in_.bits(bitsFor(roomBytes / resolution_)));
            const int64_t lengthBits = int64_t{8} * resolution_ * units;
            if (lengthBits < minBits_ || lengthBits > int64_t{8} * frameBytes_ - definedBits - minBits_)
                return false;
            definedBits += static_cast<int>(lengthBits);
            roomBytes -= resolution_ * units;
            own.endBit[static_cast<size_t>(own.count - 1)] = definedBits;
            ++own.count;
        }
        own.endBit[static_cast<size_t>(own.count - 1)] = 8 * frameBytes_;
        return true;
    }

    DstBitReader &in_;
    int frameBytes_;
    int maxSegments_;
    int minBits_;
    int resolution_ = 0; ///< bytes a unit of length; stated once, by the first channel that needs it
};

bool readSegmentation(DstBitReader &in, int channels, int bitsPerChannel, DstFrameHead &head)
{
    const bool shared = in.bit();
    if (!SegmentReader(in, bitsPerChannel, maxFilterSegments, minFilterSegmentBits)
             .read(head.filterSegments, channels))
        return false;
    if (shared) {
        head.probabilitySegments = head.filterSegments;
        return true;
    }
    return SegmentReader(in, bitsPerChannel, maxProbabilitySegments, minProbabilitySegmentBits)
        .read(head.probabilitySegments, channels);
}

/// Which table holds in which segment. A new table is numbered when it is first met.
bool readMap(DstBitReader &in, Segments &segments, int channels, int &tables)
{
    const bool sameForAll = in.bit();
    tables = 1;
    segments[0].table[0] = 0;
    for (int channel = 0; channel < channels; ++channel) {
        auto &own = segments[static_cast<size_t>(channel)];
        if (channel > 0 && sameForAll) {
            if (own.count != segments[0].count)
                return false;
            own.table = segments[0].table;
            continue;
        }
        for (int segment = channel == 0 ? 1 : 0; segment < own.count; ++segment) {
            const int number = static_cast<int>(in.bits(bitsFor(tables)));
            if (number > tables || number >= 2 * channels)
                return false;
            if (number == tables)
                ++tables;
            own.table[static_cast<size_t>(segment)] = number;
        }
    }
    return true;
}

bool readMapping(DstBitReader &in, int channels, DstFrameHead &head)
{
    const bool shared = in.bit();
    if (!readMap(in, head.filterSegments, channels, head.filters))
        return false;
    if (!shared)
        return readMap(in, head.probabilitySegments, channels, head.probabilityTables);
    head.probabilityTables = head.filters;
    for (size_t channel = 0; channel < static_cast<size_t>(channels); ++channel) {
        if (head.probabilitySegments[channel].count != head.filterSegments[channel].count)
            return false;
        head.probabilitySegments[channel].table = head.filterSegments[channel].table;
    }
    return true;
}

/// A signed number of Rice's code. False when it is longer than any that makes sense.
bool readRice(DstBitReader &in, int lowBits, int &value)
{
    constexpr int maxRun = 1024;
    int run = 0;
    while (!in.bit()) {
        if (++run > maxRun)
            return false;
    }
    value = (run << lowBits) | static_cast<int>(in.bits(lowBits));
    if (value != 0 && in.bit())
        value = -value;
    return true;
}

/// Coefficients of the predictors of coefficients, by method; in eighths.
using Predictors = std::array<std::array<int, 3>, 3>;
constexpr Predictors filterPredictors{{{-8, 0, 0}, {-16, 8, 0}, {-9, -5, 6}}};
constexpr Predictors probabilityPredictors{{{-8, 0, 0}, {-16, 8, 0}, {-24, 24, -8}}};

/// Reads `length` numbers within [lowest, highest], plain or as differences from a prediction.
/// readPlain reads one plain number; store puts one away.
template<typename ReadPlain>
bool readNumbers(DstBitReader &in, int length, const Predictors &predictors, int lowest, int highest,
                 const ReadPlain &readPlain, std::array<int, dstMaxFilterLength> &numbers)
{
    const bool coded = in.bit();
    const int method = coded ? static_cast<int>(in.bits(2)) : 0;
    if (method == 3)
        return false;
    const int plain = coded ? method + 1 : length;
    if (coded && plain >= length)
        return false;
    for (int i = 0; i < plain; ++i)
        numbers[static_cast<size_t>(i)] = readPlain();
    if (!coded)
        return true;
    const int lowBits = static_cast<int>(in.bits(3));
    for (int i = plain; i < length; ++i) {
        int sum = 0;
        for (int k = 0; k <= method; ++k)
            sum += predictors[static_cast<size_t>(method)][static_cast<size_t>(k)] *
                   numbers[static_cast<size_t>(i - k - 1)];
        int value = 0;
        if (!readRice(in, lowBits, value))
            return false;
        value += sum >= 0 ? -((sum + 4) / 8) : (-sum + 3) / 8;
        if (value < lowest || value > highest)
            return false;
        numbers[static_cast<size_t>(i)] = value;
    }
    return true;
}

bool readFilters(DstBitReader &in, DstFrameHead &head)
{
    std::array<int, dstMaxFilterLength> numbers{};
    for (size_t table = 0; table < static_cast<size_t>(head.filters); ++table) {
        const int length = static_cast<int>(in.bits(7)) + 1;
        head.filterLength[table] = length;
        if (in.overrun() ||
            !readNumbers(
                in, length, filterPredictors, -256, 255, [&] { return in.signedBits(9); }, numbers))
            return false;
        head.filter[table].fill(0);
        for (size_t i = 0; i < static_cast<size_t>(length); ++i)
            head.filter[table][i] = static_cast<int16_t>(numbers[i]);
    }
    return true;
}

bool readProbabilities(DstBitReader &in, DstFrameHead &head)
{
    std::array<int, dstMaxFilterLength> numbers{};
    for (size_t table = 0; table < static_cast<size_t>(head.probabilityTables); ++table) {
        const int length = static_cast<int>(in.bits(6)) + 1;
        head.probabilityLength[table] = length;
        // A table of one entry is not written out: its entry is one half.
        numbers[0] = 128;
        if (in.overrun() || (length > 1 && !readNumbers(
                                               in, length, probabilityPredictors, 1, 128,
                                               [&] { return static_cast<int>(in.bits(7)) + 1; }, numbers)))
            return false;
        for (size_t i = 0; i < static_cast<size_t>(length); ++i)
            head.probability[table][i] = static_cast<uint8_t>(numbers[i]);
    }
    return true;
}

} // namespace

std::string readDstFrameHead(DstBitReader &in, int channels, int bitsPerChannel, DstFrameHead &head)
{
    if (!readSegmentation(in, channels, bitsPerChannel, head))
        return "a DST frame's segments make no sense";
    if (!readMapping(in, channels, head))
        return "a DST frame's tables are mapped wrongly";
    for (size_t channel = 0; channel < static_cast<size_t>(channels); ++channel)
        head.halfProbability[channel] = in.bit();
    if (!readFilters(in, head))
        return "a DST frame's filters make no sense";
    if (!readProbabilities(in, head) || in.overrun())
        return "a DST frame's probabilities make no sense";
    return {};
}

} // namespace kelp_core
