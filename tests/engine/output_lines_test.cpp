#include "engine/output_lines.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace engine_line;

TEST(OutputLines, APrefixMayStandBehindATimeStamp)
{
    EXPECT_EQ(embedded(u"LVL -3 -4"_s, "LVL "_L1), u"-3 -4"_s);
    EXPECT_EQ(embedded(u"12:00 LVL -3 -4"_s, "LVL "_L1), u"-3 -4"_s);
    EXPECT_EQ(embedded(u"[12:00]LVL -3 -4"_s, "LVL "_L1), u"-3 -4"_s);
    EXPECT_EQ(embedded(u"xLVL -3 -4"_s, "LVL "_L1), std::nullopt);
    EXPECT_EQ(embedded(u"xLVL a LVL b"_s, "LVL "_L1), std::nullopt) << "only the first occurrence counts";
}

TEST(OutputLines, ProgressTakesThreeOrFourWords)
{
    EXPECT_EQ(parseProgress(u"PG 12.5 3.25 26"_s), (Progress{12.5, 3.25, 26.}));
    EXPECT_EQ(parseProgress(u"PG 12.5 3.25"_s), (Progress{12.5, 3.25, -1.}));
    EXPECT_EQ(parseProgress(stripPlayerPrefix(u"[player] PG 1 2 3"_s)), (Progress{1., 2., 3.}));
    for (const QString &bad :
         {u"PG 1"_s, u"PG a b c"_s, u"PG nan 1 2"_s, u"PG 1 inf 2"_s, u"PG 1 2 x"_s, u"PGX 1 2"_s})
        EXPECT_EQ(parseProgress(bad), std::nullopt) << qPrintable(bad);
}

TEST(OutputLines, APercentLosesItsSign)
{
    EXPECT_EQ(parsePercent(u"Progress: 37.5%"_s), 37.5);
    EXPECT_EQ(parsePercent(u"Progress:40"_s), 40.);
    EXPECT_EQ(parsePercent(u"Progress: x%"_s), std::nullopt);
    EXPECT_EQ(parsePercent(u"progress: 1%"_s), std::nullopt);
}

TEST(OutputLines, ASourceIsNamedByItsFormat)
{
    const auto pcm = parseSource(u"44100 16 2 flac 0 215.4"_s);
    ASSERT_TRUE(pcm);
    EXPECT_EQ(sourceFormatText(*pcm), u"PCM 44100 Hz"_s);
    EXPECT_EQ(pcm->depthBits, 16);
    const auto dsd = parseSource(u"5644800 1 2 dsd 1 60"_s);
    ASSERT_TRUE(dsd);
    EXPECT_EQ(sourceFormatText(*dsd), u"DSD128"_s);
    EXPECT_TRUE(dsd->dst);
    EXPECT_EQ(sourceFormatText(*parseSource(u"1234 1 2 dsd 0 60"_s)), u"DSD 1234"_s);
    EXPECT_EQ(parseSource(u"44100 16 2 flac 0"_s), std::nullopt);
    EXPECT_EQ(parseSource(u"x 16 2 flac 0 1"_s), std::nullopt);
    EXPECT_FALSE(parseSource(u"44100 0 2 flac 0 1"_s)->depthBits.has_value());
}

TEST(OutputLines, ALatencyHasItsRange)
{
    EXPECT_EQ(parseOutputLatencyMs(u"output latency: 4999.9 ms"_s), 4999.9);
    EXPECT_EQ(parseOutputLatencyMs(u"output latency: 5000.0 ms"_s), std::nullopt);
    EXPECT_EQ(parseOutputLatencyMs(u"output latency: -1"_s), std::nullopt);
    EXPECT_EQ(parseOutputLatencyMs(u"output latency: nan"_s), std::nullopt);
    EXPECT_EQ(parseOutputLatencyMs(u"output latency:"_s), std::nullopt);
    EXPECT_EQ(parseOutputLatencyMs(u"[player] output latency: 0 ms"_s), 0.);
}

TEST(OutputLines, DeviceFactsStandInFreeText)
{
    EXPECT_EQ(deviceFactOf(u"OPENED hw:0"_s), DeviceFact::Opened);
    EXPECT_EQ(deviceFactOf(u"rc=0x8889000A"_s), DeviceFact::ExclusiveRefused);
    EXPECT_EQ(deviceFactOf(u"cannot get exclusive access to hw:0"_s), DeviceFact::ExclusiveRefused);
    EXPECT_EQ(deviceFactOf(u"no device 'x'"_s), DeviceFact::EndpointMissing);
    EXPECT_EQ(deviceFactOf(u"OPENED after endpoint not found"_s), DeviceFact::Opened);
    EXPECT_EQ(deviceFactOf(u"opened"_s), DeviceFact::None);
}

TEST(OutputLines, ScanAndSegmentNeedAllTheirWords)
{
    EXPECT_EQ(parseScan(u"SCAN 50 1.5 3"_s), (Scan{50., 1.5, 3.}));
    EXPECT_EQ(parseScan(u"SCAN 50 1.5"_s), std::nullopt);
    EXPECT_EQ(parseSegment(u"SEG 0 12.5 3"_s), 3);
    EXPECT_EQ(parseSegment(u"SEG 0 12.5"_s), std::nullopt);
    EXPECT_EQ(parseSegment(u"SEG 0 12.5 x"_s), std::nullopt);
}

TEST(OutputLines, TelemetryIsCountedByItsFirstWord)
{
    EXPECT_EQ(telemetryKey(u"[player] PG 1 2 3"_s), u"PG"_s);
    EXPECT_EQ(telemetryKey(u"COVER data"_s), u"COVER"_s);
    EXPECT_TRUE(telemetryKey(u"OPENED x"_s).isEmpty());
    for (const qint64 count : {1, 10, 200, 400})
        EXPECT_TRUE(isTelemetrySample(count)) << count;
    for (const qint64 count : {2, 11, 199})
        EXPECT_FALSE(isTelemetrySample(count)) << count;
}

TEST(OutputLines, AnyBytesAreSafe)
{
    const QString endless(1 << 20, u' ');
    EXPECT_EQ(parseProgress(u"PG 1"_s + endless + u"2"_s), std::nullopt) << "beyond the longest line";
    EXPECT_TRUE(cleaned(u"\r\n \r"_s).isEmpty());
    EXPECT_EQ(cleaned(u" a\rb \n"_s), u"ab"_s);
}
