#include "engine/frame_lines.h"

#include <QString>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

SpectrumFrame markedSpectrum()
{
    return {1., 1, {7.}, {}};
}

TEST(SpectrumLine, MapsBytesToDecibels)
{
    SpectrumFrame frame;
    ASSERT_TRUE(parseSpectrum(u"SPC 44100 3 00fF80", frame));
    EXPECT_EQ(frame.rateHz, 44100.);
    EXPECT_EQ(frame.bandCount, 3);
    ASSERT_EQ(frame.main.size(), 3U);
    EXPECT_DOUBLE_EQ(frame.main[0], -96.);
    EXPECT_DOUBLE_EQ(frame.main[1], 0.);
    EXPECT_DOUBLE_EQ(frame.main[2], 128. / 255. * 96. - 96.);
    EXPECT_TRUE(frame.peaks.empty());
}

TEST(SpectrumLine, ReadsFromTheFirstPrefixOnAndKeepsThePeaks)
{
    SpectrumFrame frame;
    ASSERT_TRUE(parseSpectrum(u"[12:00] SPC 96000.5 2 00FF ff00 more words", frame));
    EXPECT_EQ(frame.rateHz, 96000.5);
    ASSERT_EQ(frame.peaks.size(), 2U);
    EXPECT_DOUBLE_EQ(frame.peaks[0], 0.);
    EXPECT_DOUBLE_EQ(frame.peaks[1], -96.);
}

TEST(SpectrumLine, BandCountOf128IsTakenAnd129Refused)
{
    SpectrumFrame frame = markedSpectrum();
    EXPECT_TRUE(parseSpectrum(u"SPC 44100 128 "_s + QString(256, u'0'), frame));
    EXPECT_EQ(frame.main.size(), 128U);
    frame = markedSpectrum();
    EXPECT_FALSE(parseSpectrum(u"SPC 44100 129 "_s + QString(258, u'0'), frame));
    EXPECT_FALSE(parseSpectrum(u"SPC 44100 0 00", frame));
    EXPECT_FALSE(parseSpectrum(u"SPC 44100 -1 00", frame));
    EXPECT_EQ(frame, markedSpectrum());
}

TEST(SpectrumLine, ShortMainBlockIsRefusedAndLeavesTheFrame)
{
    SpectrumFrame frame = markedSpectrum();
    for (const QString &bad :
         {u"SPC 44100 3 00fF8"_s, u"SPC 44100 3 00fFgg"_s, u"SPC 44100 3"_s, u"SPC 44100"_s, u"SPC"_s, u""_s,
          u"SPC 44100x 1 00"_s, u"SPC nan 1 00"_s, u"SPC 44100 1.0 00"_s, u"no frame"_s}) {
        EXPECT_FALSE(parseSpectrum(bad, frame)) << bad.toStdString();
        EXPECT_EQ(frame, markedSpectrum()) << bad.toStdString();
    }
}

TEST(SpectrumLine, BadPeaksAreLeftOutAndTheFrameCounts)
{
    for (const QString &peaks : {u"00"_s, u"00zz"_s, u"zzzz"_s}) {
        SpectrumFrame frame;
        ASSERT_TRUE(parseSpectrum(u"SPC 44100 2 0000 "_s + peaks, frame));
        EXPECT_TRUE(frame.peaks.empty());
        EXPECT_EQ(frame.main.size(), 2U);
    }
}

TEST(SpectrumLine, LongerMainBlockIsCutToItsCount)
{
    SpectrumFrame frame;
    ASSERT_TRUE(parseSpectrum(u"SPC 44100 1 ff00zz", frame));
    EXPECT_EQ(frame.main, std::vector<double>{0.});
}

TEST(WaveformLine, MapsTwoBytesABucket)
{
    WaveformFrame frame;
    ASSERT_TRUE(parseWaveform(u"WVF 44100 2 00fF7f80", frame));
    EXPECT_EQ(frame.rateHz, 44100.);
    EXPECT_EQ(frame.bucketCount, 2);
    ASSERT_EQ(frame.channel1.first.size(), 2U);
    EXPECT_DOUBLE_EQ(frame.channel1.first[0], -1.);
    EXPECT_DOUBLE_EQ(frame.channel1.second[0], 1.);
    EXPECT_DOUBLE_EQ(frame.channel1.first[1], 127 / 127.5 - 1.);
    EXPECT_DOUBLE_EQ(frame.channel1.second[1], 128 / 127.5 - 1.);
    EXPECT_TRUE(frame.channel2.first.empty());
    EXPECT_TRUE(frame.channel2.second.empty());
}

TEST(WaveformLine, ReadsASecondChannel)
{
    WaveformFrame frame;
    ASSERT_TRUE(parseWaveform(u"WVF 44100 1  00ff   ff00", frame));
    EXPECT_EQ(frame.channel2.first, std::vector<double>{1.});
    EXPECT_EQ(frame.channel2.second, std::vector<double>{-1.});
}

TEST(WaveformLine, BucketCountOf256With1024DigitsIsTakenAnd257Refused)
{
    WaveformFrame frame;
    EXPECT_TRUE(parseWaveform(u"WVF 44100 256 "_s + QString(1024, u'a'), frame));
    EXPECT_EQ(frame.channel1.second.size(), 256U);
    const WaveformFrame before = frame;
    EXPECT_FALSE(parseWaveform(u"WVF 44100 257 "_s + QString(1028, u'a'), frame));
    EXPECT_FALSE(parseWaveform(u"WVF 44100 0 ", frame));
    EXPECT_EQ(frame, before);
}

TEST(WaveformLine, ShortOrBadFirstBlockIsRefused)
{
    WaveformFrame frame;
    for (const QString &bad :
         {u"WVF 44100 2 00ff7f8"_s, u"WVF 44100 1 00fg"_s, u"WVF 44100 1"_s, u"WVF x 1 00ff"_s, u"WVF "_s,
          u"WVF inf 1 00ff"_s, u" WVF 44100 1 00ff"_s, u"WVF 44100 1 00 ff"_s, u""_s})
        EXPECT_FALSE(parseWaveform(bad, frame)) << bad.toStdString();
    EXPECT_EQ(frame, WaveformFrame());
}

TEST(WaveformLine, BadSecondBlockEmptiesChannelTwoOnly)
{
    for (const QString &second : {u" 00f"_s, u" 00fg"_s, u" zzzz"_s, u"00ff"_s, u" "_s}) {
        WaveformFrame frame;
        ASSERT_TRUE(parseWaveform(u"WVF 44100 1 00ff"_s + second, frame)) << second.toStdString();
        EXPECT_TRUE(frame.channel2.first.empty()) << second.toStdString();
        EXPECT_EQ(frame.channel1.first.size(), 1U);
    }
}

} // namespace
