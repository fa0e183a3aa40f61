#include "engine/effective_bits_table.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Case
{
    const char16_t *line;
    BitsMode mode;
    std::optional<int> bits;
    const char16_t *text;
};

class EffectiveBitsRows : public testing::TestWithParam<Case>
{
};

TEST_P(EffectiveBitsRows, LampAndText)
{
    const auto result = effectiveBitsOf(GetParam().line, 24);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->mode, GetParam().mode);
    EXPECT_EQ(result->bits, GetParam().bits);
    EXPECT_EQ(result->text, QString::fromUtf16(GetParam().text));
}

const Case rows[] = {
    {u"volume: unity, samples untouched", BitsMode::Transparent, 24, u"有效位：单位增益（样本原样通过）"},
    {u"volume: SOFTWARE gain -30 dB, effective bits about 19 bit", BitsMode::Depth, 19,
     u"有效位：约 19 位（软件衰减之后）"},
    {u"volume: effective bits unknown", BitsMode::Depth, -1, u"有效位：见日志"},
    {u"volume: effective bits about 0 bit", BitsMode::Depth, -1, u"有效位：见日志"},
    {u"volume: effective bits about half", BitsMode::Depth, -1, u"有效位：见日志"},
    {u"volume: SOFTWARE gain, resolution used up", BitsMode::UsedUp, std::nullopt,
     u"有效位：已耗尽（衰减过深）"},
    {u"volume: +3 dB, less headroom", BitsMode::Depth, 24, u"有效位：无损失，但增益会推高峰值（有削波风险）"},
    {u"volume: applied on the DEVICE", BitsMode::Transparent, 24,
     u"有效位：不受影响（设备/端点音量，样本未缩放）"},
    {u"volume: NOT applied on a DoP stream", BitsMode::Transparent, 24,
     u"有效位：不受影响（DoP 流不做音量处理）"},
    {u"volume: DSD direct", BitsMode::Unknown, std::nullopt, u"有效位：见日志（DSD 直通，使用设备混音器）"},
    {u"volume: SOFTWARE gain -6 dB", BitsMode::Unknown, 24, u"有效位：由软件增益决定（见下一行）"},
};
INSTANTIATE_TEST_SUITE_P(Table, EffectiveBitsRows, testing::ValuesIn(rows));

TEST(EffectiveBits, UnityGoesBeforeAllAndEffectiveBitsBeforeTheRest)
{
    EXPECT_EQ(effectiveBitsOf(u"volume: SOFTWARE gain used up effective bits about 3 unity", 16)->mode,
              BitsMode::Transparent);
    EXPECT_EQ(effectiveBitsOf(u"volume: used up, effective bits about 3", 16)->mode, BitsMode::Depth);
    EXPECT_EQ(effectiveBitsOf(u"volume: SOFTWARE gain, headroom, used up", 16)->mode, BitsMode::UsedUp);
}

TEST(EffectiveBits, OtherLinesSayNothing)
{
    EXPECT_FALSE(effectiveBitsOf(u"volume: 80", 24));
    EXPECT_FALSE(effectiveBitsOf(u"", 24));
}

TEST(EffectiveBits, DeviceDepth)
{
    EXPECT_EQ(deviceBitsOf(u"volume: on a 24 bit device: unity"), 24);
    EXPECT_EQ(deviceBitsOf(u"volume: on a 32-bit device"), 32);
    EXPECT_EQ(deviceBitsOf(u"volume: NOT applied on a DoP stream, on a 24 bit device"), 24);
    EXPECT_FALSE(deviceBitsOf(u"volume: on a 0 bit device"));
    EXPECT_FALSE(deviceBitsOf(u"volume: on a -8 bit device"));
    EXPECT_FALSE(deviceBitsOf(u"volume: on a DoP stream"));
    EXPECT_FALSE(deviceBitsOf(u"volume: on a 99999999999 bit device"));
}

TEST(EffectiveBits, UnknownDeviceDepthIsZero)
{
    EXPECT_EQ(effectiveBitsOf(u"volume: unity", 0)->bits, 0);
}

} // namespace
