// Facts that stand somewhere in a line: most of them leave the line to the later steps.
#include "engine/line_prefix.h"
#include "engine/line_steps.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace line_step {

namespace {

struct DenoiseRow
{
    QLatin1StringView words;
    const char *source;
};
constexpr const char *learning = QT_TRANSLATE_NOOP("EngineLines", "正在学习噪声样本");
constexpr std::array denoiseRows = {
    DenoiseRow{"denoise ready"_L1, QT_TRANSLATE_NOOP("EngineLines", "噪声样本就绪")},
    DenoiseRow{"denoise inactive"_L1, QT_TRANSLATE_NOOP("EngineLines", "本曲无噪声，直接通过")},
    DenoiseRow{"denoise bootstrap"_L1, QT_TRANSLATE_NOOP("EngineLines", "正在学习噪声（约 1 秒）")},
    DenoiseRow{"denoise scan"_L1, learning},
    DenoiseRow{"denoise: learning"_L1, learning},
};

} // namespace

Next readScan(Reading &line)
{
    if (!line.text.startsWith("SCAN "_L1))
        return Next::Continue;
    if (const std::optional<ScanLine> scan = parseScan(line.text))
        line.add(line_effect::ShowScan{*scan});
    return Next::End;
}

Next readSource(Reading &line)
{
    const auto rest = embeddedRest(line.text, "SRC "_L1);
    if (!rest || !line.context.hasSourceLabel)
        return Next::Continue;
    if (const std::optional<SourceInfo> source = parseSource(*rest)) {
        line.state.sourceInfo = source;
        const bool newTrack = announceChainTrack(line.state.chain);
        line.add(line_effect::ShowSource{*source, sourceLabels(*source), newTrack});
    }
    return Next::Continue;
}

Next readLevels(Reading &line)
{
    if (const auto rest = embeddedRest(line.text, "LVL "_L1)) {
        if (const std::optional<LevelLine> levels = parseLevels(*rest))
            line.add(line_effect::ShowLevels{*levels, displayDelayMs(line.state)});
    }
    return Next::Continue;
}

Next readDenoise(Reading &line)
{
    if (!line.context.hasEffectsPanel)
        return Next::Continue;
    const auto *const row = std::ranges::find_if(
        denoiseRows, [&](const DenoiseRow &candidate) { return line.text.contains(candidate.words); });
    if (row != denoiseRows.end())
        line.add(line_effect::ShowPanelStatus{QCoreApplication::translate("EngineLines", row->source)});
    return Next::Continue;
}

Next readLatency(Reading &line)
{
    if (const std::optional<double> latencyMs = parseOutputLatencyMs(line.text)) {
        line.state.outputLatencyMs = *latencyMs;
        line.add(line_effect::LogLine{
            QCoreApplication::translate("EngineLines", "电平/频谱已按输出延时对齐：%1 ms")
                .arg(*latencyMs, 0, 'f', 1)});
    }
    return Next::Continue;
}

Next readVerify(Reading &line)
{
    constexpr auto prefix = "verify: "_L1;
    const auto rest = embeddedRest(line.text, prefix);
    if (!rest)
        return Next::Continue;
    line.add(line_effect::ReceiveVerify{prefix + rest->toString()});
    return Next::End;
}

Next readVolume(Reading &line)
{
    if (!line.context.hasBitsLed || !line.text.contains("volume:"_L1))
        return Next::Continue;
    if (const std::optional<int> deviceBits = deviceBitsOf(line.text))
        line.state.deviceBits = *deviceBits;
    if (std::optional<EffectiveBits> result = effectiveBitsOf(line.text, line.state.deviceBits)) {
        const QString toolTip = result->text + u'\n' + line.text;
        line.add(line_effect::ShowEffectiveBits{std::move(*result), toolTip});
    }
    return Next::Continue;
}

Next readChain(Reading &line)
{
    if (line.context.hasChainLed && line.text.contains("chain:"_L1))
        line.add(line_effect::ShowChainText{chainTextOf(line.text), line.text});
    return Next::Continue;
}

} // namespace line_step
