#include "engine/chain_block.h"

#include "engine/chain_text.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(ChainBlock, KeepsTheLinesBetweenTheMarkers)
{
    ChainBlock block;
    EXPECT_FALSE(collectChainLine(block, u"before"_s));
    EXPECT_FALSE(collectChainLine(block, u"== SIGNAL CHAIN BEGIN =="_s));
    EXPECT_TRUE(block.collecting);
    EXPECT_FALSE(collectChainLine(block, u"dsp: none"_s));
    EXPECT_FALSE(collectChainLine(block, u"LVL -1 -1"_s));
    EXPECT_TRUE(collectChainLine(block, u"SIGNAL CHAIN END"_s));
    EXPECT_FALSE(block.collecting);
    EXPECT_FALSE(collectChainLine(block, u"after"_s));
    EXPECT_EQ(block.chainBuffer, (QStringList{u"dsp: none"_s, u"LVL -1 -1"_s}));
}

TEST(ChainBlock, WithoutAnEndItCollectsUntilTheNextBegin)
{
    ChainBlock block;
    collectChainLine(block, u"SIGNAL CHAIN BEGIN"_s);
    collectChainLine(block, u"old"_s);
    collectChainLine(block, u"SIGNAL CHAIN BEGIN"_s);
    EXPECT_TRUE(block.chainBuffer.isEmpty());
    EXPECT_TRUE(block.collecting);
    collectChainLine(block, u"new"_s);
    EXPECT_EQ(block.chainBuffer, QStringList{u"new"_s});
}

TEST(ChainBlock, AnEndWithoutABeginStillShowsWhatThereIs)
{
    ChainBlock block;
    EXPECT_TRUE(collectChainLine(block, u"SIGNAL CHAIN END"_s));
    EXPECT_TRUE(block.chainBuffer.isEmpty());
}

TEST(ChainBlock, BothMarkersInOneLineAreAnEmptyBlock)
{
    ChainBlock block;
    EXPECT_TRUE(collectChainLine(block, u"SIGNAL CHAIN BEGIN SIGNAL CHAIN END"_s));
    EXPECT_FALSE(block.collecting);
    EXPECT_TRUE(block.chainBuffer.isEmpty());
}

TEST(ChainBlock, EndlessBlockStaysBounded)
{
    ChainBlock block;
    collectChainLine(block, u"SIGNAL CHAIN BEGIN"_s);
    for (qsizetype line = 0; line < mostChainLines + 10; ++line)
        collectChainLine(block, QString::number(line));
    EXPECT_EQ(block.chainBuffer.size(), mostChainLines);
    EXPECT_EQ(block.chainBuffer.first(), u"0"_s);
}

TEST(ChainLabels, TheTwelveStandInTheirOrder)
{
    QStringList names;
    for (const QLatin1StringView label : chainLabelNames)
        names.append(label);
    EXPECT_EQ(names,
              (QStringList{u"source:"_s, u"source format:"_s, u"device requested:"_s, u"output backend:"_s,
                           u"output format:"_s, u"output latency:"_s, u"dsp:"_s, u"speed:"_s, u"volume:"_s,
                           u"bit-perfect:"_s, u"chain:"_s, u"underruns:"_s}));
}

TEST(ChainLabels, EachOfTheTwelveIsStoredUnderItsName)
{
    ChainBlock block;
    for (const QLatin1StringView label : chainLabelNames)
        EXPECT_TRUE(storeChainLabel(block, QString(label) + u"  value of "_s + label));
    EXPECT_EQ(block.chainLabels.size(), 12);
    for (const QLatin1StringView label : chainLabelNames)
        EXPECT_EQ(block.chainLabels.value(label), u"value of "_s + label);
}

TEST(ChainLabels, OnlyTheBeginningCountsAndOnlyOnce)
{
    ChainBlock block;
    EXPECT_TRUE(storeChainLabel(block, u"chain: clean, volume: unity"));
    EXPECT_EQ(block.chainLabels, (QMap<QString, QString>{{u"chain:"_s, u"clean, volume: unity"_s}}));
    EXPECT_FALSE(storeChainLabel(block, u"the chain: clean"));
    EXPECT_FALSE(storeChainLabel(block, u"Chain: clean"));
    EXPECT_TRUE(storeChainLabel(block, u"underruns:"));
    EXPECT_EQ(block.chainLabels.value(u"underruns:"_s), QString());
}

TEST(ChainLabels, TextInTheOrderOfTheLabels)
{
    ChainBlock block;
    storeChainLabel(block, u"underruns: 0");
    storeChainLabel(block, u"source: a.flac");
    storeChainLabel(block, u"underruns: 12");
    EXPECT_EQ(chainLabelsText(block.chainLabels), u"source: a.flac\nunderruns: 12"_s);
    EXPECT_EQ(chainLabelsText({}), QString());
}

TEST(ChainText, FiveVerdicts)
{
    EXPECT_EQ(chainTextOf(u"chain: clean (no stage …)"), (ChainText{u"位完美"_s, false}));
    EXPECT_EQ(chainTextOf(u"chain: OS mixer AND format"), (ChainText{u"混音+转换"_s, true}));
    EXPECT_EQ(chainTextOf(u"[x] chain: OS mixer (it stands in the way)"), (ChainText{u"系统混音"_s, true}));
    EXPECT_EQ(chainTextOf(u"chain: converted"), (ChainText{u"已转换"_s, true}));
    EXPECT_EQ(chainTextOf(u"chain: unknown"), (ChainText{u"未知"_s, true}));
}

TEST(ChainText, NoKnownVerdictCountsAsBitPerfect)
{
    EXPECT_EQ(chainTextOf(u"chain: whatever"), (ChainText{u"位完美"_s, false}));
}

TEST(ChainTrack, FactsBelongToTheTrackTheyWereToldOf)
{
    ChainBlock block;
    beginChainTrack(block, false);
    EXPECT_FALSE(announceChainTrack(block)) << "the track that was begun";
    storeChainLabel(block, u"chain: clean"_s);
    EXPECT_EQ(currentChainLabels(block).value(u"chain:"_s), u"clean"_s);

    beginChainTrack(block, false);
    EXPECT_TRUE(currentChainLabels(block).isEmpty()) << "the last track's";
    EXPECT_EQ(block.chainLabels.value(u"chain:"_s), u"clean"_s) << "the map itself survives";
    storeChainLabel(block, u"volume: unity"_s);
    EXPECT_TRUE(currentChainLabels(block).isEmpty()) << "said before the engine has announced the new track";
    announceChainTrack(block);
    storeChainLabel(block, u"volume: unity"_s);
    EXPECT_EQ(currentChainLabels(block).keys(), QStringList{u"volume:"_s});
}

TEST(ChainTrack, AnEngineThatPlaysOnTellsOfTheNextTrackBeforeTheWindowKnows)
{
    ChainBlock block;
    beginChainTrack(block, false);
    announceChainTrack(block);
    storeChainLabel(block, u"chain: clean"_s);
    EXPECT_TRUE(announceChainTrack(block)) << "another source while this track plays";
    EXPECT_TRUE(currentChainLabels(block).isEmpty());
    storeChainLabel(block, u"chain: converted"_s);
    const int track = block.track;
    beginChainTrack(block, true);
    EXPECT_EQ(block.track, track);
    EXPECT_EQ(currentChainLabels(block).value(u"chain:"_s), u"converted"_s);
    beginChainTrack(block, true);
    EXPECT_TRUE(currentChainLabels(block).isEmpty()) << "nothing was told of this one in advance";
}

TEST(ChainTrack, ATrackThatTheListenerChoseOwesNothingToWhatWasToldBefore)
{
    ChainBlock block;
    beginChainTrack(block, false);
    announceChainTrack(block);
    announceChainTrack(block);
    storeChainLabel(block, u"chain: clean"_s);
    beginChainTrack(block, false);
    EXPECT_TRUE(currentChainLabels(block).isEmpty());
}

TEST(ChainTrack, TheBlocksFirstLineAnnouncesToo)
{
    ChainBlock block;
    beginChainTrack(block, false);
    storeChainLabel(block, u"source: /a.flac"_s);
    storeChainLabel(block, u"chain: clean"_s);
    EXPECT_EQ(currentChainLabels(block).size(), 2);
}

} // namespace
