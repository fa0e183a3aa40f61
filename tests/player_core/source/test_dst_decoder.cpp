// The DST decoder against frames that meet every branch of the syntax, and against damage.

#include "player_core/source/dst_decoder.h"
#include "tests/support/dsd_signal.h"
#include "tests/support/dst_encoder.h"

#include <gtest/gtest.h>

namespace {

using namespace kelp_core;
using namespace kelp_test;

constexpr int frameBytes = 4704;

struct CodingCase
{
    const char *name;
    DstEncoderOptions options;
    int channels = 2;
};

void PrintTo(const CodingCase &coding, std::ostream *out)
{
    *out << coding.name << 'x' << coding.channels;
}

class DstCoding : public testing::TestWithParam<CodingCase>
{
};

TEST_P(DstCoding, GivesBackTheBits)
{
    const int channels = GetParam().channels;
    for (const SignalShape shape : {SignalShape::sine, SignalShape::noise, SignalShape::silence}) {
        const DsdSignal signal = makeDsd(shape, frameBytes, 2822400, channels);
        const std::vector<uint8_t> packed = encodeDstFrame(signal.bytes, channels, GetParam().options);
        DstDecoder decoder(channels, frameBytes);
        std::vector<uint8_t> out;
        EXPECT_EQ(decoder.decode(packed, out), "");
        EXPECT_TRUE(out == signal.bytes) << static_cast<int>(shape);
        if (shape == SignalShape::sine) {
            EXPECT_LT(packed.size(), signal.bytes.size()) << "coding that packs nothing tests nothing";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Codings, DstCoding,
    testing::Values(CodingCase{"usual", {}}, CodingCase{"usual", {}, 1}, CodingCase{"usual", {}, 6},
                    CodingCase{"plainTables", {.codedTables = false}},
                    CodingCase{"sharedTables", {.tablesPerChannel = false}},
                    CodingCase{"noToss", {.halfProbability = false}},
                    CodingCase{"longFilter", {.filterLength = 128}},
                    CodingCase{"oneTap", {.codedTables = false, .filterLength = 1}},
                    CodingCase{"segments", {.segmentBytes = {1000}}},
                    CodingCase{"segmentsShared",
                               {.tablesPerChannel = false, .segmentBytes = {200, 1500, 700}}},
                    CodingCase{"apart", {.segmentBytes = {2000}, .separateMaps = true}},
                    CodingCase{"apartPlain", {.codedTables = false, .separateMaps = true}, 5}));

TEST(DstDecoder, RefusesDamagedFrames)
{
    const DsdSignal signal = makeDsd(SignalShape::sine, frameBytes);
    const std::vector<uint8_t> packed = encodeDstFrame(signal.bytes, 2);
    DstDecoder decoder(2, frameBytes);
    std::vector<uint8_t> out;
    EXPECT_EQ(decoder.decode({}, out), "a DST frame is empty");
    EXPECT_EQ(decoder.decode(std::vector<uint8_t>{0x00, 1, 2}, out), "a stored DST frame is cut off");
    EXPECT_EQ(decoder.decode(std::vector<uint8_t>(9409, 0x3F), out), "a stored DST frame is cut off");
    EXPECT_NE(decoder.decode(std::span(packed).first(20), out), "");
    EXPECT_EQ(decoder.decode(std::span(packed).first(packed.size() / 2), out), "a DST frame is cut off");
    // Any flipped bit of the head is an error or other music, and never a crash.
    for (size_t bit = 0; bit < 8 * 60; ++bit) {
        std::vector<uint8_t> damaged = packed;
        damaged[bit / 8] ^= static_cast<uint8_t>(0x80 >> bit % 8);
        (void)decoder.decode(damaged, out);
        EXPECT_EQ(out.size(), signal.bytes.size());
    }
    EXPECT_EQ(decoder.decode(packed, out), "");
    EXPECT_TRUE(out == signal.bytes) << "what was damaged before leaves no trace";
}

TEST(DstDecoder, KnowsItsLimits)
{
    EXPECT_TRUE(DstDecoder::supports(1, 4704));
    EXPECT_TRUE(DstDecoder::supports(6, 9408));
    EXPECT_FALSE(DstDecoder::supports(9, 4704));
    EXPECT_FALSE(DstDecoder::supports(0, 4704));
    EXPECT_FALSE(DstDecoder::supports(2, 5120));
}

} // namespace
