#include "tests/support/pcm_signal.h"

#include "tests/support/byte_writer.h"

#include <array>
#include <bit>
#include <cmath>
#include <numbers>
#include <utility>

namespace kelp_test {
namespace {

/// A small generator of our own, because the library's distributions differ between libraries.
class Noise
{
public:
    explicit Noise(uint32_t seed)
        : state_(seed * 0x9E3779B97F4A7C15ULL + 0x1234567)
    {
    }
    uint32_t next()
    {
        state_ ^= state_ << 13;
        state_ ^= state_ >> 7;
        state_ ^= state_ << 17;
        return static_cast<uint32_t>(state_ >> 32);
    }
    double unit() { return next() / 2147483648.0 - 1.0; }

private:
    uint64_t state_;
};

double rampValue(size_t frame, int channel)
{
    // An odd step walks through all 65,536 values before it repeats; channels differ by an offset.
    const auto value = static_cast<uint16_t>(frame * 40503U + static_cast<size_t>(channel) * 12345U);
    return static_cast<int16_t>(value) / 32768.0;
}

double shapeValue(const SignalRecipe &recipe, size_t frame, int channel, Noise &noise)
{
    const double time = static_cast<double>(frame) / recipe.rateHz;
    const double tau = 2 * std::numbers::pi;
    switch (recipe.shape) {
    case SignalShape::sine:
        return 0.5 * std::sin(tau * (997.0 + 110.0 * channel) * time);
    case SignalShape::sweep: {
        const double length = static_cast<double>(recipe.frames) / recipe.rateHz;
        const double ratio = std::log(0.45 * recipe.rateHz / 20.0);
        return 0.5 * std::sin(tau * 20.0 * length / ratio * (std::exp(time / length * ratio) - 1));
    }
    case SignalShape::noise:
        return 0.9 * noise.unit();
    case SignalShape::ramp:
        return rampValue(frame, channel);
    case SignalShape::silence:
        break;
    }
    return 0;
}

/// To the nearest value that the depth has.
double quantised(double value, const SignalRecipe &recipe)
{
    if (recipe.isFloat)
        return recipe.depthBits == 64 ? value : static_cast<double>(static_cast<float>(value));
    const double scale = std::ldexp(1.0, recipe.depthBits - 1);
    const double rounded = std::floor(value * scale + 0.5);
    return std::min(std::max(rounded, -scale), scale - 1) / scale;
}

} // namespace

PcmSignal makeSignal(const SignalRecipe &recipe)
{
    PcmSignal signal{recipe.rateHz, recipe.channels, recipe.depthBits, recipe.isFloat, {}};
    signal.samples.reserve(recipe.frames * static_cast<size_t>(recipe.channels));
    Noise noise(recipe.seed);
    for (size_t frame = 0; frame < recipe.frames; ++frame) {
        for (int channel = 0; channel < recipe.channels; ++channel)
            signal.samples.push_back(quantised(shapeValue(recipe, frame, channel, noise), recipe));
    }
    return signal;
}

bool shapeOfWord(std::string_view word, SignalShape &shape)
{
    constexpr std::array<std::pair<std::string_view, SignalShape>, 5> words{{
        {"sine", SignalShape::sine},
        {"sweep", SignalShape::sweep},
        {"noise", SignalShape::noise},
        {"ramp", SignalShape::ramp},
        {"silence", SignalShape::silence},
    }};
    for (const auto &[name, value] : words) {
        if (name == word) {
            shape = value;
            return true;
        }
    }
    return false;
}

int64_t toInteger(double sample, int depthBits)
{
    return std::llround(std::ldexp(sample, depthBits - 1));
}

std::vector<uint8_t> rawBytes(const PcmSignal &signal)
{
    ByteWriter out;
    const int bytes = (signal.depthBits + 7) / 8;
    for (const double sample : signal.samples) {
        if (signal.isFloat && signal.depthBits == 64)
            out.little(std::bit_cast<uint64_t>(sample), 8);
        else if (signal.isFloat)
            out.little(std::bit_cast<uint32_t>(static_cast<float>(sample)), 4);
        else if (bytes == 1)
            out.little(static_cast<uint64_t>(toInteger(sample, 8) + 128), 1);
        else
            // Valid bits stand on top of their container.
            out.little(static_cast<uint64_t>(toInteger(sample, 8 * bytes)), bytes);
    }
    return out.bytes;
}

PcmSignal cut(const PcmSignal &signal, size_t first, size_t count)
{
    PcmSignal part = signal;
    const auto channels = static_cast<std::ptrdiff_t>(signal.channels);
    const auto begin = signal.samples.begin() + static_cast<std::ptrdiff_t>(first) * channels;
    part.samples.assign(begin, begin + static_cast<std::ptrdiff_t>(count) * channels);
    return part;
}

} // namespace kelp_test
