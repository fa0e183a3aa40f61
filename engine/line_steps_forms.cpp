// Forms that are a line of their own, and the text that is none of them.
#include "engine/line_prefix.h"
#include "engine/line_steps.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace line_step {

namespace {

bool containsAny(QStringView text, std::initializer_list<QLatin1StringView> patterns)
{
    return std::ranges::any_of(patterns, [&](QLatin1StringView pattern) { return text.contains(pattern); });
}

bool beginsWithAny(QStringView text, std::initializer_list<QLatin1StringView> prefixes)
{
    return std::ranges::any_of(prefixes, [&](QLatin1StringView prefix) { return text.startsWith(prefix); });
}

void announceFirstProgress(Reading &line, const ProgressLine &progress)
{
    if (std::exchange(line.state.firstPgSeen, true))
        return;
    const QString total = progress.totalSec > 0. ? QString::number(progress.totalSec, 'f', 1)
                                                 : QCoreApplication::translate("EngineLines", "未知");
    line.add(line_effect::LogLine{
        QCoreApplication::translate("EngineLines", "收到进度（PG）：已播放 %1 s / 共 %2 s")
            .arg(QString::number(progress.positionSec, 'f', 1), total)});
}

// The forms of a spectrum line: each gets the text from "SPC " on.

void noSpectrum(Reading &line, QStringView)
{
    // Without PCM there is nothing to draw in either view.
    line.add(line_effect::ClearSpectrum{});
    line.add(line_effect::ClearScope{});
    if (!line.context.hasEffectsPanel)
        return;
    line.add(line_effect::SetEffectsPath{false, !line.context.allToDsd});
    if (!line.context.allToDsd)
        return;
    const QString modulator = QCoreApplication::translate("EngineLines", "DSP 由调制器执行");
    line.add(line_effect::ShowPanelStatus{modulator});
    if (!std::exchange(line.state.modulatorAnnounced, true))
        line.add(line_effect::LogLine{modulator});
}

void pcmFlows(Reading &line)
{
    line.state.modulatorAnnounced = false;
    if (line.context.hasEffectsPanel)
        line.add(line_effect::SetEffectsPath{true, false});
}

void spectrumStatus(Reading &line, QStringView)
{
    pcmFlows(line);
}

void spectrumZones(Reading &line, QStringView form)
{
    line.add(line_effect::ShowSpectrumZones{parseSpectrumZones(form)});
}

void spectrumFrame(Reading &line, QStringView form)
{
    SpectrumFrame frame;
    if (!parseSpectrum(form, frame))
        return;
    pcmFlows(line);
    line.add(line_effect::ShowSpectrum{std::move(frame), displayDelayMs(line.state)});
}

struct SpectrumForm
{
    QLatin1StringView prefix;
    void (*read)(Reading &, QStringView);
};
/// The last one is any other line.
constexpr std::array spectrumForms = {
    SpectrumForm{"SPC none"_L1, noSpectrum},      SpectrumForm{"SPC cfg"_L1, spectrumStatus},
    SpectrumForm{"SPC write"_L1, spectrumStatus}, SpectrumForm{"SPC zones"_L1, spectrumZones},
    SpectrumForm{"SPC "_L1, spectrumFrame},
};

} // namespace

Next readScope(Reading &line)
{
    constexpr auto prefix = "WVF "_L1;
    const auto rest = embeddedRest(line.text, prefix);
    if (!rest)
        return Next::Continue;
    if (rest->startsWith("none"_L1)) {
        line.add(line_effect::ClearScope{});
        return Next::End;
    }
    WaveformFrame frame;
    if (beginsWithAny(*rest, {"cfg"_L1, "write"_L1}) ||
        !parseWaveform(QStringView(line.text).last(rest->size() + prefix.size()), frame))
        return Next::End;
    if (!std::exchange(line.state.firstScopeFrameSeen, true))
        line.add(
            line_effect::LogLine{QCoreApplication::translate("EngineLines", "示波器：已收到第一帧（%1 个桶）")
                                     .arg(frame.bucketCount)});
    // One channel draws the same trace twice.
    if (frame.channel2.first.empty())
        frame.channel2 = frame.channel1;
    line.add(line_effect::ShowScope{std::move(frame)});
    return Next::End;
}

Next readSpectrum(Reading &line)
{
    const qsizetype at = line.text.indexOf("SPC "_L1);
    if (at < 0)
        return Next::Continue;
    const QStringView form = QStringView(line.text).sliced(at);
    const auto *const found = std::ranges::find_if(
        spectrumForms, [&](const SpectrumForm &candidate) { return form.startsWith(candidate.prefix); });
    found->read(line, form);
    return Next::End;
}

Next readProgress(Reading &line)
{
    // The only form that is looked for behind the player's own prefix.
    const QStringView bare = stripPlayerPrefix(line.text);
    if (!bare.startsWith("PG "_L1))
        return Next::Continue;
    if (const std::optional<ProgressLine> progress = parseProgress(bare)) {
        announceFirstProgress(line, *progress);
        line.add(line_effect::ReceiveProgress{*progress});
    }
    return Next::End;
}

Next readSegment(Reading &line)
{
    if (!line.text.startsWith("SEG "_L1))
        return Next::Continue;
    if (const std::optional<int> number = parseSegment(line.text))
        line.add(line_effect::ChangeSegment{*number});
    return Next::End;
}

Next readDone(Reading &line)
{
    if (!line.text.startsWith("DONE "_L1))
        return Next::Continue;
    line.add(line_effect::FinishTrack{line.text.mid("DONE "_L1.size())});
    return Next::End;
}

Next readPercent(Reading &line)
{
    if (!line.text.startsWith("Progress:"_L1))
        return Next::Continue;
    if (const std::optional<double> percent = parseProgressPercent(line.text))
        line.add(line_effect::UpdatePercent{*percent});
    return Next::End;
}

Next readPlainText(Reading &line)
{
    const QStringView bare = stripPlayerPrefix(line.text);
    if (beginsWithTelemetry(bare))
        return Next::End;
    if (bare.contains("OPENED"_L1)) {
        line.add(line_effect::ForgetDeviceTrouble{});
    } else {
        if (containsAny(bare, {"0x8889000A"_L1, "cannot get exclusive access"_L1}))
            line.add(line_effect::NoteBusyDevice{});
        if (containsAny(bare, {"endpoint not found"_L1, "is not among the active render endpoints"_L1,
                               "device '"_L1}))
            line.add(line_effect::NoteMissingDevice{});
    }
    const bool failed = bare.startsWith("FAILED "_L1);
    line.add(line_effect::LogLine{line.text, failed});
    if (failed)
        line.add(line_effect::FailTrack{bare.toString()});
    return Next::End;
}

} // namespace line_step
