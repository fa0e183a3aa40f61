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

} // namespace
