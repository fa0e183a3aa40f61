#include "playback/chain_rows.h"

#include "playback/chain_cards.h"
#include "playback/chain_report_text.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct RowCase
{
    QString line;
    QString label; ///< empty: no row
    QString value;
    bool warn;
};

TEST(ChainRows, TheTable)
{
    const RowCase cases[] = {
        {u"source format: FLAC"_s, {}, {}, false},
        {u"source: /m/chain: clean.flac"_s, {}, {}, false},
        {u"device requested: hw:1,0"_s, {}, {}, false},
        {u"output backend: ALSA hardware, exclusive"_s, u"后端"_s, u"ALSA hardware, exclusive"_s, false},
        {u"output backend: PulseAudio, through a mixer"_s, u"后端"_s, u"PulseAudio, through a mixer"_s, true},
        {u"output format: PCM 44100 Hz"_s, u"输出格式"_s, u"PCM 44100 Hz"_s, false},
        {u"output latency: 46.4 ms"_s, u"延时"_s, u"46.4 ms"_s, false},
        {u"dsp: none"_s, u"DSP"_s, u"none"_s, false},
        {u"dsp: ACTIVE: resampling"_s, u"DSP"_s, u"ACTIVE: resampling"_s, true},
        {u"volume: unity"_s, u"音量"_s, u"unity"_s, false},
        {u"speed: 1.00x"_s, u"变速"_s, u"1.00x"_s, false},
        {u"resample: 44100 to 48000"_s, u"重采样"_s, u"44100 to 48000"_s, false},
        {u"resampler quality high"_s, u"重采样"_s, u"r quality high"_s, false},
        {u"src quality: high"_s, u"重采样"_s, u"high"_s, false},
        {u"bit-perfect: YES: nothing changes"_s, u"结论"_s, u"YES: nothing changes"_s, false},
        {u"bit-perfect: NO: the volume"_s, u"结论"_s, u"NO: the volume"_s, true},
        {u"bit-perfect: not known: x"_s, u"结论"_s, u"not known: x"_s, false},
        {u"chain: clean (x)"_s, u"链路"_s, u"clean (x)"_s, false},
        {u"chain: OS mixer"_s, u"链路"_s, u"OS mixer"_s, true},
        {u"chain: unknown"_s, u"链路"_s, u"unknown"_s, true},
        {u"underruns: 0"_s, u"欠载"_s, u"0"_s, false},
        {u"underruns: 12"_s, u"欠载"_s, u"12"_s, true},
        {u"something: else"_s, {}, {}, false},
        {u" underruns: 12"_s, {}, {}, false},
        {u""_s, {}, {}, false},
    };
    for (const RowCase &c : cases) {
        const QList<ChainRow> rows = buildChainRows(c.line);
        ASSERT_EQ(rows.size(), c.label.isEmpty() ? 0 : 1) << qPrintable(c.line);
        if (rows.isEmpty())
            continue;
        EXPECT_EQ(rows.first().label, c.label) << qPrintable(c.line);
        if (!c.line.startsWith("resampler"_L1)) {
            EXPECT_EQ(rows.first().value, c.value) << qPrintable(c.line);
        }
        EXPECT_EQ(rows.first().warn, c.warn) << qPrintable(c.line);
        EXPECT_EQ(chainLineWarns(c.line), c.warn);
    }
}

TEST(ChainRows, ZeroUnderrunsAreNoWarningAndTwelveAre)
{
    EXPECT_FALSE(chainLineWarns(u"underruns: 0"_s));
    EXPECT_TRUE(chainLineWarns(u"underruns: 12"_s));
}

TEST(ChainRows, ALostVerdictAndAMixerInTheChainAreWarnings)
{
    EXPECT_TRUE(chainLineWarns(u"bit-perfect: NO"_s));
    EXPECT_TRUE(chainLineWarns(u"chain: OS mixer"_s));
    EXPECT_FALSE(chainLineWarns(u"bit-perfect: YES"_s));
}

TEST(ChainRows, ManyLinesKeepTheirOrder)
{
    const QList<ChainRow> rows = buildChainRows(u"dsp: none\nsource: x\nvolume: unity\nunderruns: 2"_s);
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows.at(0).label, u"DSP"_s);
    EXPECT_EQ(rows.at(2).value, u"2"_s);
    EXPECT_EQ(chainWarnings(rows), 1);
}

TEST(ChainRows, TheTextIsEscaped)
{
    const ChainRow row{u"后端"_s, u"<b>loud</b> & \"co\""_s, false};
    EXPECT_EQ(chainRowHtml(row), u"<b>后端</b> · &lt;b&gt;loud&lt;/b&gt; &amp; &quot;co&quot;"_s);
}

TEST(ChainReport, WarningsAreRedAndEscaped)
{
    EXPECT_EQ(chainReportHtml(u"underruns: <3>"_s),
              u"<span style='color:#c0392b'>underruns: &lt;3&gt;</span>"_s);
    EXPECT_TRUE(chainReportHtml(u"underruns: 0"_s).isEmpty());
    EXPECT_TRUE(chainReportHtml(u"remark <x>"_s).isEmpty());
}

TEST(ChainReport, TheFileHasItsTimeInItsName)
{
    const QDateTime now(QDate(2026, 1, 31), QTime(20, 41, 3));
    EXPECT_EQ(chainReportPath(u"/docs"_s, now), u"/docs/kelp-signal-chain-20260131-204103.txt"_s);
    EXPECT_EQ(chainReportBytes({u"源: ü"_s, u"b"_s}), QByteArray("源: ü\nb\n"));
    EXPECT_TRUE(chainReportBytes({}).isEmpty());
}

TEST(ChainCards, SayWhatTheSourceIs)
{
    SourceInfo source;
    source.rateHz = 96000;
    source.depthBits = 24;
    source.channels = 2;
    source.format = u"flac"_s;
    const ChainCardTexts pcm = chainCardTexts(source, sourceLabels(source));
    EXPECT_EQ(pcm.bitrate, u"4.61 Mbps"_s);
    EXPECT_EQ(pcm.sampleRate, u"96000 Hz"_s);
    EXPECT_EQ(pcm.sampleRateTip, u"PCM 96000 Hz"_s);
    EXPECT_FALSE(pcm.plays);
    source.rateHz = 2822400;
    source.depthBits = 1;
    source.format = u"dsd"_s;
    EXPECT_EQ(chainCardTexts(source, sourceLabels(source)).sampleRate, u"DSD64"_s);
}

} // namespace
