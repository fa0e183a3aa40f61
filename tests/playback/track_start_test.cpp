#include "playback/track_start.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TrackStartFacts plainFile()
{
    TrackStartFacts facts;
    facts.entry.path = u"/m/a b.flac"_s;
    facts.absolutePath = facts.entry.path;
    facts.row = 1;
    facts.opened = facts.wanted = {u"hw:0"_s, u"standard"_s, false};
    return facts;
}

TrackStartFacts sheetTrack(int track)
{
    TrackStartFacts facts = plainFile();
    facts.entry.cuePath = u"/m/a.cue"_s;
    facts.entry.track = track;
    return facts;
}

TrackStartFacts live(TrackStartFacts facts)
{
    facts.sessionLive = true;
    facts.sessionRuns = true;
    return facts;
}

} // namespace

TEST(TrackStart, AFirstPlainFileStartsEmptyAndIsLoaded)
{
    const TrackStartPlan plan = planTrackStart(plainFile());
    EXPECT_FALSE(plan.reuse);
    EXPECT_FALSE(plan.rebuild);
    EXPECT_TRUE(plan.argFile.isEmpty());
    EXPECT_EQ(plan.loadLine, u"load /m/a b.flac"_s);
    EXPECT_TRUE(plan.becomesLive);
}

TEST(TrackStart, ALiveSessionOfTheSameShapeIsReused)
{
    const TrackStartPlan plan = planTrackStart(live(plainFile()));
    EXPECT_TRUE(plan.reuse);
    EXPECT_FALSE(plan.rebuild);
    EXPECT_EQ(plan.loadLine, u"load /m/a b.flac"_s);
}

TEST(TrackStart, EachChangeOfShapeCostsARebuild)
{
    for (const auto change :
         {+[](SessionShape &s) { s.device = u"hw:1"_s; }, +[](SessionShape &s) { s.mode = u"btl"_s; },
          +[](SessionShape &s) { s.effectsAudible = true; }}) {
        TrackStartFacts facts = live(plainFile());
        change(facts.wanted);
        const TrackStartPlan plan = planTrackStart(facts);
        EXPECT_TRUE(plan.rebuild);
        EXPECT_FALSE(plan.reuse);
    }
}

TEST(TrackStart, ASessionThatHasEndedNeedsNoStop)
{
    TrackStartFacts facts = plainFile();
    facts.sessionLive = true;
    facts.wanted.device = u"hw:1"_s;
    const TrackStartPlan plan = planTrackStart(facts);
    EXPECT_FALSE(plan.rebuild);
    EXPECT_FALSE(plan.reuse);
}

TEST(TrackStart, AFirstContainerTrackIsNamedOnTheCommandLineAlone)
{
    TrackStartFacts facts = plainFile();
    facts.entry.isoPath = u"/m/d.iso"_s;
    facts.entry.track = 4;
    const TrackStartPlan plan = planTrackStart(facts);
    EXPECT_EQ(plan.argIso, u"/m/d.iso"_s);
    EXPECT_EQ(plan.argTrack, 4);
    EXPECT_TRUE(plan.loadLine.isEmpty());
    EXPECT_TRUE(plan.becomesLive);
}

TEST(TrackStart, ReusedContainersAreLoadedByTrack)
{
    EXPECT_EQ(planTrackStart(live(sheetTrack(2))).loadLine, u"load-cue 2 /m/a.cue"_s);
    TrackStartFacts iso = live(plainFile());
    iso.entry.isoPath = u"/m/d.iso"_s;
    iso.entry.track = 5;
    EXPECT_EQ(planTrackStart(iso).loadLine, u"load-iso 5 /m/d.iso"_s);
}

TEST(TrackStart, AStationNeverReusesASession)
{
    TrackStartFacts facts = live(plainFile());
    facts.entry.cuePath = u"stream"_s;
    const TrackStartPlan plan = planTrackStart(facts);
    EXPECT_FALSE(plan.reuse);
    EXPECT_FALSE(plan.becomesLive);
    EXPECT_TRUE(plan.argCue.isEmpty());
    EXPECT_EQ(plan.argFile, facts.entry.path);
}

TEST(TrackStart, TheSameRowGoesOnWhereItWas)
{
    TrackStartFacts facts = plainFile();
    facts.lastPosSec = 65.5;
    facts.lastPosRow = 1;
    const TrackStartPlan plan = planTrackStart(facts);
    EXPECT_EQ(plan.loadLine, u"loadat 65.500 /m/a b.flac"_s);
    EXPECT_TRUE(plan.announcesResume);
    EXPECT_TRUE(resumeAnnouncement(plan.startSec).contains(u"1:05"_s));
    facts.lastPosRow = 0;
    EXPECT_EQ(planTrackStart(facts).loadLine, u"load /m/a b.flac"_s);
    facts.lastPosRow = 1;
    facts.lastPosSec = 0.5;
    EXPECT_EQ(planTrackStart(facts).startSec, -1.);
}

TEST(TrackStart, AReusedSessionStartsAtTheBeginning)
{
    TrackStartFacts facts = live(plainFile());
    facts.lastPosSec = 65.5;
    facts.lastPosRow = 1;
    EXPECT_EQ(planTrackStart(facts).startSec, -1.);
    EXPECT_EQ(planTrackStart(facts).loadLine, u"load /m/a b.flac"_s);
}

TEST(TrackStart, AStoredPositionCountsForTheRowFirstStarted)
{
    TrackStartFacts facts = plainFile();
    facts.resumeEnabled = true;
    facts.resumeFile = facts.absolutePath;
    facts.resumePosSec = 1.01;
    facts.lastStartedRow = 1;
    EXPECT_EQ(planTrackStart(facts).startSec, 1.01);
    facts.resumePosSec = 1.;
    EXPECT_EQ(planTrackStart(facts).startSec, -1.) << "exactly one second does not resume";
    facts.resumePosSec = 30.;
    facts.lastStartedRow = 0;
    EXPECT_EQ(planTrackStart(facts).startSec, -1.);
    facts.lastStartedRow = 1;
    facts.resumeFile = u"/m/other.flac"_s;
    EXPECT_EQ(planTrackStart(facts).startSec, -1.);
    facts.resumeFile = facts.absolutePath;
    facts.resumeEnabled = false;
    EXPECT_EQ(planTrackStart(facts).startSec, -1.);
}

TEST(TrackStart, TheTimeoutTextSaysWhatCanBeDone)
{
    EXPECT_NE(stopTimeoutText(true), stopTimeoutText(false));
    EXPECT_TRUE(stopTimeoutText(false).contains(u"KELP_GUI_INPROC=0"_s));
    EXPECT_TRUE(stopTimeoutText(true).contains(u'5'));
}

TEST(ControlLine, CarriesNoBreakUnlessItIsQueuedWhole)
{
    PlaylistEntry entry;
    const auto fits = [&entry](const QString &path, bool queued) {
        entry.path = path;
        return fitsControlLine(entry, queued);
    };
    for (const bool queued : {false, true}) {
        EXPECT_TRUE(fits(u"/m/a \"b\" 'c' \t%1.wav"_s, queued));
        EXPECT_EQ(fits(u"/m/a\nb.wav"_s, queued), queued);
        EXPECT_TRUE(fits(u"/m/a\rb.wav"_s, queued));
        EXPECT_FALSE(fits(u"/m/a\n"_s, queued)) << "what ends in a break loses it";
        EXPECT_FALSE(fits(u"/m/a\r"_s, queued));
    }
    entry.path = u"/m/a.wav"_s;
    entry.cuePath = u"/m/a\nb.cue"_s;
    EXPECT_FALSE(fitsControlLine(entry, false)) << "the sheet is what is loaded";
    entry.isoPath = u"/m/a.iso"_s;
    EXPECT_TRUE(fitsControlLine(entry, false));
}
