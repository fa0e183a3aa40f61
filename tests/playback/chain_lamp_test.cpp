#include "playback/chain_lamp.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

ChainLampFacts facts(const QString &verdict, const QString &chain)
{
    ChainLampFacts f;
    f.playing = true;
    if (!verdict.isNull())
        f.labels.insert(u"bit-perfect:"_s, verdict);
    if (!chain.isNull()) {
        f.labels.insert(u"chain:"_s, chain);
        f.chain = chainTextOf(u"chain: "_s + chain);
    }
    return f;
}

TEST(ChainLamp, IsGreenOnlyWithAYesAndACleanChain)
{
    const ChainLampView view = chainLamp(facts(u"YES: nothing changes a bit."_s, u"clean (x)"_s));
    EXPECT_EQ(view.lamp, ChainLamp::Green);
    EXPECT_EQ(view.word, u"位完美"_s);
}

TEST(ChainLamp, KeepsTheEnginesLineWhileTheTrackPlays)
{
    ChainLampFacts f = facts(u"YES: x"_s, u"clean (x)"_s);
    f.chainLine = u"chain: clean (x)"_s;
    EXPECT_EQ(chainLamp(f).line, u"chain: clean (x)"_s);
    f.playing = false;
    EXPECT_TRUE(chainLamp(f).line.isEmpty());
}

TEST(ChainLamp, TakesTheWorstOfWhatIsKnown)
{
    struct Case
    {
        QString verdict;
        QString chain;
        ChainLamp lamp;
    };
    const Case cases[] = {
        {u"YES: x"_s, u"OS mixer"_s, ChainLamp::Amber},
        {u"NO: x"_s, u"clean"_s, ChainLamp::Amber},
        {u"NO: x"_s, {}, ChainLamp::Amber},
        {{}, u"converted (x)"_s, ChainLamp::Amber},
        {u"YES: x"_s, {}, ChainLamp::Off},
        {{}, u"clean"_s, ChainLamp::Off},
        {{}, {}, ChainLamp::Off},
        {u"not known: x"_s, u"unknown (x)"_s, ChainLamp::Amber},
        {u"not known: x"_s, u"clean"_s, ChainLamp::Amber},
        {u"YES but NO"_s, u"clean"_s, ChainLamp::Amber},
    };
    for (const Case &c : cases) {
        const ChainLampView view = chainLamp(facts(c.verdict, c.chain));
        EXPECT_EQ(view.lamp, c.lamp) << qPrintable(c.verdict) << " / " << qPrintable(c.chain);
        EXPECT_NE(view.word, u"位完美"_s) << "the word never claims more than the verdict";
        EXPECT_FALSE(view.sentence.isEmpty());
    }
}

TEST(ChainLamp, ALostVerdictNamesTheStageInASentence)
{
    const QString stage = u"the volume stage scales the samples by -6.02 dB."_s;
    EXPECT_TRUE(chainLamp(facts(u"NO: "_s + stage, u"clean"_s)).sentence.contains(stage));
}

TEST(ChainLamp, AFailedCheckTakesTheGreenAway)
{
    ChainLampFacts f = facts(u"YES: x"_s, u"clean"_s);
    f.checkPassed = false;
    EXPECT_EQ(chainLamp(f).lamp, ChainLamp::Amber);
    EXPECT_EQ(chainLamp(f).word, u"非位完美"_s);
    f.checkPassed = true;
    EXPECT_EQ(chainLamp(f).lamp, ChainLamp::Green);
}

TEST(ChainLamp, IsDarkWhileNothingPlays)
{
    ChainLampFacts f = facts(u"YES: x"_s, u"clean"_s);
    f.playing = false;
    EXPECT_EQ(chainLamp(f), (ChainLampView{ChainLamp::Off, u"—"_s, {}, {}}));
}

} // namespace
