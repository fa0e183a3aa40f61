#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace kelp_test {

enum class SignalShape
{
    sine,  ///< 997 Hz and up, a little apart from channel to channel, at −6 dBFS
    sweep, ///< from 20 Hz to 0.45 of the rate over the whole length
    noise, ///< white, from the seed
    ramp,  ///< every frame within 65,536 differs from every other, so that a lost or doubled one shows
    silence,
};

/// Known samples. Values are what a bit-exact reader has to give: s / 2^(depth − 1), or the float itself.
struct PcmSignal
{
    int rateHz = 44100;
    int channels = 2;
    int depthBits = 16; ///< 8 … 32, or 32 or 64 with isFloat
    bool isFloat = false;
    std::vector<double> samples; ///< interleaved

    size_t frames() const { return samples.size() / static_cast<size_t>(channels); }
};

/// What a signal is made from.
struct SignalRecipe
{
    SignalShape shape = SignalShape::ramp;
    int rateHz = 44100;
    int channels = 2;
    int depthBits = 16;
    bool isFloat = false;
    size_t frames = 44100;
    uint32_t seed = 1;
};

/// The same recipe gives the same samples on every machine.
PcmSignal makeSignal(const SignalRecipe &recipe);

/// The shape of a word as the maker's command line takes it; false when it is none.
bool shapeOfWord(std::string_view word, SignalShape &shape);

/// A sample's integer at a depth.
int64_t toInteger(double sample, int depthBits);

/// Interleaved raw bytes, lowest first: integers in the fewest whole bytes that hold the depth, 8-bit
/// samples unsigned as in a WAV file, floats as they are.
std::vector<uint8_t> rawBytes(const PcmSignal &signal);

/// Frames [first, first + count) of a signal.
PcmSignal cut(const PcmSignal &signal, size_t first, size_t count);

} // namespace kelp_test
