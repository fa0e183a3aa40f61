// Frames of the instruments, and progress.
#include "engine/line_support.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace line_effect;
using namespace line_support;

namespace {

TEST(Scope, FirstFrameOfATrackIsLogged)
{
    Engine engine;
    EXPECT_TRUE(logged(engine.say(u"WVF 44100 257 00"_s)).isEmpty());
    EXPECT_EQ(logged(engine.say(u"WVF 44100 1 00ff"_s)), QStringList{u"示波器：已收到第一帧（1 个桶）"_s});
    EXPECT_TRUE(logged(engine.say(u"WVF 44100 1 00ff"_s)).isEmpty());
    engine.state.resetForTrack();
    EXPECT_EQ(logged(engine.say(u"WVF 44100 1 00ff"_s)).size(), 1);
}

TEST(Scope, IsNotDelayedByTheLatency)
{
    Engine engine;
    engine.say(u"output latency: 90"_s);
    EXPECT_TRUE(has<ShowScope>(engine.say(u"WVF 44100 1 00ff"_s)));
}

TEST(Scope, ChannelTwoIsTheFirstWhenThereIsNone)
{
    Engine engine;
    auto frame = all<ShowScope>(engine.say(u"12:00 WVF 44100 1 00ff"_s)).at(0).frame;
    EXPECT_EQ(frame.channel2, frame.channel1);
    frame = all<ShowScope>(engine.say(u"WVF 44100 1 00ff ff00"_s)).at(0).frame;
    EXPECT_NE(frame.channel2, frame.channel1);
    EXPECT_EQ(frame.channel2.first.size(), 1U);
}

TEST(Scope, NoneClearsAndSettingsDoNothing)
{
    Engine engine;
    EXPECT_TRUE(has<ClearScope>(engine.say(u"WVF none"_s)));
    for (const QString &line : {u"WVF cfg 44100 1 00ff"_s, u"WVF write x"_s, u"[x] WVF bad 0x8889000A"_s}) {
        const auto effects = engine.say(line);
        EXPECT_FALSE(has<ClearScope>(effects));
        EXPECT_FALSE(has<ShowScope>(effects));
        EXPECT_TRUE(logged(effects).isEmpty());
    }
    EXPECT_EQ(logged(engine.say(u"xWVF none"_s)), QStringList{u"xWVF none"_s});
}

TEST(Spectrum, NoneMeansDsdUnlessAllGoesToDsd)
{
    Engine engine;
    auto effects = engine.say(u"SPC none"_s);
    EXPECT_TRUE(has<ClearSpectrum>(effects));
    EXPECT_TRUE(has<ClearScope>(effects));
    EXPECT_FALSE(all<SetEffectsPath>(effects).at(0).pcmEffectsActive);
    EXPECT_TRUE(all<SetEffectsPath>(effects).at(0).dsdDirect);
    EXPECT_FALSE(has<ShowPanelStatus>(effects));

    engine.context.allToDsd = true;
    effects = engine.say(u"SPC none"_s);
    EXPECT_FALSE(all<SetEffectsPath>(effects).at(0).pcmEffectsActive);
    EXPECT_FALSE(all<SetEffectsPath>(effects).at(0).dsdDirect);
    EXPECT_EQ(all<ShowPanelStatus>(effects).at(0).text, u"DSP 由调制器执行"_s);
    EXPECT_EQ(logged(effects), QStringList{u"DSP 由调制器执行"_s});
    EXPECT_TRUE(logged(engine.say(u"SPC none"_s)).isEmpty()) << "said once";
    engine.say(u"SPC cfg"_s);
    EXPECT_EQ(logged(engine.say(u"SPC none"_s)).size(), 1);
}

TEST(Spectrum, WithoutAPanelOnlyTheViewsAreCleared)
{
    Engine engine;
    engine.context.hasEffectsPanel = false;
    engine.context.allToDsd = true;
    const auto effects = engine.say(u"SPC none"_s);
    EXPECT_TRUE(has<ClearSpectrum>(effects));
    EXPECT_FALSE(has<SetEffectsPath>(effects));
    EXPECT_TRUE(logged(effects).isEmpty());
    EXPECT_FALSE(has<SetEffectsPath>(engine.say(u"SPC 44100 1 ff"_s)));
}

TEST(Spectrum, StatusLinesActOnThePanelAndNotOnTheView)
{
    Engine engine;
    for (const QString &line : {u"SPC cfg 44100 64"_s, u"SPC write"_s, u"12:00 SPC cfg"_s}) {
        const auto effects = engine.say(line);
        EXPECT_TRUE(all<SetEffectsPath>(effects).at(0).pcmEffectsActive);
        EXPECT_FALSE(all<SetEffectsPath>(effects).at(0).dsdDirect);
        EXPECT_FALSE(has<ShowSpectrum>(effects));
        EXPECT_FALSE(has<ClearSpectrum>(effects));
    }
}

TEST(Spectrum, IsReadFromWhereverItStandsInTheLine)
{
    Engine engine;
    // Unlike the other forms: whatever stands in front of it.
    auto effects = engine.say(u"xSPC 44100 1 ff"_s);
    EXPECT_EQ(all<ShowSpectrum>(effects).at(0).frame.bandCount, 1);
    EXPECT_TRUE(logged(effects).isEmpty());
    effects = engine.say(u"[player] SPC zones low=4"_s);
    EXPECT_EQ(all<ShowSpectrumZones>(effects).at(0).zones.low, 4);
    EXPECT_FALSE(has<SetEffectsPath>(effects)) << "bounds say nothing of the samples' road";
}

TEST(Spectrum, AWaveformEndsItsLineBeforeTheSpectrumIsLookedFor)
{
    Engine engine;
    EXPECT_FALSE(has<ClearSpectrum>(engine.say(u"WVF cfg SPC none"_s)));
}

TEST(Spectrum, FramesGoToTheViewAfterTheLatency)
{
    Engine engine;
    auto effects = engine.say(u"SPC 44100 2 00ff"_s);
    EXPECT_EQ(all<ShowSpectrum>(effects).at(0).delayMs, 0.);
    EXPECT_EQ(all<ShowSpectrum>(effects).at(0).frame.bandCount, 2);
    EXPECT_TRUE(all<SetEffectsPath>(effects).at(0).pcmEffectsActive);
    engine.say(u"output latency: 90"_s);
    EXPECT_EQ(all<ShowSpectrum>(engine.say(u"SPC 44100 2 00ff"_s)).at(0).delayMs, 90.);
}

TEST(Spectrum, ABadFrameHasNoEffectOnViewAndPanel)
{
    Engine engine;
    for (const QString &line : {u"SPC 44100 129 "_s + QString(258, u'0'), u"SPC 44100 2 00f"_s, u"SPC ?"_s}) {
        const auto effects = engine.say(line);
        EXPECT_FALSE(has<ShowSpectrum>(effects));
        EXPECT_FALSE(has<SetEffectsPath>(effects));
        EXPECT_TRUE(logged(effects).isEmpty());
    }
}

TEST(Spectrum, ZonesGoToTheView)
{
    Engine engine;
    EXPECT_EQ(all<ShowSpectrumZones>(engine.say(u"SPC zones low=3 nyq=200"_s)).at(0).zones,
              (SpectrumZones{3, std::nullopt, 0}));
}

TEST(Progress, ReachesItsFormThroughThePlayersPrefix)
{
    Engine engine;
    const auto effects = engine.say(u"[player] PG 50 12.5 25"_s);
    EXPECT_EQ(all<ReceiveProgress>(effects).at(0).progress, (ProgressLine{50., 12.5, 25.}));
    EXPECT_EQ(logged(effects), QStringList{u"收到进度（PG）：已播放 12.5 s / 共 25.0 s"_s});
}

TEST(Progress, FirstOfATrackIsLoggedAndThreeWordsGiveNoTotal)
{
    Engine engine;
    auto effects = engine.say(u"PG 0 0.04"_s);
    EXPECT_EQ(all<ReceiveProgress>(effects).at(0).progress.totalSec, -1.);
    EXPECT_EQ(logged(effects), QStringList{u"收到进度（PG）：已播放 0.0 s / 共 未知 s"_s});
    EXPECT_TRUE(logged(engine.say(u"PG 1 1 100"_s)).isEmpty());
    engine.state.resetForTrack();
    EXPECT_EQ(logged(engine.say(u"PG 1 1 100"_s)).size(), 1);
}

TEST(Progress, BadOnesAreDroppedWithoutAWord)
{
    Engine engine;
    for (const QString &line : {u"PG 1"_s, u"[player] PG x y z"_s}) {
        const auto effects = engine.say(line);
        EXPECT_FALSE(has<ReceiveProgress>(effects));
        EXPECT_TRUE(logged(effects).isEmpty());
    }
    EXPECT_FALSE(engine.state.firstPgSeen);
}

TEST(Progress, PercentForm)
{
    Engine engine;
    const auto effects = engine.say(u"Progress: 37.5%"_s);
    EXPECT_EQ(all<UpdatePercent>(effects).at(0).percent, 37.5);
    EXPECT_TRUE(logged(effects).isEmpty());
    EXPECT_EQ(logged(engine.say(u"[player] Progress: 37.5%"_s)).size(), 1);
}

} // namespace
