#include "engine/progress_display.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

ProgressFacts at(double percent, double positionSec, double totalSec)
{
    ProgressFacts facts;
    facts.percent = percent;
    facts.positionSec = positionSec;
    facts.totalSec = totalSec;
    facts.row = 3;
    return facts;
}

TEST(ProgressDisplay, BarAndStateFollowThePercent)
{
    TrackProgressState state;
    const ProgressDisplay display = updateProgress(state, at(37.506, 90., 240.));
    EXPECT_EQ(display.barValue, 3751);
    EXPECT_DOUBLE_EQ(state.progressPercent, 37.506);
    EXPECT_DOUBLE_EQ(state.lastPosSec, 90.);
    EXPECT_EQ(state.lastPosRow, 3);
    EXPECT_DOUBLE_EQ(state.lastTotalSec, 240.);
    EXPECT_TRUE(state.audioHasStarted);
    EXPECT_TRUE(display.testPlayStat);
}

TEST(ProgressDisplay, PercentIsClamped)
{
    TrackProgressState state;
    EXPECT_EQ(updateProgress(state, at(130., 1., 2.)).barValue, progressBarMaximum);
    EXPECT_EQ(state.progressPercent, 100.);
    EXPECT_EQ(updateProgress(state, at(-5., 1., 2.)).barValue, 0);
    EXPECT_EQ(state.progressPercent, 0.);
}

TEST(ProgressDisplay, AudioHasStartedOnceSomethingIsAboveZero)
{
    TrackProgressState state;
    updateProgress(state, at(0., 0., 240.));
    EXPECT_FALSE(state.audioHasStarted);
    updateProgress(state, at(0., 0.1, -1.));
    EXPECT_TRUE(state.audioHasStarted);
    state.resetForTrack();
    EXPECT_FALSE(state.audioHasStarted);
    updateProgress(state, at(0.1, -1., 0.));
    EXPECT_TRUE(state.audioHasStarted);
}

TEST(ProgressDisplay, MetricsAreStartedByTheFirstUpdateOnly)
{
    TrackProgressState state;
    EXPECT_TRUE(updateProgress(state, at(0., 0., 240.)).startMetricsTimer);
    EXPECT_FALSE(updateProgress(state, at(0., 1., 240.)).startMetricsTimer);
    state.resetForTrack();
    EXPECT_FALSE(updateProgress(state, at(0., 1., 240.)).startMetricsTimer);
}

TEST(ProgressDisplay, PositionOfMinusOneLeavesLabelAndPositionAlone)
{
    TrackProgressState state;
    updateProgress(state, at(10., 24., 240.));
    const ProgressDisplay display = updateProgress(state, at(37.5, -1., 0.));
    EXPECT_FALSE(display.position);
    EXPECT_FALSE(display.testPlayStat);
    EXPECT_FALSE(display.saveResumePosition);
    EXPECT_EQ(display.barValue, 3750);
    EXPECT_DOUBLE_EQ(state.lastPosSec, 24.);
    EXPECT_DOUBLE_EQ(state.lastTotalSec, 240.);
}

TEST(ProgressDisplay, ANewTrackKeepsThePositionForARestartOfItsRow)
{
    TrackProgressState state;
    updateProgress(state, at(50., 120., 240.));
    state.resetForTrack();
    EXPECT_EQ(state.progressPercent, 0.);
    EXPECT_EQ(state.lastTotalSec, 0.);
    EXPECT_DOUBLE_EQ(state.lastPosSec, 120.);
    EXPECT_EQ(state.lastPosRow, 3);
}

TEST(ProgressDisplay, PositionText)
{
    TrackProgressState state;
    EXPECT_EQ(updateProgress(state, at(1., 65.9, 3725.)).position, (PositionDisplay{u"1:05 / 62:05"_s, {}}));
    EXPECT_EQ(updateProgress(state, at(1., 5., 0.5)).position->text, u"0:05"_s);
    EXPECT_EQ(updateProgress(state, at(1., 5., -1.)).position->text, u"0:05"_s);
}

TEST(ProgressDisplay, ItemsDurationStandsInForTheTotal)
{
    TrackProgressState state;
    ProgressFacts facts = at(1., 5., -1.);
    facts.itemDurationSec = 100.;
    EXPECT_EQ(updateProgress(state, facts).position->text, u"0:05 / 1:40"_s);
    facts.totalSec = 60.;
    EXPECT_EQ(updateProgress(state, facts).position->text, u"0:05 / 1:00"_s);
}

TEST(ProgressDisplay, OtherSpeedsAreNamed)
{
    TrackProgressState state;
    ProgressFacts facts = at(1., 5., 120.);
    facts.speedRatio = 1.5;
    auto position = updateProgress(state, facts).position;
    EXPECT_EQ(position->text, u"0:05 / 2:00 · 1.5×"_s);
    EXPECT_EQ(position->toolTip, u"位置与总长按音源时间轴显示；以 1.5× 播放，全曲实际历时 1:20。"_s);
    facts.speedRatio = 1.25;
    facts.totalSec = 0.;
    position = updateProgress(state, facts).position;
    EXPECT_EQ(position->text, u"0:05 · 1.25×"_s);
    EXPECT_EQ(position->toolTip, u"位置按音源时间轴显示；当前以 1.25× 播放。"_s);
}

TEST(ProgressDisplay, SpeedWithinAMillionthIsNormal)
{
    TrackProgressState state;
    ProgressFacts facts = at(1., 5., 0.);
    facts.speedRatio = 1.0000005;
    EXPECT_EQ(updateProgress(state, facts).position, (PositionDisplay{u"0:05"_s, {}}));
    facts.speedRatio = 1.00001;
    EXPECT_EQ(updateProgress(state, facts).position->text, u"0:05 · 1.00×"_s);
    facts.speedRatio = 0.;
    EXPECT_EQ(updateProgress(state, facts).position->text, u"0:05"_s);
}

TEST(ProgressDisplay, SpeedRatioText)
{
    EXPECT_EQ(speedRatioText(2.), u"2.0"_s);
    EXPECT_EQ(speedRatioText(0.7), u"0.7"_s);
    EXPECT_EQ(speedRatioText(1.05), u"1.05"_s);
    EXPECT_EQ(speedRatioText(1.5 + 5e-10), u"1.5"_s);
    EXPECT_EQ(speedRatioText(1.5 + 5e-9), u"1.50"_s);
}

TEST(ProgressDisplay, EachTenIsLoggedOnceAndAJumpLogsTheHighest)
{
    TrackProgressState state;
    EXPECT_EQ(updateProgress(state, at(9.99, 1., 10.)).logText, QString());
    EXPECT_EQ(updateProgress(state, at(10., 1., 10.)).logText, u"进度 10%"_s);
    EXPECT_EQ(updateProgress(state, at(19., 1., 10.)).logText, QString());
    EXPECT_EQ(updateProgress(state, at(57., 5., 10.)).logText, u"进度 50%"_s);
    EXPECT_EQ(updateProgress(state, at(20., 2., 10.)).logText, QString());
    EXPECT_EQ(updateProgress(state, at(59., 5., 10.)).logText, QString());
    EXPECT_EQ(updateProgress(state, at(100., 10., 10.)).logText, u"进度 100%"_s);
    state.resetForTrack();
    EXPECT_EQ(updateProgress(state, at(10., 1., 10.)).logText, u"进度 10%"_s);
}

TEST(ProgressDisplay, ResumePositionIsSavedEveryFiveSeconds)
{
    TrackProgressState state;
    state.resetForTrack(60.);
    ProgressFacts facts = at(1., 64.9, 240.);
    facts.resumeTracked = true;
    EXPECT_FALSE(updateProgress(state, facts).saveResumePosition);
    facts.positionSec = 65.;
    EXPECT_TRUE(updateProgress(state, facts).saveResumePosition);
    facts.positionSec = 69.;
    EXPECT_FALSE(updateProgress(state, facts).saveResumePosition);
    facts.positionSec = 60.;
    EXPECT_TRUE(updateProgress(state, facts).saveResumePosition) << "a move backward is a move";
    facts.positionSec = 80.;
    facts.resumeTracked = false;
    EXPECT_FALSE(updateProgress(state, facts).saveResumePosition);
}

TEST(ProgressDisplay, ClockSurvivesAnyNumber)
{
    EXPECT_EQ(clockText(-3.), u"0:00"_s);
    EXPECT_EQ(clockText(59.999), u"0:59"_s);
    EXPECT_EQ(clockText(std::numeric_limits<double>::max()), u"16666666:40"_s);
}

TEST(ScanDisplay, TextWithAndWithoutATotal)
{
    TrackProgressState state;
    ScanDisplay display = updateScan(state, {9.9, 24., 240.});
    EXPECT_EQ(display.barValue, 990);
    EXPECT_EQ(display.text, u"正在扫描（解码）音源… 9%  0:24 / 4:00"_s);
    EXPECT_TRUE(display.logText.isEmpty());
    display = updateScan(state, {9.9, 24., 0.5});
    EXPECT_EQ(display.text, u"正在扫描（解码）音源… 9%"_s);
}

TEST(ScanDisplay, PercentIsClampedAndTensAreLoggedOnce)
{
    TrackProgressState state;
    EXPECT_EQ(updateScan(state, {-4., 0., 0.}).barValue, 0);
    EXPECT_TRUE(updateScan(state, {5., 0., 0.}).logText.isEmpty());
    EXPECT_EQ(updateScan(state, {31., 0., 0.}).logText, u"正在扫描（解码）音源… 31%"_s);
    EXPECT_TRUE(updateScan(state, {39., 0., 0.}).logText.isEmpty());
    const ScanDisplay display = updateScan(state, {140., 0., 0.});
    EXPECT_EQ(display.barValue, progressBarMaximum);
    EXPECT_EQ(display.logText, u"正在扫描（解码）音源… 100%"_s);
}

TEST(ScanDisplay, ASecondScanLogsAgain)
{
    TrackProgressState state;
    updateScan(state, {100., 0., 0.});
    EXPECT_TRUE(updateScan(state, {1., 0., 0.}).logText.isEmpty());
    EXPECT_FALSE(updateScan(state, {10., 0., 0.}).logText.isEmpty());
}

} // namespace
