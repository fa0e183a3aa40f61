#include "engine/track_analysis.h"

#include "engine/player_session.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(TrackAnalysis, ReadsTempoAndKey)
{
    const TrackAnalysis analysis =
        parseTrackAnalysis(u"decoding …\r\nANALYZE bpm=128.0 sure\r\n ANALYZE key=A minor\r\n");
    EXPECT_TRUE(analysis.answered);
    EXPECT_EQ(analysis.bpm, u"128.0"_s);
    EXPECT_EQ(analysis.key, u"A minor"_s);
}

TEST(TrackAnalysis, NoneMeansThatTheEngineCouldNotTell)
{
    EXPECT_EQ(parseTrackAnalysis(u"ANALYZE bpm=none\nANALYZE key=none"), (TrackAnalysis{true, {}, {}}));
    EXPECT_EQ(parseTrackAnalysis(u"ANALYZE bpm=fast\nANALYZE key="), (TrackAnalysis{true, {}, {}}));
    EXPECT_EQ(parseTrackAnalysis(u"ANALYZE bpm=-3"), (TrackAnalysis{true, {}, {}}));
    EXPECT_EQ(parseTrackAnalysis(u"ANALYZE"), (TrackAnalysis{true, {}, {}}));
    EXPECT_EQ(parseTrackAnalysis(u"say ANALYZE bpm=1"), TrackAnalysis());
    EXPECT_EQ(parseTrackAnalysis(u""), TrackAnalysis());
}

TEST(TrackAnalysis, FirstValueCountsAndLongOnesAreCut)
{
    EXPECT_EQ(parseTrackAnalysis(u"ANALYZE bpm=90\nANALYZE bpm=180").bpm, u"90"_s);
    EXPECT_EQ(parseTrackAnalysis(u"ANALYZE key="_s + QString(1000, u'x')).key, QString(40, u'x'));
}

TEST(TrackAnalysis, Refusals)
{
    EXPECT_EQ(analysisRefusal(false, false), u"先选一首再分析"_s);
    EXPECT_EQ(analysisRefusal(false, true), u"先选一首再分析"_s);
    EXPECT_EQ(analysisRefusal(true, true), u"播放中不能分析, 先按停止再来"_s);
    EXPECT_EQ(analysisRefusal(true, false), QString());
}

struct Case
{
    const char16_t *output;
    const char16_t *box;
    const char16_t *log;
};
class AnalysisTexts : public testing::TestWithParam<Case>
{
};
TEST_P(AnalysisTexts, BoxAndLog)
{
    const auto report = analysisReport(0, QString::fromUtf16(GetParam().output), u"a.flac"_s);
    EXPECT_EQ(report.boxTitle, u"曲目分析"_s);
    EXPECT_EQ(report.boxText, QString::fromUtf16(GetParam().box));
    EXPECT_EQ(report.logText, QString::fromUtf16(GetParam().log));
    EXPECT_FALSE(report.isError);
}
const Case cases[] = {
    {u"ANALYZE bpm=128\nANALYZE key=Am", u"BPM: 128\n调性: Am", u"曲目分析: BPM 128, 调性 Am"},
    {u"ANALYZE bpm=128\nANALYZE key=none", u"BPM: 128\n调性: 判不出来",
     u"曲目分析: BPM 128 (调性判不出来, 不硬给)"},
    {u"ANALYZE bpm=none\nANALYZE key=Am", u"BPM: 判不出来\n调性: Am",
     u"曲目分析: 调性 Am (BPM 判不出来, 不硬给)"},
    {u"ANALYZE bpm=none\nANALYZE key=none", u"BPM: 判不出来\n调性: 判不出来",
     u"曲目分析: BPM 和调性都判不出来, 不硬给"},
};
INSTANTIATE_TEST_SUITE_P(Variants, AnalysisTexts, testing::ValuesIn(cases));

TEST(TrackAnalysis, TheEngineHasTwoMinutes)
{
    EXPECT_EQ(analysisTimeoutMs, 120000);
}

TEST(TrackAnalysis, EngineThatIsNotThere)
{
    for (const int rc : {session_code::refused, session_code::couldNotStart}) {
        const auto report = analysisReport(rc, {}, u"a.flac"_s);
        EXPECT_TRUE(report.boxText.isEmpty());
        EXPECT_TRUE(report.isError);
        EXPECT_EQ(report.logText, u"分析起不来(引擎库不可用, rc=%1)"_s.arg(rc));
    }
}

TEST(TrackAnalysis, NoResultGivesTheEnginesLastWordsOrTheFile)
{
    auto report = analysisReport(1, u"one\ncannot decode\n\n"_s, u"a.flac"_s);
    EXPECT_TRUE(report.boxText.isEmpty());
    EXPECT_TRUE(report.isError);
    EXPECT_EQ(report.logText, u"分析没有结果: cannot decode"_s);
    report = analysisReport(0, u" \n"_s, u"a.flac"_s);
    EXPECT_EQ(report.logText, u"分析没有结果: a.flac"_s);
    report = analysisReport(session_code::timedOut, QString(1000, u'x'), {});
    EXPECT_EQ(report.logText, u"分析没有结果: "_s + QString(200, u'x'));
}

} // namespace
