#include "playback/no_audio_report.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(NoAudioReport, ShowsTheLast160CharactersOfTheEnginesLine)
{
    const NoAudioReport report = noAudioReport(u"  begin"_s + QString(153, u'-') + u"OPENED "_s);
    EXPECT_TRUE(report.text.endsWith(u": n"_s + QString(153, u'-') + u"OPENED"_s)) << qPrintable(report.text);
    EXPECT_TRUE(report.isError);
}

TEST(NoAudioReport, AnOpenDeviceIsOneThatTheLineShows)
{
    for (const QString &line : {u"OPENED hw:0"_s, u"shared mode, 48000 Hz"_s, u"WASAPI: buffer 441"_s})
        EXPECT_TRUE(noAudioReport(line).isError) << qPrintable(line);
    EXPECT_FALSE(noAudioReport(u"opened"_s).isError);
}

TEST(NoAudioReport, AnEngineThatSaidNothingIsToldAsSuch)
{
    const NoAudioReport report = noAudioReport(u" "_s);
    EXPECT_TRUE(report.text.endsWith(u"(没有任何输出)"_s)) << qPrintable(report.text);
    EXPECT_FALSE(report.isError);
    EXPECT_FALSE(report.checkList.isEmpty());
}

} // namespace
