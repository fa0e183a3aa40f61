#include "engine/command_line.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

using Change = std::function<void(EngineArgsInput &)>;

EngineArgsInput plainInput()
{
    EngineArgsInput input;
    input.parentPid = 4711;
    input.vizMode = 0;
    return input;
}

QString joined(const EngineArgsInput &input)
{
    return buildEngineArgs(input).args.join(u'|');
}

struct Row
{
    const char *name;
    Change change;
    const char *expected;
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.name;
}

class CommandLineRow : public testing::TestWithParam<Row>
{
};

TEST_P(CommandLineRow, GivesExactlyTheseArguments)
{
    EngineArgsInput input = plainInput();
    GetParam().change(input);
    EXPECT_EQ(joined(input).toStdString(), GetParam().expected);
}

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

// One row of the order table after the other, each with its borders.
const Row rows[] = {
    {"SourceStream", [](auto &) {}, "-stream|-parent-pid|4711|-gapless|off"},
    {"SourceFile", [](auto &i) { i.file = u"/m/a b.flac"_s; },
     "-i|/m/a b.flac|-parent-pid|4711|-gapless|off"},
    {"SourceCue",
     [](auto &i) {
         i.cuePath = u"/m/c.cue"_s;
         i.file = u"/m/a.flac"_s;
         i.track = 3;
     },
     "-cue|/m/c.cue|-track|3|-parent-pid|4711|-gapless|off"},
    {"SourceCueWithoutTrack", [](auto &i) { i.cuePath = u"/m/c.cue"_s; },
     "-cue|/m/c.cue|-parent-pid|4711|-gapless|off"},
    {"SourceIsoBeatsCueAndFile",
     [](auto &i) {
         i.isoPath = u"/m/d.iso"_s;
         i.cuePath = u"/m/c.cue"_s;
         i.file = u"/m/a.flac"_s;
         i.track = 1;
     },
     "-iso|/m/d.iso|-track|1|-parent-pid|4711|-gapless|off"},
    {"SourceIsoNegativeTrack",
     [](auto &i) {
         i.isoPath = u"/m/d.iso"_s;
         i.track = -1;
     },
     "-iso|/m/d.iso|-parent-pid|4711|-gapless|off"},
    {"SourceFileIgnoresTrack",
     [](auto &i) {
         i.file = u"a"_s;
         i.track = 5;
     },
     "-i|a|-parent-pid|4711|-gapless|off"},
    {"DspPlugins", [](auto &i) { i.dspPlugins = true; },
     "-stream|-parent-pid|4711|-dsp-plugins-on|-gapless|off"},
    {"Prefetch", [](auto &i) { i.prefetchDecode = true; },
     "-stream|-parent-pid|4711|-prefetch|on|-gapless|off"},
    {"Spectrum", [](auto &i) { i.vizMode = 1; }, "-stream|-parent-pid|4711|-spectrum|on|-gapless|off"},
    {"Scope", [](auto &i) { i.vizMode = 2; }, "-stream|-parent-pid|4711|-scope|on|-gapless|off"},
    {"SpectrumAndScope", [](auto &i) { i.vizMode = 3; },
     "-stream|-parent-pid|4711|-spectrum|on|-scope|on|-gapless|off"},
    {"StartOfExactlyHalfASecondIsNeverSent", [](auto &i) { i.startSec = 0.5; },
     "-stream|-parent-pid|4711|-gapless|off"},
    {"StartAboveHalfASecond", [](auto &i) { i.startSec = 0.5004; },
     "-stream|-parent-pid|4711|-start|0.500|-gapless|off"},
    {"StartHasThreeDecimals", [](auto &i) { i.startSec = 83.25; },
     "-stream|-parent-pid|4711|-start|83.250|-gapless|off"},
    {"StartNotANumber", [](auto &i) { i.startSec = nan; }, "-stream|-parent-pid|4711|-gapless|off"},
    {"StartInfinite", [](auto &i) { i.startSec = infinity; }, "-stream|-parent-pid|4711|-gapless|off"},
    {"EffectsForcePcm", [](auto &i) { i.effectsAudible = true; },
     "-stream|-parent-pid|4711|-pcm|-gapless|off"},
    {"PrimaryDevice", [](auto &i) { i.primaryDevice = u"hw:1,0"_s; },
     "-stream|-parent-pid|4711|-dev|hw:1,0|-gapless|off"},
    {"NoModeComboIsStandard",
     [](auto &i) {
         i.mode.clear();
         i.primaryDevice = u"pulse"_s;
     },
     "-stream|-parent-pid|4711|-dev|pulse|-gapless|off"},
    {"Differential",
     [](auto &i) {
         i.mode = u"differential"_s;
         i.primaryDevice = u"unused"_s;
         i.channelDevices = {u"a"_s, u"b"_s};
     },
     "-stream|-parent-pid|4711|-mode|differential|-devs|a;b|-gapless|off"},
    {"SurplusDevicesAreNotRead",
     [](auto &i) {
         i.mode = u"btl"_s;
         i.channelDevices = {u"a"_s, u"b"_s, u"c"_s, u"d"_s};
     },
     "-stream|-parent-pid|4711|-mode|btl|-devs|a;b|-gapless|off"},
    {"EmptyComboLeavesNoGap",
     [](auto &i) {
         i.mode = u"differential"_s;
         i.channelCount = 4;
         i.channelDevices = {u"a"_s, {}, u"c"_s, u"d"_s};
     },
     "-stream|-parent-pid|4711|-mode|differential|-devs|a;c;d|-gapless|off"},
    {"CrossoverSendsTheIntegerPart",
     [](auto &i) {
         i.mode = u"crossover"_s;
         i.crossoverHz = 2499.9;
         i.channelDevices = {u"a"_s, u"b"_s};
     },
     "-stream|-parent-pid|4711|-mode|crossover|-devs|a;b|-xo|2499|-gapless|off"},
    {"BridgedCrossoverOfTwoChannelsNeedsFourDevices",
     [](auto &i) {
         i.mode = u"crossover"_s;
         i.crossoverBridged = true;
         i.crossoverHz = 80;
         i.channelDevices = {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s};
     },
     "-stream|-parent-pid|4711|-mode|crossover|-devs|a;b;c;d|-xo|80|-gapless|off"},
    {"BridgeCountsForCrossoverOnly",
     [](auto &i) {
         i.mode = u"btl"_s;
         i.crossoverBridged = true;
         i.channelDevices = {u"a"_s, u"b"_s, u"c"_s};
     },
     "-stream|-parent-pid|4711|-mode|btl|-devs|a;b|-gapless|off"},
    {"PairsOfFiveChannelsNeedThreeDevices",
     [](auto &i) {
         i.mode = u"pairs"_s;
         i.channelCount = 5;
         i.channelDevices = {u"a"_s, u"b"_s, u"c"_s, u"d"_s};
     },
     "-stream|-parent-pid|4711|-mode|pairs|-devs|a;b;c|-gapless|off"},
    {"Rig", [](auto &i) { i.rigValue = u"bs775"_s; }, "-stream|-parent-pid|4711|-rig|bs775|-gapless|off"},
    {"DopAutoSendsNoFlag", [](auto &i) { i.dop = u"auto"_s; }, "-stream|-parent-pid|4711|-gapless|off"},
    {"DopForce", [](auto &i) { i.dop = u"force"_s; }, "-stream|-parent-pid|4711|-dop|force|-gapless|off"},
    {"NoDopComboIsAuto", [](auto &i) { i.dop.clear(); }, "-stream|-parent-pid|4711|-gapless|off"},
    {"OutputPath", [](auto &i) { i.outputPath = u"exclusive"_s; },
     "-stream|-parent-pid|4711|-output-path|exclusive|-gapless|off"},
    {"NoOutputPathComboIsAuto", [](auto &i) { i.outputPath.clear(); },
     "-stream|-parent-pid|4711|-gapless|off"},
    {"ExclusiveFallbackForcesAuto",
     [](auto &i) {
         i.outputPath = u"exclusive"_s;
         i.exclusiveFallback = true;
     },
     "-stream|-parent-pid|4711|-gapless|off"},
    {"PeakGuard", [](auto &i) { i.peakGuard = true; },
     "-stream|-parent-pid|4711|-peak-guard|on|-gapless|off"},
    {"DenoiseLight", [](auto &i) { i.denoiseTier = 1; },
     "-stream|-parent-pid|4711|-denoise|light|-keep-harmonics|off|-gapless|off"},
    {"DenoiseStandardWithHarmonics",
     [](auto &i) {
         i.denoiseTier = 2;
         i.keepHarmonics = true;
     },
     "-stream|-parent-pid|4711|-denoise|standard|-keep-harmonics|on|-gapless|off"},
    {"DenoiseTierThreeIsStrongHere", [](auto &i) { i.denoiseTier = 3; },
     "-stream|-parent-pid|4711|-denoise|strong|-keep-harmonics|off|-gapless|off"},
    {"DenoiseTierIsClamped", [](auto &i) { i.denoiseTier = 9; },
     "-stream|-parent-pid|4711|-denoise|strong|-keep-harmonics|off|-gapless|off"},
    {"DenoiseOffSendsNoHarmonics",
     [](auto &i) {
         i.denoiseTier = 0;
         i.keepHarmonics = true;
     },
     "-stream|-parent-pid|4711|-gapless|off"},
    {"DenoiseWithoutChoice", [](auto &i) { i.denoiseTier = -1; }, "-stream|-parent-pid|4711|-gapless|off"},
    {"Resample",
     [](auto &i) {
         i.resample = true;
         i.resampleQuality = u"best"_s;
     },
     "-stream|-parent-pid|4711|-resample|-src-quality|best|-gapless|off"},
    {"ResampleWithoutQualityCombo",
     [](auto &i) {
         i.resample = true;
         i.resampleQuality.clear();
     },
     "-stream|-parent-pid|4711|-resample|-src-quality|standard|-gapless|off"},
    {"StreamingReadRepeatsTheFlag", [](auto &i) { i.streamingRead = true; },
     "-stream|-parent-pid|4711|-stream|-gapless|off"},
    {"CrossfadeOfAHundredthSendsNoFlag", [](auto &i) { i.crossfadeSec = 0.01; },
     "-stream|-parent-pid|4711|-gapless|off"},
    {"Crossfade", [](auto &i) { i.crossfadeSec = 2.26; },
     "-stream|-parent-pid|4711|-crossfade|2.3|-gapless|off"},
    {"Gapless", [](auto &i) { i.gapless = true; }, "-stream|-parent-pid|4711|-gapless|on"},
    {"ReplayGainTrack", [](auto &i) { i.replayGainMode = 1; },
     "-stream|-parent-pid|4711|-gapless|off|-replaygain|track"},
    {"ReplayGainAlbum", [](auto &i) { i.replayGainMode = 2; },
     "-stream|-parent-pid|4711|-gapless|off|-replaygain|album"},
    {"ReplayGainAboveTwoIsAlbum", [](auto &i) { i.replayGainMode = 7; },
     "-stream|-parent-pid|4711|-gapless|off|-replaygain|album"},
    {"SpeedOfOneThousandthIsNoFlag", [](auto &i) { i.speedRatio = 1.001; },
     "-stream|-parent-pid|4711|-gapless|off"},
    {"SpeedOfTwoThousandthsIsSentAsOne", [](auto &i) { i.speedRatio = 1.002; },
     "-stream|-parent-pid|4711|-gapless|off|-speed|1.00|-pitch-lock|on"},
    {"SpeedBelowOne", [](auto &i) { i.speedRatio = 0.75; },
     "-stream|-parent-pid|4711|-gapless|off|-speed|0.75|-pitch-lock|on"},
    {"ForcedPcm", [](auto &i) { i.forcedPcm = true; }, "-stream|-parent-pid|4711|-gapless|off|-pcm"},
    {"ForcedPcmBesideEffectsIsSentTwice",
     [](auto &i) {
         i.forcedPcm = true;
         i.effectsAudible = true;
     },
     "-stream|-parent-pid|4711|-pcm|-gapless|off|-pcm"},
    {"PcmBits", [](auto &i) { i.pcmBits = u"float32"_s; },
     "-stream|-parent-pid|4711|-gapless|off|-pcm-bits|float32"},
    {"PcmFilter", [](auto &i) { i.pcmFilter = u"best"_s; },
     "-stream|-parent-pid|4711|-gapless|off|-pcm-filter|best"},
    {"PcmFilterStandardChosenByHandIsSent", [](auto &i) { i.pcmFilterExplicit = true; },
     "-stream|-parent-pid|4711|-gapless|off|-pcm-filter|standard"},
    {"PcmToDsd",
     [](auto &i) {
         i.pcmToDsd = true;
         i.pcmToDsdTargetHz = 11289600;
     },
     "-stream|-parent-pid|4711|-gapless|off|-pcm2dsd|-pcm2dsd-target|11289600"},
    {"PcmToDsdFallsBackToDsd64", [](auto &i) { i.pcmToDsd = true; },
     "-stream|-parent-pid|4711|-gapless|off|-pcm2dsd|-pcm2dsd-target|2822400"},
    {"PcmToDsdTapsBelow512AreAutomatic",
     [](auto &i) {
         i.pcmToDsd = true;
         i.pcmToDsdTaps = 511;
     },
     "-stream|-parent-pid|4711|-gapless|off|-pcm2dsd|-pcm2dsd-target|2822400"},
    {"PcmToDsdTaps",
     [](auto &i) {
         i.pcmToDsd = true;
         i.pcmToDsdTaps = 512;
     },
     "-stream|-parent-pid|4711|-gapless|off|-pcm2dsd|-pcm2dsd-target|2822400|-pcm2dsd-taps|512"},
    {"TapsWithoutPcmToDsd", [](auto &i) { i.pcmToDsdTaps = 4096; }, "-stream|-parent-pid|4711|-gapless|off"},
    {"Volume", [](auto &i) { i.volume = 0; }, "-stream|-parent-pid|4711|-gapless|off|-vol|0"},
    {"VolumeOfAHundredTouched", [](auto &i) { i.volumeTouched = true; },
     "-stream|-parent-pid|4711|-gapless|off|-vol|100"},
    {"VolumeIsClamped", [](auto &i) { i.volume = 130; }, "-stream|-parent-pid|4711|-gapless|off|-vol|100"},
    {"ExternalDecoder", [](auto &i) { i.extDecoder = u"/opt/my dec.so"_s; },
     "-stream|-parent-pid|4711|-gapless|off|-ext-decoder|/opt/my dec.so"},
};

INSTANTIATE_TEST_SUITE_P(Table, CommandLineRow, testing::ValuesIn(rows),
                         [](const auto &row) { return row.param.name; });

TEST(CommandLine, KeepsTheOrderWithEverythingOn)
{
    EngineArgsInput i = plainInput();
    i.cuePath = u"s.cue"_s;
    i.track = 2;
    i.dspPlugins = i.prefetchDecode = i.effectsAudible = i.peakGuard = i.keepHarmonics = true;
    i.vizMode = 3;
    i.startSec = 12;
    i.mode = u"crossover"_s;
    i.channelDevices = {u"a"_s, u"b"_s};
    i.crossoverHz = 100;
    i.rigValue = u"direct"_s;
    i.dop = u"native"_s;
    i.outputPath = u"shared"_s;
    i.denoiseTier = 3;
    i.resample = i.streamingRead = i.gapless = i.forcedPcm = i.pcmFilterExplicit = i.pcmToDsd = true;
    i.crossfadeSec = 3;
    i.replayGainMode = 2;
    i.speedRatio = 1.5;
    i.pcmBits = u"32"_s;
    i.pcmToDsdTargetHz = 5644800;
    i.pcmToDsdTaps = 8192;
    i.volume = 55;
    i.extDecoder = u"x.so"_s;
    EXPECT_EQ(joined(i).toStdString(),
              "-cue|s.cue|-track|2|-parent-pid|4711|-dsp-plugins-on|-prefetch|on|-spectrum|on|-scope|on|"
              "-start|12.000|-pcm|-mode|crossover|-devs|a;b|-xo|100|-rig|direct|-dop|native|"
              "-output-path|shared|-peak-guard|on|-denoise|strong|-keep-harmonics|on|-resample|"
              "-src-quality|standard|-stream|-crossfade|3.0|-gapless|on|-replaygain|album|-speed|1.50|"
              "-pitch-lock|on|-pcm|-pcm-bits|32|-pcm-filter|standard|-pcm2dsd|-pcm2dsd-target|5644800|"
              "-pcm2dsd-taps|8192|-vol|55|-ext-decoder|x.so");
}

TEST(CommandLine, AudibleEffectsLeaveALogLine)
{
    EngineArgsInput input = plainInput();
    EXPECT_TRUE(buildEngineArgs(input).notices.isEmpty());
    input.effectsAudible = true;
    const auto notices = buildEngineArgs(input).notices;
    ASSERT_EQ(notices.size(), 1);
    EXPECT_EQ(notices[0].kind, EngineArgsNotice::Kind::LogLine);
    EXPECT_TRUE(notices[0].text.startsWith(u"DSP 效果已启用"_s));
}

TEST(CommandLine, NoDeviceAtAllRefusesTheStart)
{
    EngineArgsInput input = plainInput();
    input.mode = u"differential"_s;
    input.channelDevices = {QString(), QString()};
    const EngineArgsResult result = buildEngineArgs(input);
    EXPECT_TRUE(result.args.isEmpty());
    ASSERT_EQ(result.notices.size(), 1);
    EXPECT_EQ(result.notices[0].kind, EngineArgsNotice::Kind::WarningBox);
    EXPECT_EQ(result.notices[0].title, u"未选择设备"_s);
    EXPECT_EQ(result.notices[0].text, u"差分/分频模式每个声道需要一台设备 —— 请先选择设备。"_s);
}

TEST(CommandLine, DevicesBehindTheNeededCountDoNotSaveTheStart)
{
    EngineArgsInput input = plainInput();
    input.mode = u"differential"_s;
    input.channelDevices = {QString(), QString(), u"third"_s};
    EXPECT_TRUE(buildEngineArgs(input).args.isEmpty());
}

TEST(CommandLine, TooFewDevicesWarnAndGoOn)
{
    EngineArgsInput input = plainInput();
    input.mode = u"btl"_s;
    input.channelCount = 4;
    input.channelDevices = {u"a"_s, {}, u"c"_s, {}};
    const EngineArgsResult result = buildEngineArgs(input);
    EXPECT_TRUE(result.args.contains(u"a;c"_s));
    ASSERT_EQ(result.notices.size(), 1);
    EXPECT_EQ(result.notices[0].title, u"设备数量不足"_s);
    EXPECT_TRUE(result.notices[0].text.startsWith(u"该模式需要 4 台设备（每个声道一台），目前只选了 2 台"_s));
}

TEST(CommandLine, TooFewDevicesForPairsHaveTheirOwnWords)
{
    EngineArgsInput input = plainInput();
    input.mode = u"pairs"_s;
    input.channelCount = 5;
    input.channelDevices = {u"a"_s};
    const EngineArgsResult result = buildEngineArgs(input);
    ASSERT_EQ(result.notices.size(), 1);
    EXPECT_TRUE(
        result.notices[0].text.startsWith(u"pairs 模式需要 3 台设备（每对声道一台），目前只选了 1 台"_s));
    EXPECT_FALSE(result.args.isEmpty());
}

TEST(CommandLine, BridgedCrossoverWarnsBelowTwiceTheChannels)
{
    EngineArgsInput input = plainInput();
    input.mode = u"crossover"_s;
    input.crossoverBridged = true;
    input.channelDevices = {u"a"_s, u"b"_s, u"c"_s};
    const auto notices = buildEngineArgs(input).notices;
    ASSERT_EQ(notices.size(), 1);
    EXPECT_TRUE(notices[0].text.contains(u"需要 4 台"_s));
}

TEST(CommandLine, ARunningSessionIsToldOfTheFramesThatChanged)
{
    EXPECT_EQ(vizModeLines(1, 3), QStringList{u"scope on"_s});
    EXPECT_EQ(vizModeLines(3, 1), QStringList{u"scope off"_s});
    EXPECT_EQ(vizModeLines(0, 1), QStringList{u"spectrum on"_s});
    EXPECT_EQ(vizModeLines(1, 2), (QStringList{u"spectrum off"_s, u"scope on"_s}));
    EXPECT_TRUE(vizModeLines(2, 2).isEmpty());
}

TEST(CommandLine, ListHoldsNoQuotesButThePrintedCopyDoes)
{
    EngineArgsInput input = plainInput();
    input.file = u"/m/two words.flac"_s;
    const QStringList args = buildEngineArgs(input).args;
    EXPECT_EQ(args[1], u"/m/two words.flac"_s);
    EXPECT_EQ(printableCommand(u"/usr/bin/engine"_s, args),
              u"/usr/bin/engine -i \"/m/two words.flac\" -parent-pid 4711 -gapless off"_s);
}

} // namespace
