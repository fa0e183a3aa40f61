#include "playback/container_listing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ContainerListing, TheSuffixTellsTheContainer)
{
    EXPECT_TRUE(isContainerPath(u"/a/b.cue"_s));
    EXPECT_TRUE(isContainerPath(u"/a/b.CUE"_s));
    EXPECT_TRUE(isContainerPath(u"/a/b.Iso"_s));
    EXPECT_FALSE(isContainerPath(u"/a/b.cue.flac"_s));
    EXPECT_FALSE(isContainerPath(u"/a/cue"_s));
    EXPECT_EQ(listingFlag(u"a.CUE"_s), u"-cue-list"_s);
    EXPECT_EQ(listingFlag(u"a.iso"_s), u"-iso-list"_s);
}

TEST(ContainerListing, ASheetBecomesRows)
{
    const ContainerListing listing = parseCueListing(u"CUE\tAlbum\tArtist\n\n"
                                                     "TRACK\t1\t0.0\t61.5\t Eins \t Wer \t /m/a.wav \n"
                                                     "TRACK\t12\t61.5\t120\t100%2\t\t/m/a.wav\n",
                                                     u"/m/a.cue"_s);
    EXPECT_EQ(listing.logLines, QStringList{u"CUE: Album — Artist"_s});
    ASSERT_EQ(listing.rows.size(), 2);
    const PlaylistEntry &first = listing.rows.first();
    EXPECT_EQ(first.text, u"01. Eins — Wer"_s);
    EXPECT_EQ(first.path, u"/m/a.wav"_s);
    EXPECT_EQ(first.cuePath, u"/m/a.cue"_s);
    EXPECT_TRUE(first.isoPath.isEmpty());
    EXPECT_EQ(first.track, 1);
    EXPECT_EQ(first.startSec, 0.);
    EXPECT_EQ(first.endSec, 61.5);
    EXPECT_EQ(containerToolTip(first), u"/m/a.wav\n0 s → 61.5 s"_s);
    EXPECT_EQ(listing.rows.last().text, u"12. 100%2"_s);
}

TEST(ContainerListing, WithoutATitleTheFileNamesTheTrack)
{
    const ContainerListing listing = parseCueListing(u"TRACK\t3\t0\t1\t \t\t/m/a.wav\n", u"/m/a.cue"_s);
    ASSERT_EQ(listing.rows.size(), 1);
    EXPECT_EQ(listing.rows.first().text, u"03. a.wav"_s);
    EXPECT_TRUE(listing.logLines.isEmpty());
}

TEST(ContainerListing, AnAlbumWithoutAPerformerIsStillNamed)
{
    EXPECT_EQ(parseCueListing(u"CUE\tAlbum\n", u"a.cue"_s).logLines, QStringList{u"CUE: Album — "_s});
    EXPECT_TRUE(parseCueListing(u"CUE\n", u"a.cue"_s).logLines.isEmpty());
}

TEST(ContainerListing, AnImageBecomesRows)
{
    const ContainerListing listing = parseIsoListing(
        u"ISO\tx\t2\nTRACK\t1\t0\t10.25\nTRACK\t2\t10.25\t20\tZwei\tno field of ours\n", u"/m/disc.iso"_s);
    ASSERT_EQ(listing.logLines.size(), 1);
    EXPECT_TRUE(listing.logLines.first().contains(u"disc.iso"_s));
    ASSERT_EQ(listing.rows.size(), 2);
    EXPECT_EQ(listing.rows.first().text, u"01. disc.iso"_s);
    EXPECT_EQ(listing.rows.first().path, u"/m/disc.iso"_s);
    EXPECT_EQ(listing.rows.first().isoPath, u"/m/disc.iso"_s);
    EXPECT_TRUE(listing.rows.first().cuePath.isEmpty());
    EXPECT_EQ(listing.rows.last().text, u"02. Zwei"_s);
}

TEST(ContainerListing, LinesOfOtherShapesAreIgnored)
{
    for (const QString &line :
         {u"track\t1\t0\t1\tt\tp\tf"_s, u"TRACK\t1\t0\t1\tt\tp"_s, u"TRACK\tx\t0\t1\tt\tp\tf"_s,
          u"TRACK\t0\t0\t1\tt\tp\tf"_s, u"TRACK\t1\tnan\t1\tt\tp\tf"_s, u"TRACK\t1\t0\tinf\tt\tp\tf"_s,
          u" TRACK\t1\t0\t1\tt\tp\tf"_s, u"TRACK 1 0 1 t p f"_s, u"cannot open the sheet"_s, QString()})
        EXPECT_TRUE(parseCueListing(line, u"a.cue"_s).rows.isEmpty()) << qPrintable(line);
    EXPECT_TRUE(parseIsoListing(u"TRACK\t1\t0"_s, u"a.iso"_s).rows.isEmpty());
    EXPECT_TRUE(parseIsoListing(u"ISO\tx"_s, u"a.iso"_s).logLines.isEmpty());
}

TEST(ContainerListing, AFloodIsCut)
{
    const QString flood = u"TRACK\t1\t0\t1\tt\tp\tf\n"_s.repeated(mostContainerTracks + 5);
    EXPECT_EQ(parseCueListing(flood, u"a.cue"_s).rows.size(), mostContainerTracks);
    EXPECT_EQ(parseIsoListing(flood, u"a.iso"_s).rows.size(), mostContainerTracks);
}

TEST(ContainerListing, AFailureIsExplained)
{
    const QString failed = listingComplaint(u"/m/%2.cue"_s, -1000, u"[probe] timed out"_s);
    EXPECT_TRUE(failed.contains(u"/m/%2.cue"_s)) << qPrintable(failed);
    EXPECT_TRUE(failed.contains(u"rc=-1000"_s)) << qPrintable(failed);
    const QString empty = listingComplaint(u"/m/a.iso"_s, 1, u"first\nsecond\n"_s);
    EXPECT_TRUE(empty.contains(u"rc=1"_s)) << qPrintable(empty);
    EXPECT_TRUE(empty.contains(u"first | second"_s)) << qPrintable(empty);
    EXPECT_TRUE(listingComplaint(u"a.cue"_s, 0, {}).contains(u"完全没有输出"_s));
    EXPECT_LT(listingComplaint(u"a.cue"_s, 0, QString(100000, u'x')).size(), 400);
}
