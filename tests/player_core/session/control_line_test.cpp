#include "player_core/session/control_line.h"

#include "player_core/session/control_reader.h"

#include <gtest/gtest.h>

namespace kelp_core::test {

TEST(ControlLineTest, PathsAreTheRestOfTheLineAsItStands)
{
    EXPECT_EQ(parseControlLine("load /a  b.flac").path, "/a  b.flac");
    EXPECT_EQ(parseControlLine("load /a.flac \r\n").path, "/a.flac ");
    const ControlLine at = parseControlLine("loadat 12.500 /x y.wav");
    EXPECT_EQ(at.kind, ControlKind::loadAt);
    EXPECT_DOUBLE_EQ(at.seconds, 12.5);
    EXPECT_EQ(at.path, "/x y.wav");
    const ControlLine cue = parseControlLine("load-cue 7 /s t.cue");
    EXPECT_EQ(cue.kind, ControlKind::loadCue);
    EXPECT_EQ(cue.track, 7);
    EXPECT_EQ(cue.path, "/s t.cue");
    EXPECT_EQ(parseControlLine("load-iso 2 /d.iso").kind, ControlKind::loadIso);
}

struct ControlCase
{
    const char *line;
    ControlKind kind;
};

class ControlKinds : public testing::TestWithParam<ControlCase>
{
};

TEST_P(ControlKinds, AreTold)
{
    const ControlLine line = parseControlLine(GetParam().line);
    EXPECT_EQ(line.kind, GetParam().kind) << GetParam().line;
    EXPECT_EQ(line.error.empty(), line.kind != ControlKind::malformed);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, ControlKinds,
    testing::Values(
        ControlCase{"stop", ControlKind::stop}, ControlCase{"pause", ControlKind::pause},
        ControlCase{"resume", ControlKind::resume}, ControlCase{"play", ControlKind::resume},
        ControlCase{"report", ControlKind::report}, ControlCase{"verify", ControlKind::verify},
        ControlCase{"vol 0", ControlKind::volume}, ControlCase{"vol 100", ControlKind::volume},
        ControlCase{"spectrum on", ControlKind::spectrum}, ControlCase{"scope off", ControlKind::scope},
        ControlCase{"", ControlKind::empty}, ControlCase{"\r\n", ControlKind::empty},
        ControlCase{"load", ControlKind::malformed}, ControlCase{"load ", ControlKind::malformed},
        ControlCase{"loadat x /a", ControlKind::malformed}, ControlCase{"loadat 1", ControlKind::malformed},
        ControlCase{"loadat -1 /a", ControlKind::malformed},
        ControlCase{"load-cue /a.cue", ControlKind::malformed}, ControlCase{"vol", ControlKind::malformed},
        ControlCase{"vol 101", ControlKind::malformed}, ControlCase{"vol 1 2", ControlKind::malformed},
        ControlCase{"vol 3.5", ControlKind::malformed}, ControlCase{"spectrum", ControlKind::malformed},
        ControlCase{"speed 0.50", ControlKind::speed}, ControlCase{"speed 3.00", ControlKind::speed},
        ControlCase{"speed 0.49", ControlKind::malformed}, ControlCase{"speed 3.01", ControlKind::malformed},
        ControlCase{"speed", ControlKind::malformed}, ControlCase{"speed fast", ControlKind::malformed},
        ControlCase{"speed nan", ControlKind::malformed}, ControlCase{"ab off", ControlKind::loopOff},
        ControlCase{"ab 1.000 2.500", ControlKind::loop}, ControlCase{"ab 0.000 0.500", ControlKind::loop},
        ControlCase{"ab 2.000 1.000", ControlKind::malformed},
        ControlCase{"ab 1.000 1.000", ControlKind::malformed},
        ControlCase{"ab -1.000 1.000", ControlKind::malformed},
        ControlCase{"ab 1.000", ControlKind::malformed}, ControlCase{"ab", ControlKind::malformed},
        ControlCase{"ab 1 2 3", ControlKind::malformed}, ControlCase{"ab 1 1e9", ControlKind::malformed},
        ControlCase{"ab off now", ControlKind::malformed}, ControlCase{"guard on", ControlKind::guard},
        ControlCase{"guard off", ControlKind::guard}, ControlCase{"guard", ControlKind::malformed},
        ControlCase{"fx eq on", ControlKind::notSupported}, ControlCase{"Stop", ControlKind::notSupported},
        ControlCase{"stopp", ControlKind::notSupported}));

TEST(ControlLineTest, OnlyAudibleWishesAreMissed)
{
    for (const char *neutral : {"fx balance 50", "fx width 100", "fx denoise off", "fx eq off",
                                "fx reverb 1 2 3", "fx hrtf az 3", "fx order a,b", "nonsense"})
        EXPECT_TRUE(parseControlLine(neutral).heardAbout.empty()) << neutral;
    for (const char *heard :
         {"fx balance 40", "fx width 90", "fx denoise deep", "fx eq on", "fx reverb on", "fx plugins on"})
        EXPECT_FALSE(parseControlLine(heard).heardAbout.empty()) << heard;
}

TEST(ControlLineTest, SpeedAndLoopBringTheirNumbers)
{
    EXPECT_DOUBLE_EQ(parseControlLine("speed 1.25").ratio, 1.25);
    const ControlLine loop = parseControlLine("ab 12.345 67.890\n");
    EXPECT_DOUBLE_EQ(loop.seconds, 12.345);
    EXPECT_DOUBLE_EQ(loop.toSec, 67.89);
    EXPECT_TRUE(parseControlLine("guard on").on);
    EXPECT_EQ(parseControlLine("ab 2.000 1.500").error,
              "The A/B loop is refused: point B (1.500 s) must come after point A (2.000 s).");
}

TEST(LineCutterTest, CutsHoweverTheBytesCome)
{
    const std::string text = "load /a.flac\nstop\r\n\nvol 3";
    for (size_t step = 1; step <= text.size(); ++step) {
        LineCutter cutter;
        std::vector<std::string> lines;
        std::string line;
        for (size_t at = 0; at < text.size(); at += step) {
            cutter.add(text.data() + at, std::min(step, text.size() - at));
            while (cutter.next(line))
                lines.push_back(line);
        }
        EXPECT_EQ(lines, (std::vector<std::string>{"load /a.flac", "stop\r", ""})) << step;
        EXPECT_EQ(cutter.rest(), "vol 3");
    }
}

TEST(LineCutterTest, LosesATooLongLineAndSaysSo)
{
    LineCutter cutter;
    std::string line;
    const std::string flood(10'000, 'x');
    for (int i = 0; i < 20; ++i) {
        cutter.add(flood.data(), flood.size());
        EXPECT_FALSE(cutter.next(line));
    }
    EXPECT_FALSE(cutter.takeLost()) << "not before its end";
    cutter.add("\nstop\n", 6);
    ASSERT_TRUE(cutter.next(line));
    EXPECT_EQ(line, "stop");
    EXPECT_TRUE(cutter.takeLost());
    EXPECT_FALSE(cutter.takeLost());
}

TEST(LineCutterTest, TakesALineOfTheFullLength)
{
    LineCutter cutter;
    std::string line;
    const std::string full(maxControlLine, 'y');
    cutter.add(full.data(), full.size());
    EXPECT_FALSE(cutter.next(line));
    cutter.add("\n", 1);
    ASSERT_TRUE(cutter.next(line));
    EXPECT_EQ(line.size(), maxControlLine);
    const std::string over = full + "z\n";
    cutter.add(over.data(), over.size());
    EXPECT_FALSE(cutter.next(line));
    EXPECT_TRUE(cutter.takeLost());
}

} // namespace kelp_core::test
