// What is kept of every line, whatever it says, and the lines that end early.
#include "engine/line_prefix.h"
#include "engine/line_steps.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace line_step {

namespace {

struct TelemetryKey
{
    QLatin1StringView prefix;
    QLatin1StringView key;
    bool provesSound = false;
};
constexpr std::array telemetryKeys = {
    TelemetryKey{"LVL "_L1, "LVL"_L1, true}, TelemetryKey{"PG "_L1, "PG"_L1},
    TelemetryKey{"SEG "_L1, "SEG"_L1},       TelemetryKey{"SRC "_L1, "SRC"_L1},
    TelemetryKey{"SCAN "_L1, "SCAN"_L1},     TelemetryKey{"SPC "_L1, "SPC"_L1, true},
    TelemetryKey{"WVF "_L1, "WVF"_L1},       TelemetryKey{"COVER"_L1, "COVER"_L1},
};

/// Shorter latencies are not worth a queue.
constexpr double leastDelayMs = 0.5;

constexpr std::array mailboxPrefixes = {"LVL "_L1, "SPC "_L1, "PG "_L1};

/// Enough to see that telemetry flows, without filling the file with it.
bool isSample(qint64 count)
{
    return count == 1 || count == 10 || count % 200 == 0;
}

} // namespace

bool beginsWithTelemetry(QStringView text)
{
    return std::ranges::any_of(mailboxPrefixes,
                               [&](QLatin1StringView prefix) { return text.startsWith(prefix); });
}

double displayDelayMs(const EngineLineState &state)
{
    return state.outputLatencyMs >= leastDelayMs ? state.outputLatencyMs : 0.;
}

Next copyToHost(Reading &line)
{
    if (line.context.hostCopyOpen)
        line.add(line_effect::WriteHostCopy{line.raw.endsWith(u'\n') ? line.raw : line.raw + u'\n'});
    return Next::Continue;
}

Next remember(Reading &line)
{
    if (!line.text.isEmpty() && !beginsWithTelemetry(line.text))
        line.state.lastEngineLine = line.text;
    return Next::Continue;
}

Next collectChain(Reading &line)
{
    if (collectChainLine(line.state.chain, line.text))
        line.add(line_effect::ShowChainBlock{});
    return Next::Continue;
}

Next storeLabel(Reading &line)
{
    if (storeChainLabel(line.state.chain, line.text))
        line.add(line_effect::RedrawChainPanel{});
    return Next::Continue;
}

Next countTelemetry(Reading &line)
{
    constexpr qsizetype sampleChars = 70;
    const QStringView bare = stripPlayerPrefix(line.text);
    const auto *const found = std::ranges::find_if(
        telemetryKeys, [&](const TelemetryKey &key) { return bare.startsWith(key.prefix); });
    if (found == telemetryKeys.end())
        return Next::Continue;
    if (found->provesSound)
        line.add(line_effect::StopNoAudioTimer{});
    const QString key = found->key;
    const qint64 count = ++line.state.telemetryCount[key];
    if (isSample(count))
        line.add(line_effect::LogFileOnly{
            u"遥测: %1 第 %2 条 —— %3"_s.arg(key, QString::number(count), line.text.left(sampleChars))});
    return Next::Continue;
}

Next readDecodeFilter(Reading &line)
{
    if (const auto rest = embeddedRest(line.text, "PDM2PCM filter "_L1)) {
        if (std::optional<DecodeFilterLine> filter = parseDecodeFilter(*rest))
            line.add(line_effect::ShowDecodeFilter{std::move(*filter)});
    }
    return Next::Continue;
}

Next endStderr(Reading &line)
{
    if (!line.isStderr)
        return Next::Continue;
    line.add(line_effect::LogLine{line.text, true});
    return Next::End;
}

Next readWarning(Reading &line)
{
    if (line.text.contains("WARN "_L1)) {
        const QString warning = u"⚠ "_s + line.text;
        line.add(line_effect::LogLine{warning, true});
        line.add(line_effect::ShowStatus{warning});
    }
    return Next::Continue;
}

Next askPanel(Reading &line)
{
    const bool taken = line.context.effectsPanelTakes && line.context.effectsPanelTakes(line.text);
    return taken ? Next::End : Next::Continue;
}

} // namespace line_step
