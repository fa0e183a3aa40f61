#include "engine/telemetry_lines.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(LevelLines, TwoNumbersInDecibels)
{
    EXPECT_EQ(parseLevels(u"-3.25 -120.00"), (LevelLine{-3.25, -120.}));
    EXPECT_EQ(parseLevels(u"0.5 -1 surplus"), (LevelLine{0.5, -1.}));
    for (const QStringView bad : {u"", u"-3.25", u"-3.25 x", u"nan -1", u"-1 inf"})
        EXPECT_FALSE(parseLevels(bad)) << bad.toUtf8().toStdString();
}

TEST(LevelLines, MinusInfinityIsTheFloor)
{
    EXPECT_EQ(parseLevels(u"-inf -1"), (LevelLine{levelFloorDb, -1.}));
}

TEST(ProgressLines, ThreeWordsGiveATotalOfMinusOne)
{
    EXPECT_EQ(parseProgress(u"PG 50.00 12.500"), (ProgressLine{50., 12.5, -1.}));
    EXPECT_EQ(parseProgress(u"PG 50 12.5 25"), (ProgressLine{50., 12.5, 25.}));
    EXPECT_EQ(parseProgress(u"PG 50 12.5 25 surplus"), (ProgressLine{50., 12.5, 25.}));
}

TEST(ProgressLines, WhatIsNoNumberIsNoProgress)
{
    for (const QStringView bad :
         {u"PG", u"PG 50", u"PG x 1 2", u"PG 1 x 2", u"PG 1 2 x", u"PG 1 nan 2", u"PX 1 2 3"})
        EXPECT_FALSE(parseProgress(bad)) << bad.toUtf8().toStdString();
}

TEST(ProgressLines, PercentForm)
{
    EXPECT_EQ(parseProgressPercent(u"Progress: 37.5%"), 37.5);
    EXPECT_EQ(parseProgressPercent(u"Progress:40"), 40.);
    EXPECT_EQ(parseProgressPercent(u"Progress:  12 % "), 12.);
    for (const QStringView bad :
         {u"Progress: %", u"Progress: half", u"Progress", u"progress: 1%", u"Progress: 5%%"})
        EXPECT_FALSE(parseProgressPercent(bad)) << bad.toUtf8().toStdString();
}

TEST(ScanLines, FourWordsOrNone)
{
    EXPECT_EQ(parseScan(u"SCAN 12.5 30.0 240.0"), (ScanLine{12.5, 30., 240.}));
    for (const QStringView bad : {u"SCAN 12.5 30.0", u"SCAN a b c", u"SCANNING 1 2 3"})
        EXPECT_FALSE(parseScan(bad)) << bad.toUtf8().toStdString();
}

TEST(SourceLines, SixWords)
{
    const auto source = parseSource(u"2822400 1 2 dsd 1 241.333");
    ASSERT_TRUE(source);
    EXPECT_EQ(source->rateHz, 2822400);
    EXPECT_EQ(source->depthBits, 1);
    EXPECT_EQ(source->channels, 2);
    EXPECT_TRUE(source->isDsd());
    EXPECT_TRUE(source->dst);
    EXPECT_DOUBLE_EQ(source->durationSec, 241.333);
}

TEST(SourceLines, UnknownDepthLeavesTheRest)
{
    for (const QStringView depth : {u"0", u"-1", u"?"}) {
        const auto source = parseSource(u"44100 %1 2 mp3 0 10"_s.arg(depth));
        ASSERT_TRUE(source);
        EXPECT_FALSE(source->depthBits);
        EXPECT_FALSE(source->isDsd());
        EXPECT_FALSE(source->dst);
    }
}

TEST(SourceLines, WhatDoesNotFitIsNoSource)
{
    for (const QStringView bad : {u"", u"44100 16 2 flac 0", u"44.1k 16 2 flac 0 1", u"44100 16 two flac 0 1",
                                  u"44100 16 2 flac 0 long", u"-44100 16 2 flac 0 1", u"44100 16 -2 flac 0 1",
                                  u"44100.5 16 2 flac 0 1", u"99999999999 16 2 flac 0 1"})
        EXPECT_FALSE(parseSource(bad)) << bad.toUtf8().toStdString();
}

TEST(SegmentLines, TheFourthWordIsTheNumber)
{
    EXPECT_EQ(parseSegment(u"SEG 0.000 180.500 7"), 7);
    for (const QStringView bad : {u"SEG 0 1", u"SEG 0 1 x", u"SEG 0 1 2.5", u"SEGMENT 0 1 2"})
        EXPECT_FALSE(parseSegment(bad)) << bad.toUtf8().toStdString();
}

TEST(OutputLatency, From0ToBelow5000)
{
    EXPECT_EQ(parseOutputLatencyMs(u"output latency: 21.3 ms"), 21.3);
    EXPECT_EQ(parseOutputLatencyMs(u"[x] output latency:0"), 0.);
    EXPECT_EQ(parseOutputLatencyMs(u"output latency: 4999.9 ms"), 4999.9);
    for (const QStringView bad : {u"output latency: 5000.0 ms", u"output latency: -0.1", u"output latency:",
                                  u"output latency: not known yet", u"output latency: nan", u"latency: 3"})
        EXPECT_FALSE(parseOutputLatencyMs(bad)) << bad.toUtf8().toStdString();
}

TEST(DecodeFilter, SecondWordIsTheNameAndThirdTellsWhoChose)
{
    EXPECT_EQ(parseDecodeFilter(u"DSD64 steep auto"), (DecodeFilterLine{u"steep"_s, true}));
    EXPECT_EQ(parseDecodeFilter(u"DSD64 gentle manual more"), (DecodeFilterLine{u"gentle"_s, false}));
    EXPECT_FALSE(parseDecodeFilter(u"DSD64 steep"));
}

TEST(Zones, NamedBoundsAndNoOthers)
{
    EXPECT_EQ(parseSpectrumZones(u"SPC zones low=12 audible=60 nyq=64"), (SpectrumZones{12, 60, 64}));
    EXPECT_EQ(parseSpectrumZones(u"SPC zones nyq=1 high=3"), (SpectrumZones{{}, {}, 1}));
    EXPECT_EQ(parseSpectrumZones(u"SPC zones"), SpectrumZones());
}

TEST(Zones, OutOfRangeCountsAsZero)
{
    EXPECT_EQ(parseSpectrumZones(u"SPC zones low=0 audible=128 nyq=129"), (SpectrumZones{0, 128, 0}));
    EXPECT_EQ(parseSpectrumZones(u"SPC zones low=-4 audible= nyq=200"), (SpectrumZones{0, 0, 0}));
}

} // namespace
