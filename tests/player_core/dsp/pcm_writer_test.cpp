#include "player_core/dsp/wire_writer.h"

#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

using namespace kelp_core;

namespace {

WireFormat wire(SampleEncoding encoding, int validBits, int channels = 1)
{
    return {Carrier::pcm, encoding, 44100, channels, validBits};
}

std::vector<uint8_t> written(const WireFormat &format, const std::vector<double> &samples,
                             bool dither = false)
{
    PcmWriter writer(format);
    std::vector<uint8_t> bytes(samples.size() * static_cast<size_t>(bytesPerSample(format.encoding)));
    writer.write(samples.data(), samples.size() / static_cast<size_t>(format.channels), bytes.data(), dither);
    return bytes;
}

/// Reads little-endian and sign-extends from the top bit of the container.
int64_t readSigned(const uint8_t *bytes, int count)
{
    uint64_t value = 0;
    for (int i = 0; i < count; ++i)
        value |= static_cast<uint64_t>(bytes[i]) << (8 * i);
    const uint64_t top = 1ull << (8 * count - 1);
    return static_cast<int64_t>((value ^ top)) - static_cast<int64_t>(top);
}

} // namespace

TEST(PcmWriter, Every16BitSampleComesOutAsItWas)
{
    std::vector<double> samples;
    for (int value = -32768; value <= 32767; ++value)
        samples.push_back(value / 32768.0);
    struct Row
    {
        SampleEncoding encoding;
        int validBits;
        int bytes;
        int64_t factor;
    };
    for (const Row &row : {Row{SampleEncoding::s16, 16, 2, 1}, Row{SampleEncoding::s24in3, 24, 3, 256},
                           Row{SampleEncoding::s24in4, 24, 4, 256}, Row{SampleEncoding::s32, 32, 4, 65536},
                           Row{SampleEncoding::s32, 24, 4, 65536}, Row{SampleEncoding::s32, 16, 4, 65536}}) {
        const std::vector<uint8_t> bytes = written(wire(row.encoding, row.validBits), samples);
        for (int value = -32768; value <= 32767; ++value) {
            const uint8_t *at = bytes.data() + static_cast<ptrdiff_t>(value + 32768) * row.bytes;
            ASSERT_EQ(readSigned(at, row.bytes), value * row.factor) << value;
        }
    }
}

TEST(PcmWriter, SamplesOf24And32BitsComeOutAsTheyWere)
{
    for (int bits : {20, 24, 32}) {
        const double scale = std::ldexp(1.0, bits - 1);
        std::vector<double> samples;
        std::vector<int64_t> wanted;
        uint64_t state = 1;
        for (int i = 0; i < 100000; ++i) {
            state = state * 6364136223846793005ull + 1442695040888963407ull;
            const int64_t value = static_cast<int64_t>(state) >> (64 - bits);
            wanted.push_back(value);
            samples.push_back(static_cast<double>(value) / scale);
        }
        wanted.push_back(-(1ll << (bits - 1)));
        samples.push_back(-1.0);
        wanted.push_back((1ll << (bits - 1)) - 1);
        samples.push_back(static_cast<double>(wanted.back()) / scale);
        const std::vector<uint8_t> bytes = written(wire(SampleEncoding::s32, bits), samples);
        for (size_t i = 0; i < wanted.size(); ++i)
            ASSERT_EQ(readSigned(bytes.data() + 4 * i, 4), wanted[i] << (32 - bits));
        if (bits != 24)
            continue;
        const std::vector<uint8_t> packed = written(wire(SampleEncoding::s24in3, 24), samples);
        const std::vector<uint8_t> wide = written(wire(SampleEncoding::s24in4, 24), samples);
        for (size_t i = 0; i < wanted.size(); ++i) {
            ASSERT_EQ(readSigned(packed.data() + 3 * i, 3), wanted[i]);
            ASSERT_EQ(readSigned(wide.data() + 4 * i, 4), wanted[i]);
        }
    }
}

TEST(PcmWriter, FloatsComeOutAsTheyWere)
{
    const std::vector<double> samples{0.0, 1.0, -1.0, static_cast<double>(0.1f), -1e-30f, 0.75};
    const std::vector<uint8_t> bytes = written(wire(SampleEncoding::f32, 24), samples, true);
    for (size_t i = 0; i < samples.size(); ++i) {
        float value = 0;
        std::memcpy(&value, bytes.data() + 4 * i, 4);
        EXPECT_EQ(value, static_cast<float>(samples[i]));
    }
}

TEST(PcmWriter, ClipsAndCountsOnlyWhatIsBeyondFullScale)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const std::vector<double> samples{1.0, 1.001, -1.0, -1.001, std::nan(""), infinity, -infinity, 0.0};
    for (SampleEncoding encoding : {SampleEncoding::s16, SampleEncoding::s24in3, SampleEncoding::s24in4,
                                    SampleEncoding::s32, SampleEncoding::f32}) {
        PcmWriter writer(wire(encoding, 0, 2));
        std::array<uint8_t, 32> bytes{};
        writer.write(samples.data(), 4, bytes.data(), false);
        EXPECT_EQ(writer.clipped(), 4u);
        writer.write(samples.data(), 1, bytes.data(), false);
        EXPECT_EQ(writer.clipped(), 5u);
    }
    const std::vector<uint8_t> bytes = written(wire(SampleEncoding::s16, 16), samples, false);
    const std::array<int, 8> wanted{32767, 32767, -32768, -32768, 0, 32767, -32768, 0};
    for (size_t i = 0; i < wanted.size(); ++i)
        EXPECT_EQ(readSigned(bytes.data() + 2 * i, 2), wanted[i]);
}

TEST(PcmWriter, DitherIsTriangularAndFreesTheErrorFromTheSignal)
{
    constexpr size_t count = 400000;
    for (double level : {0.0, 0.25, 0.5}) {
        const std::vector<double> samples(count, level / 32768.0);
        const std::vector<uint8_t> bytes = written(wire(SampleEncoding::s16, 16), samples, true);
        double sum = 0.0;
        double squares = 0.0;
        for (size_t i = 0; i < count; ++i) {
            const double error = static_cast<double>(readSigned(bytes.data() + 2 * i, 2)) - level;
            ASSERT_LE(std::abs(error), 1.5);
            sum += error;
            squares += error * error;
        }
        // Triangular dither makes mean and power of the error the same for every signal: 0 and a quarter.
        EXPECT_NEAR(sum / count, 0.0, 0.005) << level;
        EXPECT_NEAR(squares / count, 0.25, 0.005) << level;
    }
}

TEST(PcmWriter, DitherRepeatsAndDoesNotCountAsClipping)
{
    const std::vector<double> samples(1000, 1.0);
    const WireFormat format = wire(SampleEncoding::s16, 16);
    EXPECT_EQ(written(format, samples, true), written(format, samples, true));
    PcmWriter writer(format);
    std::vector<uint8_t> bytes(2000);
    writer.write(samples.data(), 1000, bytes.data(), true);
    EXPECT_EQ(writer.clipped(), 0u);
}

TEST(PcmWriter, ADsdDeviceNeverGetsPcm)
{
    const std::vector<uint8_t> bytes = written(wire(SampleEncoding::dsdU32be, 1), {1.0, -1.0, 0.5});
    EXPECT_EQ(bytes, std::vector<uint8_t>(12, 0x69));
}
