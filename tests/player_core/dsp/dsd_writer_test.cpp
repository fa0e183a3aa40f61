#include "player_core/dsp/wire_writer.h"

#include <vector>

#include <gtest/gtest.h>

using namespace kelp_core;

namespace {

WireFormat dop(SampleEncoding encoding, int channels)
{
    return {Carrier::dop, encoding, 176400, channels, 24};
}

WireFormat native(SampleEncoding encoding, int channels)
{
    return {Carrier::nativeDsd, encoding, 352800, channels, 1};
}

std::vector<uint8_t> written(const WireFormat &wire, const std::vector<uint8_t> &dsd)
{
    DsdWriter writer(wire);
    std::vector<uint8_t> out(dsd.size() * 4);
    const size_t frames =
        writer.write(dsd.data(), dsd.size() / static_cast<size_t>(wire.channels), out.data());
    out.resize(frames * static_cast<size_t>(wire.bytesPerFrame()));
    return out;
}

} // namespace

// Two channels, four bytes each: channel 1 has 11 12 13 14, channel 2 has 21 22 23 24.
const std::vector<uint8_t> stereo{0x11, 0x21, 0x12, 0x22, 0x13, 0x23, 0x14, 0x24};

TEST(DsdWriter, DopFramesInAllContainers)
{
    using Bytes = std::vector<uint8_t>;
    EXPECT_EQ(written(dop(SampleEncoding::s24in3, 2), stereo),
              (Bytes{0x12, 0x11, 0x05, 0x22, 0x21, 0x05, 0x14, 0x13, 0xFA, 0x24, 0x23, 0xFA}));
    EXPECT_EQ(written(dop(SampleEncoding::s24in4, 2), stereo),
              (Bytes{0x12, 0x11, 0x05, 0x00, 0x22, 0x21, 0x05, 0x00, 0x14, 0x13, 0xFA, 0xFF, 0x24, 0x23, 0xFA,
                     0xFF}));
    EXPECT_EQ(written(dop(SampleEncoding::s32, 2), stereo),
              (Bytes{0x00, 0x12, 0x11, 0x05, 0x00, 0x22, 0x21, 0x05, 0x00, 0x14, 0x13, 0xFA, 0x00, 0x24, 0x23,
                     0xFA}));
}

TEST(DsdWriter, NativeFramesHaveTheOldestBitOnTop)
{
    using Bytes = std::vector<uint8_t>;
    EXPECT_EQ(written(native(SampleEncoding::dsdU8, 2), stereo), stereo);
    EXPECT_EQ(written(native(SampleEncoding::dsdU16be, 2), stereo),
              (Bytes{0x11, 0x12, 0x21, 0x22, 0x13, 0x14, 0x23, 0x24}));
    EXPECT_EQ(written(native(SampleEncoding::dsdU16le, 2), stereo),
              (Bytes{0x12, 0x11, 0x22, 0x21, 0x14, 0x13, 0x24, 0x23}));
    EXPECT_EQ(written(native(SampleEncoding::dsdU32be, 2), stereo),
              (Bytes{0x11, 0x12, 0x13, 0x14, 0x21, 0x22, 0x23, 0x24}));
    EXPECT_EQ(written(native(SampleEncoding::dsdU32le, 2), stereo),
              (Bytes{0x14, 0x13, 0x12, 0x11, 0x24, 0x23, 0x22, 0x21}));
}

TEST(DsdWriter, TellsHowManyBytesAFrameHolds)
{
    EXPECT_EQ(DsdWriter(dop(SampleEncoding::s32, 2)).dsdFramesPerWireFrame(), 2u);
    EXPECT_EQ(DsdWriter(native(SampleEncoding::dsdU8, 2)).dsdFramesPerWireFrame(), 1u);
    EXPECT_EQ(DsdWriter(native(SampleEncoding::dsdU16le, 2)).dsdFramesPerWireFrame(), 2u);
    EXPECT_EQ(DsdWriter(native(SampleEncoding::dsdU32be, 2)).dsdFramesPerWireFrame(), 4u);
}

TEST(DsdWriter, MarkersAlternateOverAllCallsAndSilenceInAllChannels)
{
    for (int channels : {1, 2, 5, 6}) {
        const WireFormat wire = dop(SampleEncoding::s24in3, channels);
        DsdWriter writer(wire);
        std::vector<uint8_t> out;
        const std::vector<uint8_t> dsd(static_cast<size_t>(channels) * 64, 0xC3);
        for (size_t call = 0; call < 300; ++call) {
            const size_t frames = call % 7;
            const size_t start = out.size();
            out.resize(start + frames * static_cast<size_t>(wire.bytesPerFrame()));
            if (call % 3 == 0)
                writer.silence(frames, out.data() + start);
            else
                EXPECT_EQ(writer.write(dsd.data(), frames * 2, out.data() + start), frames);
        }
        const size_t frameBytes = static_cast<size_t>(wire.bytesPerFrame());
        ASSERT_GT(out.size(), 800 * frameBytes);
        for (size_t sample = 0; sample * 3 < out.size(); ++sample) {
            const size_t frame = sample / static_cast<size_t>(channels);
            ASSERT_EQ(out[sample * 3 + 2], frame % 2 == 0 ? 0x05 : 0xFA);
            ASSERT_EQ(out[sample * 3], out[sample * 3 + 1]);
            ASSERT_TRUE(out[sample * 3] == 0x69 || out[sample * 3] == 0xC3);
        }
    }
}

TEST(DsdWriter, NativeSilenceIsTheIdlePatternEverywhere)
{
    for (SampleEncoding encoding : {SampleEncoding::dsdU8, SampleEncoding::dsdU16le, SampleEncoding::dsdU16be,
                                    SampleEncoding::dsdU32le, SampleEncoding::dsdU32be}) {
        const WireFormat wire = native(encoding, 6);
        std::vector<uint8_t> out(static_cast<size_t>(wire.bytesPerFrame()) * 10, 0);
        DsdWriter(wire).silence(10, out.data());
        EXPECT_EQ(out, std::vector<uint8_t>(out.size(), 0x69));
    }
}

TEST(DsdWriter, ATornFrameIsNotWritten)
{
    DsdWriter writer(native(SampleEncoding::dsdU32be, 2));
    std::vector<uint8_t> out(8, 0xEE);
    EXPECT_EQ(writer.write(stereo.data(), 3, out.data()), 0u);
    EXPECT_EQ(out, std::vector<uint8_t>(8, 0xEE));
}
