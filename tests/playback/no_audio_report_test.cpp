#include "playback/no_audio_report.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(NoAudioReport, EachSignOfAnOpenDeviceMakesSilenceAnError)
{
    for (const QString &line :
         {u"OPENED hw:0 44100"_s, u"[out] shared mode, 48000"_s, u"WASAPI: buffer 480"_s}) {
        const NoAudioReport report = noAudioReport(line);
        EXPECT_TRUE(report.isError) << qPrintable(line);
        EXPECT_EQ(report.text, u"起播 5 秒仍没有音频样本 —— 引擎最后一行: "_s + line);
    }
}

TEST(NoAudioReport, WithoutSuchASignTheDeviceWasNeverOpened)
{
    for (const QString &line : {u"decoding"_s, u"opened"_s, u"WASAPI: refused"_s}) {
        const NoAudioReport report = noAudioReport(line);
        EXPECT_FALSE(report.isError) << qPrintable(line);
        EXPECT_TRUE(report.text.contains(u"**设备从未打开**"_s));
        EXPECT_TRUE(report.text.endsWith(line));
    }
}

TEST(NoAudioReport, ShowsTheEndOfALongLineTrimmed)
{
    const NoAudioReport report = noAudioReport(u"  first "_s + QString(159, u'x') + u"y \n"_s);
    EXPECT_TRUE(report.text.endsWith(u": "_s + QString(159, u'x') + u'y')) << qPrintable(report.text);
    EXPECT_FALSE(noAudioReport(u"OPENED"_s + QString(160, u'x')).isError) << "the sign was cut off";
    EXPECT_TRUE(noAudioReport(u"OPENED"_s + QString(154, u'x')).isError);
}

TEST(NoAudioReport, AnEngineThatSaidNothingIsNamedAsSilent)
{
    for (const QString &line : {QString(), u" \n"_s})
        EXPECT_TRUE(noAudioReport(line).text.endsWith(u"(没有任何输出)"_s));
    EXPECT_EQ(noAudioReport({}).checkList, noAudioReport(u"OPENED"_s).checkList);
    EXPECT_TRUE(noAudioReport({}).checkList.contains(u"0x8889000A"_s));
}
