#include "playback/preload.h"

#include <gtest/gtest.h>

namespace {

PreloadFacts remaining(double sec)
{
    PreloadFacts facts;
    facts.totalSec = 100.;
    facts.positionSec = 100. - sec;
    facts.gapless = true;
    facts.currentRow = 0;
    facts.nextRow = 1;
    facts.next.path = QStringLiteral("/m/b.flac");
    return facts;
}

} // namespace

TEST(Preload, GaplessLoadsOnceWithinItsWindow)
{
    PreloadFacts facts = remaining(1.49);
    EXPECT_TRUE(planPreload(facts).load);
    facts.pending = true;
    EXPECT_FALSE(planPreload(facts).load);
    EXPECT_FALSE(planPreload(remaining(1.51)).load);
    EXPECT_TRUE(planPreload(remaining(1.5)).load);
}

TEST(Preload, TooLateIsNotAtAll)
{
    EXPECT_FALSE(planPreload(remaining(0.01)).load);
    EXPECT_FALSE(planPreload(remaining(-1.)).load);
}

TEST(Preload, CrossfadeSetsTheWindow)
{
    PreloadFacts facts = remaining(7.5);
    facts.crossfadeSec = 8.;
    facts.gapless = false;
    EXPECT_TRUE(preloadNeedsNextRow(facts));
    EXPECT_TRUE(planPreload(facts).load);
    facts.crossfadeSec = 7.;
    EXPECT_FALSE(planPreload(facts).load);
}

TEST(Preload, NeverWithoutAWindowOrANextRow)
{
    PreloadFacts facts = remaining(1.);
    facts.gapless = false;
    EXPECT_FALSE(planPreload(facts).load);
    facts = remaining(1.);
    facts.nextRow = 0;
    EXPECT_FALSE(planPreload(facts).load) << "the same row again";
    facts.nextRow = -1;
    EXPECT_FALSE(planPreload(facts).load);
    facts = remaining(1.);
    facts.next.path.clear();
    EXPECT_FALSE(planPreload(facts).load);
    facts = remaining(1.);
    facts.totalSec = -1.;
    EXPECT_FALSE(planPreload(facts).load);
}

TEST(Preload, TheDiagnosisComesOnceATrack)
{
    PreloadFacts facts = remaining(2.9);
    EXPECT_TRUE(planPreload(facts).diagnose);
    facts.diagnosisDone = true;
    EXPECT_FALSE(planPreload(facts).diagnose);
    EXPECT_FALSE(planPreload(remaining(3.)).diagnose);
    EXPECT_FALSE(preloadNeedsNextRow(remaining(30.)));
}

namespace {

using namespace Qt::StringLiterals;

PlaylistEntry file(const QString &path)
{
    PlaylistEntry entry;
    entry.path = path;
    return entry;
}

PlaylistEntry sheetTrack(const QString &sheet, int track)
{
    PlaylistEntry entry = file(u"/m/"_s + sheet + u".wav"_s);
    entry.cuePath = u"/m/"_s + sheet + u".cue"_s;
    entry.track = track;
    return entry;
}

PlaylistEntry imageTrack(const QString &image, int track)
{
    PlaylistEntry entry = file(u"/m/"_s + image + u".iso"_s);
    entry.isoPath = entry.path;
    entry.track = track;
    return entry;
}

PlaylistEntry station()
{
    PlaylistEntry entry = file(u"http://host/x"_s);
    entry.cuePath = u"stream"_s;
    return entry;
}

} // namespace

struct PathCase
{
    const char *name;
    PlaylistEntry playing;
    PlaylistEntry next;
    bool meansIt;
};

class PreloadPath : public testing::TestWithParam<PathCase>
{
};

TEST_P(PreloadPath, MeansTheRowOrIsNotHandedOver)
{
    PreloadFacts facts = remaining(1.);
    facts.playing = GetParam().playing;
    facts.next = GetParam().next;
    const PreloadPlan plan = planPreload(facts);
    EXPECT_EQ(plan.load, GetParam().meansIt);
    EXPECT_EQ(plan.refuse, !GetParam().meansIt);
    facts.refusalTold = true;
    EXPECT_FALSE(planPreload(facts).refuse) << "said once a track";
    facts = remaining(1.51);
    facts.playing = GetParam().playing;
    facts.next = GetParam().next;
    EXPECT_FALSE(planPreload(facts).refuse) << "not due yet";
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PreloadPath,
    testing::Values(PathCase{"FileAfterFile", file(u"/m/a.wav"_s), file(u"/m/b.wav"_s), true},
                    PathCase{"NextOfTheSheet", sheetTrack(u"a"_s, 2), sheetTrack(u"a"_s, 3), true},
                    PathCase{"AnotherOfTheSheet", sheetTrack(u"a"_s, 2), sheetTrack(u"a"_s, 4), false},
                    PathCase{"AnEarlierOneOfTheSheet", sheetTrack(u"a"_s, 3), sheetTrack(u"a"_s, 2), false},
                    PathCase{"FirstOfAnotherSheet", sheetTrack(u"a"_s, 3), sheetTrack(u"b"_s, 1), false},
                    PathCase{"SheetAfterFile", file(u"/m/x.wav"_s), sheetTrack(u"a"_s, 1), false},
                    PathCase{"TheSheetsFileAfterIt", sheetTrack(u"a"_s, 2), file(u"/m/a.wav"_s), false},
                    PathCase{"AFileBesideTheSheet", sheetTrack(u"a"_s, 2), file(u"/m/b.wav"_s), false},
                    PathCase{"AFileElsewhere", sheetTrack(u"a"_s, 2), file(u"/n/b.wav"_s), true},
                    PathCase{"NextOfTheImage", imageTrack(u"a"_s, 2), imageTrack(u"a"_s, 3), true},
                    PathCase{"AnotherOfTheImage", imageTrack(u"a"_s, 2), imageTrack(u"a"_s, 5), false},
                    PathCase{"FirstOfTheImageAgain", imageTrack(u"a"_s, 2), imageTrack(u"a"_s, 1), false},
                    PathCase{"FirstOfAnotherImage", imageTrack(u"a"_s, 2), imageTrack(u"b"_s, 1), true},
                    PathCase{"SecondOfAnotherImage", imageTrack(u"a"_s, 1), imageTrack(u"b"_s, 2), false},
                    PathCase{"FirstOfAnImageAfterFile", file(u"/m/x.wav"_s), imageTrack(u"a"_s, 1), true},
                    PathCase{"FirstOfAnImageAfterSheet", sheetTrack(u"a"_s, 1), imageTrack(u"b"_s, 1), true},
                    PathCase{"SecondOfAnImageAfterSheet", sheetTrack(u"a"_s, 1), imageTrack(u"b"_s, 2),
                             false},
                    PathCase{"FileAfterImage", imageTrack(u"a"_s, 1), file(u"/m/b.wav"_s), true},
                    PathCase{"Station", file(u"/m/a.wav"_s), station(), false},
                    PathCase{"FileAfterStation", station(), file(u"/m/a.wav"_s), true}),
    [](const testing::TestParamInfo<PathCase> &one) { return std::string(one.param.name); });

TEST(PreloadTaken, SeesThePositionRunBackward)
{
    EXPECT_TRUE(preloadTaken({98.5, 100., 99.9, 0.1, 100.}));
    EXPECT_FALSE(preloadTaken({98.5, 100., 98.6, 98.7, 100.}));
    EXPECT_FALSE(preloadTaken({98.5, 100., 98.5, 97.6, 100.})) << "less than a second back";
    EXPECT_FALSE(preloadTaken({1., 1.2, 1., 0., 1.2})) << "a position of one second proves nothing";
}

TEST(PreloadTaken, SeesTheTotalChange)
{
    EXPECT_TRUE(preloadTaken({0.9, 1.5, 0.9, 0.2, 200.}));
    EXPECT_FALSE(preloadTaken({0.9, 1.5, 0.9, 5., 200.})) << "no longer at the beginning of a track";
    EXPECT_FALSE(preloadTaken({0.9, 200., 0.9, 0.9, 200.4}));
    EXPECT_FALSE(preloadTaken({0.9, 1.5, 0.9, 0.2, -1.}));
}

TEST(PreloadTaken, SeesTheChangeBetweenTwoTracksOfTwoSeconds)
{
    EXPECT_TRUE(preloadTaken({0.55, 2., 1.95, 0.05, 2.})) << "handed over at its beginning already";
    EXPECT_FALSE(preloadTaken({0.55, 2., 0.55, 0.6, 2.}));
}

TEST(PreloadTaken, IsNotSeenInALoopsJump)
{
    EXPECT_FALSE(preloadTaken({98.5, 100., 99.5, 10., 100., 10.}));
    EXPECT_FALSE(preloadTaken({98.5, 100., 99.5, 40., 100., 10.}));
    EXPECT_TRUE(preloadTaken({98.5, 100., 99.5, 0.1, 100., 10.})) << "before the loop";
    EXPECT_TRUE(preloadTaken({98.5, 100., 99.5, 0.1, 200., 0.})) << "another length";
}

TEST(PreloadTaken, AnEndThatNamesThePreloadedTrackIsItsEnd)
{
    const QString first = u"/m/a.wav"_s, second = u"/m/b.wav"_s;
    EXPECT_TRUE(isOfPreloadedTrack(second, first, second));
    EXPECT_TRUE(isOfPreloadedTrack(u"b.wav"_s, first, second)) << "an engine may name the file alone";
    EXPECT_FALSE(isOfPreloadedTrack(first, first, second));
    EXPECT_FALSE(isOfPreloadedTrack(first, first, first)) << "the same file twice";
    EXPECT_FALSE(isOfPreloadedTrack(u"/m/a.cue"_s, first, second)) << "neither";
    EXPECT_FALSE(isOfPreloadedTrack(u"b.wav"_s, u"/n/b.wav"_s, second)) << "it may be either";
}
