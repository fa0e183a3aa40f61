// The English of what is said about the engine: exact, since reports and their readers rely on it.
#include <QTranslator>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Text
{
    const char *context;
    const char *source;
    const char *english;
};

void PrintTo(const Text &text, std::ostream *out)
{
    *out << text.context << ": " << text.english;
}

const Text texts[] = {
    {"ChainText", "位完美", "Bit-perfect"},
    {"ChainText", "混音+转换", "Mixer+convert"},
    {"ChainText", "系统混音", "OS mixer"},
    {"ChainText", "已转换", "Converted"},
    {"ChainText", "未知", "Unknown"},
    {"CommandLine",
     "DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。要 DSD "
     "直通，请把混响/音调/降噪/平衡/宽度全部关闭。",
     "DSP effects are active ⇒ this track is decoded to PCM (direct DSD and DSP are mutually exclusive: "
     "effects work in the PCM domain). For direct DSD, switch reverb/tone/denoise/balance/width all off."},
    {"CommandLine", "未选择设备", "No device selected"},
    {"CommandLine", "差分/分频模式每个声道需要一台设备 —— 请先选择设备。",
     "Differential/crossover modes need one device per channel — please select devices first."},
    {"CommandLine", "pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。",
     "pairs mode needs %1 devices (one per channel pair) but only %2 are selected; please add the missing "
     "ones before playing."},
    {"CommandLine",
     "该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— "
     "请补全列表后再播放。",
     "This mode needs %1 device(s) (one per channel) but only %2 selected; the missing channels shift the "
     "whole mapping — please complete the list before playing."},
    {"CommandLine", "设备数量不足", "Not enough devices"},
    {"ControlClosure", "[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账",
     "[control] closure: %1 command(s) were sent but this run has no engine session log -- the two ends "
     "cannot be reconciled"},
    {"ControlReport", "[控制] 发送 %1 用了 %2 ms（应小于 1 ms）",
     "[control] sending %1 took %2 ms (should be under 1 ms)"},
    {"ControlReport", "[控制] %1", "[control] %1"},
    {"DeviceReset", "设备复位 (-reset-device) 超时：%1", "reset device (-reset-device) timed out: %1"},
    {"EffectiveBits", "有效位：单位增益（样本原样通过）", "Effective bits: unity (samples untouched)"},
    {"EffectiveBits", "有效位：已耗尽（衰减过深）", "Effective bits: used up (attenuation too deep)"},
    {"EffectiveBits", "有效位：无损失，但增益会推高峰值（有削波风险）",
     "Effective bits: no loss, but the gain pushes peaks up (clipping risk)"},
    {"EffectiveBits", "有效位：不受影响（设备/端点音量，样本未缩放）",
     "Effective bits: unaffected (device/endpoint volume, samples are not scaled)"},
    {"EffectiveBits", "有效位：不受影响（DoP 流不做音量处理）",
     "Effective bits: unaffected (no volume processing on a DoP stream)"},
    {"EffectiveBits", "有效位：见日志（DSD 直通，使用设备混音器）",
     "Effective bits: see the log (DSD direct, device mixer used)"},
    {"EffectiveBits", "有效位：由软件增益决定（见下一行）",
     "Effective bits: determined by the software gain (see the next line)"},
    {"EffectiveBits", "有效位：约 %1 位（软件衰减之后）",
     "Effective bits: about %1 bit (after the software attenuation)"},
    {"EffectiveBits", "有效位：见日志", "Effective bits: see the log"},
    {"EngineLines", "正在学习噪声样本", "learning noise profile"},
    {"EngineLines", "噪声样本就绪", "noise profile ready"},
    {"EngineLines", "本曲无噪声，直接通过", "no noise in this track, passing through"},
    {"EngineLines", "正在学习噪声（约 1 秒）", "Learning noise (about 1 s)"},
    {"EngineLines", "电平/频谱已按输出延时对齐：%1 ms", "Level/spectrum aligned to output latency: %1 ms"},
    {"EngineLines", "未知", "Unknown"},
    {"EngineLines", "收到进度（PG）：已播放 %1 s / 共 %2 s",
     "Progress (PG) received: %1 s played / %2 s total"},
    {"EngineLines", "DSP 由调制器执行", "DSP is applied by the modulator"},
    {"EngineLines", "示波器：已收到第一帧（%1 个桶）", "Oscilloscope: first frame received (%1 buckets)"},
    {"EngineLocation", "程序同目录", "next to the program"},
    {"EngineLocation", "环境变量 KELP_PLAYER_BIN", "environment variable KELP_PLAYER_BIN"},
    {"EngineLocation", "开发构建（build/）", "dev build (build/)"},
    {"EngineProbe",
     "探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行（KELP_GUI_PROBE_HANG 自检时属预期）",
     "Probe timed out (%1 ms): %2 -- that child process was ended and the UI continues (expected during the "
     "KELP_GUI_PROBE_HANG self-test)"},
    {"EngineProbe", "探测返回非零（%1）：%2", "Probe returned non-zero (%1): %2"},
    {"PlayerGuiWindow", "引擎日志: 由引擎放在它自己的默认位置",
     "Engine log: left to the engine's own default location"},
    {"PlayerGuiWindow", "上一个进程内会话 2 秒内没有收尾 —— 本进程可能仍占着独占设备，下一首可能打不开它",
     "The previous in-process session did not wind down within 2 s -- this process may still hold the "
     "exclusive device, so the next track may fail to open it"},
    {"PlayerGuiWindow", "播放器启动失败（会话 start 返回 %1）⇒ 回到未播放状态",
     "Player failed to start (session start returned %1) => back to the not-playing state"},
    {"ProgressDisplay", "进度 %1%", "Progress %1%"},
    {"ProgressDisplay", "正在扫描（解码）音源… %1%", "Scanning (decoding) the source… %1%"},
    {"SourceLabels", "音频：%1 · %2 位 · %3 声道 · %4 秒", "Audio: %1 · %2-bit · %3 ch · %4 s"},
    {"SourceLabels", " · DST：是", " · DST: yes"},
    {"SourceLabels", " · DST：否", " · DST: no"},
    {"SourceLabels", "%1 声道", "%1 ch"},
    {"TrackStart",
     "播放器在 %1 秒内没有收尾完成；进程内会话无法强杀（请等它收尾；逃生口: KELP_GUI_INPROC=0）",
     "The player did not finish its teardown within %1 s; an in-process session cannot be force-killed (wait "
     "for it to finish; escape hatch: KELP_GUI_INPROC=0)"},
};

class EngineTexts : public testing::TestWithParam<Text>
{
};

TEST_P(EngineTexts, StandExactly)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(u":/i18n/en.qm"_s));
    const Text &text = GetParam();
    EXPECT_EQ(translator.translate(text.context, text.source).toStdString(), text.english);
}

INSTANTIATE_TEST_SUITE_P(English, EngineTexts, testing::ValuesIn(texts));

} // namespace
