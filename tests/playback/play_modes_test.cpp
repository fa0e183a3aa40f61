// Loop, speed, sleep, and the table of waits.
#include "playback/ab_loop.h"
#include "playback/play_speed.h"
#include "playback/sleep_timer.h"
#include "playback/track_start.h"
#include "playback/transport_times.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(AbLoop, AnEndThatDoesNotComeAfterTheBeginningIsUnsound)
{
    EXPECT_TRUE((AbLoopState{1., 1.001}).isSound());
    EXPECT_TRUE((AbLoopState{0., 5.}).isSound()) << "from the very beginning";
    EXPECT_FALSE((AbLoopState{5., 5.}).isSound()) << "B equal to A";
    EXPECT_FALSE((AbLoopState{6., 5.}).isSound());
    EXPECT_FALSE((AbLoopState{-1., 5.}).isSound());
    EXPECT_FALSE((AbLoopState{-1., 5.}).isComplete());
    EXPECT_TRUE((AbLoopState{-1., 5.}).isMarked());
    EXPECT_FALSE(AbLoopState().isMarked());
}

TEST(AbLoop, TheLineHasThreeDecimals)
{
    EXPECT_EQ(abLoopLine({12.3456, 60.}), u"ab 12.346 60.000"_s);
}

TEST(AbLoop, TheClearedSentenceNamesTheOrderThatCameBack)
{
    EXPECT_TRUE(abClearedText(u"顺序 · 不循环"_s).contains(u"顺序 · 不循环"_s));
    EXPECT_NE(abClearedText({}), abClearedText(u"x"_s));
}

TEST(PlaySpeed, IsClamped)
{
    EXPECT_EQ(clampedSpeed(3.5), 3.);
    EXPECT_EQ(clampedSpeed(0.4), 0.5);
    EXPECT_EQ(clampedSpeed(1.25), 1.25);
    EXPECT_EQ(clampedSpeed(-INFINITY), 0.5);
    EXPECT_EQ(clampedSpeed(NAN), 1.) << "what is no number plays as it was recorded";
}

TEST(PlaySpeed, TheLineHasTwoDecimalsAndNormalSpeedIsSentAsWell)
{
    EXPECT_EQ(speedLine(1.), u"speed 1.00"_s);
    EXPECT_EQ(speedLine(1.255), u"speed 1.25"_s);
}

TEST(PlaySpeed, TheSentenceSaysWhetherItIsHeardAlready)
{
    EXPECT_TRUE(speedText(1.5, true).contains(u"1.5× （"_s)) << qPrintable(speedText(1.5, true));
    EXPECT_TRUE(speedText(1.5, false).endsWith(u"1.5×"_s));
}

TEST(SleepFade, FallsByATwentiethOfTheStartInWholeNumbers)
{
    EXPECT_EQ(sleepFadeVolume(40, 1), 38);
    EXPECT_EQ(sleepFadeVolume(40, 2), 36);
    EXPECT_EQ(sleepFadeVolume(40, 19), 2);
    EXPECT_EQ(sleepFadeVolume(7, 1), 7) << "7 / 20 is nothing in whole numbers";
    EXPECT_EQ(sleepFadeVolume(7, 3), 6);
    EXPECT_EQ(sleepFadeVolume(100, 19), 5);
}

TEST(SleepTimer, TheLabelShowsTheMinutesOrThatItIsOff)
{
    EXPECT_TRUE(sleepTimerText(45).contains(u"45"_s));
    EXPECT_EQ(sleepTimerText(0), sleepTimerText(-3));
}

TEST(Resume, OnlyAPlainFileIsEnteredInItsMiddle)
{
    PlaylistEntry entry;
    EXPECT_FALSE(tracksResume(entry));
    entry.path = u"/m/a.flac"_s;
    EXPECT_TRUE(tracksResume(entry));
    entry.cuePath = u"/m/a.cue"_s;
    EXPECT_FALSE(tracksResume(entry));
    entry.cuePath = u"stream"_s;
    EXPECT_FALSE(tracksResume(entry));
}

TEST(TransportTimes, AreTheTablesWaits)
{
    const TransportTimes times;
    EXPECT_EQ(times.leftover, 2000);
    EXPECT_EQ(times.leftoverTerminate, 1000);
    EXPECT_EQ(times.rebuild, 10000);
    EXPECT_EQ(times.rebuildKill, 1500);
    EXPECT_EQ(times.replace, 2000);
    EXPECT_EQ(times.stop, 5000);
    EXPECT_EQ(times.stopKill, 1500);
    EXPECT_EQ(times.close, 5000);
    EXPECT_EQ(times.closeTerminate, 1000);
    EXPECT_EQ(times.closeKill, 2000);
    EXPECT_EQ(times.fallbackStop, 1500);
    EXPECT_EQ(times.fallbackWait, 1000);
    EXPECT_EQ(times.ignoreAfterFallback, 2000);
    EXPECT_EQ(times.noAudio, 5000);
    EXPECT_EQ(times.sleepMinute, 60000);
    EXPECT_EQ(times.sleepFadeStep * sleepFadeSteps, 10000) << "ten seconds of fading";
}
