#include "playback/now_playing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

NowPlayingFacts factsOf(const QString &path, const TagSummary &summary = {})
{
    NowPlayingFacts facts;
    facts.row = 4;
    facts.entry.path = path;
    facts.entry.text = u"Row text"_s;
    facts.summary = summary;
    return facts;
}

} // namespace

TEST(NowPlaying, WithoutARowTheLabelsAreIdle)
{
    NowPlayingFacts facts = factsOf(u"/m/a.flac"_s, {u"T"_s, u"A"_s, {}, {}, {}, {}});
    facts.row = -1;
    facts.disc = 2;
    const NowPlayingLabels labels = nowPlayingLabels(facts);
    EXPECT_EQ(labels.title, u"NO DISC"_s);
    EXPECT_EQ(labels.artistLine, u"选择曲目或导入音频"_s);
    EXPECT_EQ(labels.track, u"TRACK --"_s);
    EXPECT_EQ(labels.format, u"AUDIO"_s);
    EXPECT_FALSE(labels.showsDisc());
    EXPECT_EQ(labels.albumLine, QString());
}

TEST(NowPlaying, ThePositionHasTwoDigitsAtLeast)
{
    NowPlayingFacts facts = factsOf(u"/m/a.flac"_s);
    EXPECT_EQ(nowPlayingLabels(facts).track, u"TRACK 05"_s);
    facts.row = 122;
    EXPECT_EQ(nowPlayingLabels(facts).track, u"TRACK 123"_s);
}

TEST(NowPlaying, EveryLabelHasOneLineWhateverTheTagsHold)
{
    const QString two = u"One"_s + QChar(u'\0') + u"Two"_s;
    const NowPlayingLabels labels =
        nowPlayingLabels(factsOf(u"/m/a.flac"_s, {u"A\nB\r\u2028C"_s, two, u"D\tE"_s, {}, {}, {}}));
    EXPECT_EQ(labels.title, u"A B  C"_s);
    EXPECT_EQ(labels.artistLine, u"One, Two"_s) << "several values of one tag";
    EXPECT_EQ(labels.albumLine, u"D E"_s);
}

TEST(NowPlaying, TheDiscShowsWhenThePathNamesOne)
{
    NowPlayingFacts facts = factsOf(u"/m/a.flac"_s);
    EXPECT_FALSE(nowPlayingLabels(facts).showsDisc());
    facts.disc = 3;
    EXPECT_EQ(nowPlayingLabels(facts).disc, u"DISC 3"_s);
}

TEST(NowPlaying, TheFormatIsTheSuffixCutToFive)
{
    EXPECT_EQ(nowPlayingLabels(factsOf(u"/m/a.flac"_s)).format, u"FLAC"_s);
    EXPECT_EQ(nowPlayingLabels(factsOf(u"/m/a.b.wavpack"_s)).format, u"WAVPA"_s);
    EXPECT_EQ(nowPlayingLabels(factsOf(u"/m/a"_s)).format, QString());
}

TEST(NowPlaying, TheRowsTextStandsInForATitle)
{
    EXPECT_EQ(nowPlayingLabels(factsOf(u"/m/a.wav"_s)).title, u"Row text"_s);
    EXPECT_EQ(nowPlayingLabels(factsOf(u"/m/a.wav"_s, {u"Title"_s, {}, {}, {}, {}, {}})).title, u"Title"_s);
}

TEST(NowPlaying, TheArtistLineJoinsComposerAndArtist)
{
    struct Case
    {
        QString artist, composer, line;
    };
    const Case cases[] = {
        {u"Trio"_s, {}, u"Trio"_s},
        {u"Trio"_s, u"Ravel"_s, u"Ravel · Trio"_s},
        {{}, u"Ravel"_s, u"Ravel"_s},
        {{}, {}, {}},
    };
    for (const Case &c : cases)
        EXPECT_EQ(nowPlayingLabels(factsOf(u"/m/a.wav"_s, {{}, c.artist, {}, c.composer, {}, {}})).artistLine,
                  c.line);
}

TEST(NowPlaying, TheAlbumLineIsTheWorkWhereThereIsOne)
{
    struct Case
    {
        QString album, work, movement, line;
    };
    const Case cases[] = {
        {u"Album"_s, {}, {}, u"Album"_s},
        {u"Album"_s, {}, u"Allegro"_s, u"Album"_s},
        {u"Album"_s, u"Sonata"_s, {}, u"Sonata"_s},
        {u"Album"_s, u"Sonata"_s, u"Allegro"_s, u"Sonata · Allegro"_s},
    };
    for (const Case &c : cases)
        EXPECT_EQ(
            nowPlayingLabels(factsOf(u"/m/a.wav"_s, {{}, {}, c.album, {}, c.work, c.movement})).albumLine,
            c.line);
}

TEST(NowPlaying, ThePlayCountIsADashUntilPlaysAreCounted)
{
    NowPlayingFacts facts = factsOf(u"/m/a.wav"_s);
    EXPECT_EQ(nowPlayingLabels(facts).playCount, u"—"_s);
    facts.playCount = 0;
    EXPECT_EQ(nowPlayingLabels(facts).playCount, u"0"_s);
    facts.playCount = 12345;
    EXPECT_EQ(nowPlayingLabels(facts).playCount, u"12345"_s);
}
