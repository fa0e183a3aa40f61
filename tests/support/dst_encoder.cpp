#include "tests/support/dst_encoder.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdlib>

namespace kelp_test {
namespace {

constexpr int probabilityLength = 32;

class BitWriter
{
public:
    void put(unsigned value, int count)
    {
        for (int i = count - 1; i >= 0; --i)
            bits_.push_back(value >> i & 1U);
    }
    /// Adds one to the number that the bits so far are: a carry of the arithmetic code.
    void carry()
    {
        size_t at = bits_.size();
        while (at > 0 && bits_[at - 1] == 1)
            bits_[--at] = 0;
        if (at > 0)
            bits_[at - 1] = 1;
    }
    std::vector<uint8_t> bytes() const
    {
        std::vector<uint8_t> out((bits_.size() + 7) / 8, 0);
        for (size_t i = 0; i < bits_.size(); ++i)
            out[i / 8] = static_cast<uint8_t>(out[i / 8] | bits_[i] << (7 - i % 8));
        return out;
    }

private:
    std::vector<uint8_t> bits_;
};

/// The counterpart of the decoder's 12-bit arithmetic code.
class ArithmeticEncoder
{
public:
    explicit ArithmeticEncoder(BitWriter &out)
        : out_(out)
    {
    }

    void put(unsigned bit, unsigned chance)
    {
        const unsigned part = ((range_ >> 8) | (range_ >> 7 & 1)) * chance;
        const unsigned rest = range_ - part;
        if (bit) {
            range_ = rest;
        } else {
            low_ += rest;
            range_ = part;
        }
        if (low_ >= 4096) {
            low_ -= 4096;
            out_.carry();
        }
        while (range_ < 2048) {
            out_.put(low_ >> 11 & 1U, 1);
            low_ = low_ << 1 & 0xFFF;
            range_ <<= 1;
        }
    }
    void finish() { out_.put(low_, 12); }

private:
    BitWriter &out_;
    unsigned range_ = 4095;
    unsigned low_ = 0;
};

/// One channel's bits as ±1.
std::vector<int> signsOf(const std::vector<uint8_t> &bits, size_t channels, size_t channel)
{
    std::vector<int> signs;
    for (size_t at = channel; at < bits.size(); at += channels) {
        for (int bit = 7; bit >= 0; --bit)
            signs.push_back(bits[at] >> bit & 1 ? 1 : -1);
    }
    return signs;
}

int signAt(const std::vector<int> &signs, size_t time, size_t back)
{
    // Before the frame there is the pattern that the decoder starts with: the last bit 0, the one before 1, …
    if (back <= time)
        return signs[time - back];
    return (back - time) % 2 == 1 ? -1 : 1;
}

/// Levinson and Durbin's recursion over the autocorrelation of a stretch of bits.
std::vector<int> makeFilter(const std::vector<int> &signs, size_t begin, size_t end, int length)
{
    const auto order = static_cast<size_t>(length);
    std::vector<double> correlation(order + 1);
    for (size_t lag = 0; lag <= order; ++lag) {
        for (size_t i = begin + lag; i < end; ++i)
            correlation[lag] += signs[i] * signs[i - lag];
    }
    correlation[0] *= 1.0001;
    std::vector<double> weights(order, 0.0);
    double error = correlation[0] > 0 ? correlation[0] : 1;
    for (size_t i = 0; i < order; ++i) {
        double sum = correlation[i + 1];
        for (size_t j = 0; j < i; ++j)
            sum -= weights[j] * correlation[i - j];
        const double reflection = sum / error;
        std::vector<double> next = weights;
        next[i] = reflection;
        for (size_t j = 0; j < i; ++j)
            next[j] = weights[j] - reflection * weights[i - 1 - j];
        weights = next;
        error *= 1 - reflection * reflection;
    }
    std::vector<int> filter;
    for (const double weight : weights)
        filter.push_back(std::clamp(static_cast<int>(std::lround(weight * 128)), -256, 255));
    return filter;
}

int predict(const std::vector<int> &filter, const std::vector<int> &signs, size_t time)
{
    int total = 0;
    for (size_t i = 0; i < filter.size(); ++i)
        total += filter[i] * signAt(signs, time, i + 1);
    return total;
}

size_t tableIndex(int prediction)
{
    return static_cast<size_t>(std::min(std::abs(prediction) >> 3, probabilityLength - 1));
}

void putRice(BitWriter &out, int value, int lowBits)
{
    const auto size = static_cast<unsigned>(std::abs(value));
    for (unsigned run = size >> lowBits; run > 0; --run)
        out.put(0, 1);
    out.put(1, 1);
    out.put(size & ((1U << lowBits) - 1), lowBits);
    if (value != 0)
        out.put(value < 0 ? 1 : 0, 1);
}

void putNumbers(BitWriter &out, const std::vector<int> &numbers, int width, int offset, bool coded)
{
    static constexpr std::array<std::array<int, 3>, 2> predictors{{{-8, 0, 0}, {-16, 8, 0}}};
    const auto plain = [&](int value) {
        out.put(static_cast<unsigned>(value - offset) & ((1U << width) - 1), width);
    };
    out.put(coded ? 1 : 0, 1);
    if (!coded) {
        for (const int value : numbers)
            plain(value);
        return;
    }
    // Method 1: two plain numbers, then differences from a straight line through the last two.
    constexpr int method = 1, lowBits = 4;
    out.put(method, 2);
    plain(numbers[0]);
    plain(numbers[1]);
    out.put(lowBits, 3);
    for (size_t i = 2; i < numbers.size(); ++i) {
        const int sum = predictors[method][0] * numbers[i - 1] + predictors[method][1] * numbers[i - 2];
        const int foretold = sum >= 0 ? -((sum + 4) / 8) : (-sum + 3) / 8;
        putRice(out, numbers[i] - foretold, lowBits);
    }
}

/// Which filter and table is in force where.
struct Plan
{
    std::vector<size_t> ends; ///< of the segments, in bits
    size_t tableOf(size_t channel, size_t segment, bool perChannel) const
    {
        return (perChannel ? channel * ends.size() : 0) + segment;
    }
};

int bitsFor(size_t value)
{
    return std::bit_width(value);
}

void putSegments(BitWriter &out, const std::vector<int> &segmentBytes, size_t frameBytes, int minBits)
{
    out.put(1, 1); // the same for all channels
    size_t room = frameBytes - static_cast<size_t>(minBits) / 8;
    bool stated = false;
    for (const int length : segmentBytes) {
        out.put(0, 1);
        if (!stated)
            out.put(1, bitsFor(frameBytes - static_cast<size_t>(minBits) / 8)); // one byte a unit
        stated = true;
        out.put(static_cast<unsigned>(length), bitsFor(room));
        room -= static_cast<size_t>(length);
    }
    out.put(1, 1);
}

void putMap(BitWriter &out, const Plan &plan, size_t channels, bool perChannel)
{
    out.put(perChannel ? 0 : 1, 1);
    size_t tables = 1;
    for (size_t channel = 0; channel < (perChannel ? channels : 1); ++channel) {
        for (size_t segment = channel == 0 ? 1 : 0; segment < plan.ends.size(); ++segment) {
            const size_t number = plan.tableOf(channel, segment, perChannel);
            out.put(static_cast<unsigned>(number), bitsFor(tables));
            tables = std::max(tables, number + 1);
        }
    }
}

/// The chance of a wrong foretelling for every size of prediction, counted over a stretch.
struct Histogram
{
    std::array<int, probabilityLength> wrong{};
    std::array<int, probabilityLength> all{};

    std::vector<int> table() const
    {
        std::vector<int> chances;
        for (size_t i = 0; i < probabilityLength; ++i)
            chances.push_back(all[i] ? std::clamp(256 * wrong[i] / all[i], 1, 128) : 64);
        return chances;
    }
};

/// The chance of the bit that settles the decoder: the first coefficient's low seven bits, turned round.
unsigned settlingChance(int coefficient)
{
    unsigned turned = 0;
    for (int bit = 0; bit < 7; ++bit)
        turned |= (static_cast<unsigned>(coefficient) >> bit & 1U) << (6 - bit);
    return turned + 1;
}

} // namespace

std::vector<uint8_t> encodeDstFrame(const std::vector<uint8_t> &bits, int channels,
                                    const DstEncoderOptions &options)
{
    const auto channelCount = static_cast<size_t>(channels);
    const size_t frameBytes = bits.size() / channelCount;
    Plan plan;
    size_t end = 0;
    for (const int length : options.segmentBytes)
        plan.ends.push_back(end += static_cast<size_t>(length) * 8);
    plan.ends.push_back(frameBytes * 8);
    const size_t tables = plan.ends.size() * (options.tablesPerChannel ? channelCount : 1);
    std::vector<std::vector<int>> signs, filters(tables);
    std::vector<Histogram> histograms(tables);
    for (size_t channel = 0; channel < channelCount; ++channel)
        signs.push_back(signsOf(bits, channelCount, channel));
    for (size_t channel = channelCount; channel-- > 0;) {
        for (size_t segment = 0; segment < plan.ends.size(); ++segment) {
            const size_t begin = segment ? plan.ends[segment - 1] : 0;
            filters[plan.tableOf(channel, segment, options.tablesPerChannel)] =
                makeFilter(signs[channel], begin, plan.ends[segment], options.filterLength);
        }
    }
    const auto walk = [&](const auto &visit) {
        std::vector<size_t> segment(channelCount, 0);
        for (size_t time = 0; time < frameBytes * 8; ++time) {
            for (size_t channel = 0; channel < channelCount; ++channel) {
                if (time >= plan.ends[segment[channel]])
                    ++segment[channel];
                const size_t table = plan.tableOf(channel, segment[channel], options.tablesPerChannel);
                const int prediction = predict(filters[table], signs[channel], time);
                const unsigned value = signs[channel][time] > 0 ? 1 : 0;
                visit(time, table, prediction, value ^ (prediction < 0 ? 1U : 0U));
            }
        }
    };
    walk([&](size_t, size_t table, int prediction, unsigned residual) {
        // A residual of 0 is the rarer one: the foretold bit was wrong.
        histograms[table].all[tableIndex(prediction)] += 1;
        histograms[table].wrong[tableIndex(prediction)] += residual == 0;
    });

    BitWriter out;
    out.put(1, 1);
    out.put(options.separateMaps ? 0 : 1, 1);
    putSegments(out, options.segmentBytes, frameBytes, 1024);
    if (options.separateMaps)
        putSegments(out, options.segmentBytes, frameBytes, 32);
    out.put(options.separateMaps ? 0 : 1, 1);
    putMap(out, plan, channelCount, options.tablesPerChannel);
    if (options.separateMaps)
        putMap(out, plan, channelCount, options.tablesPerChannel);
    for (size_t channel = 0; channel < channelCount; ++channel)
        out.put(options.halfProbability ? 1 : 0, 1);
    for (const auto &filter : filters) {
        out.put(static_cast<unsigned>(filter.size() - 1), 7);
        putNumbers(out, filter, 9, 0, options.codedTables);
    }
    std::vector<std::vector<int>> chances;
    for (const Histogram &histogram : histograms) {
        chances.push_back(histogram.table());
        out.put(probabilityLength - 1, 6);
        putNumbers(out, chances.back(), 7, 1, options.codedTables);
    }
    out.put(0, 1);
    ArithmeticEncoder code(out);
    code.put(0, settlingChance(filters[0][0]));
    walk([&](size_t time, size_t table, int prediction, unsigned residual) {
        const bool toss = options.halfProbability && time < static_cast<size_t>(options.filterLength);
        code.put(residual, toss ? 128 : static_cast<unsigned>(chances[table][tableIndex(prediction)]));
    });
    code.finish();
    return out.bytes();
}

} // namespace kelp_test
