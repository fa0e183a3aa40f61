#include "tests/support/dsd_signal.h"

#include <cmath>
#include <numbers>

namespace kelp_test {
namespace {

constexpr uint8_t silencePattern = 0x69;

/// One channel's modulator: two integrators and a one-bit quantiser.
struct Modulator
{
    double first = 0;
    double second = 0;
    double output = 1;

    unsigned next(double input)
    {
        first += input - output;
        second += first - 2 * output;
        output = second >= 0 ? 1 : -1;
        return output > 0 ? 1 : 0;
    }
};

double valueAt(SignalShape shape, double time, double length, int channel)
{
    const double tau = 2 * std::numbers::pi;
    if (shape == SignalShape::sweep) {
        const double ratio = std::log(20000.0 / 20.0);
        return 0.4 * std::sin(tau * 20.0 * length / ratio * (std::exp(time / length * ratio) - 1));
    }
    return 0.4 * std::sin(tau * (997.0 + 110.0 * channel) * time);
}

} // namespace

DsdSignal makeDsd(SignalShape shape, size_t frames, int rateHz, int channels, uint32_t seed)
{
    DsdSignal signal{rateHz, channels, {}};
    signal.bytes.resize(frames * static_cast<size_t>(channels), silencePattern);
    if (shape == SignalShape::silence)
        return signal;
    if (shape == SignalShape::noise || shape == SignalShape::ramp) {
        const PcmSignal noise = makeSignal({.shape = SignalShape::noise,
                                            .channels = channels,
                                            .depthBits = 24,
                                            .frames = frames,
                                            .seed = seed});
        for (size_t i = 0; i < signal.bytes.size(); ++i)
            signal.bytes[i] = static_cast<uint8_t>(toInteger(noise.samples[i], 24) >> 3);
        return signal;
    }
    std::vector<Modulator> modulators(static_cast<size_t>(channels));
    const double length = static_cast<double>(frames) * 8 / rateHz;
    for (size_t frame = 0; frame < frames; ++frame) {
        for (int channel = 0; channel < channels; ++channel) {
            unsigned byte = 0;
            for (size_t bit = 0; bit < 8; ++bit) {
                const double time = static_cast<double>(frame * 8 + bit) / rateHz;
                byte = byte << 1 |
                       modulators[static_cast<size_t>(channel)].next(valueAt(shape, time, length, channel));
            }
            signal.bytes[frame * static_cast<size_t>(channels) + static_cast<size_t>(channel)] =
                static_cast<uint8_t>(byte);
        }
    }
    return signal;
}

} // namespace kelp_test
