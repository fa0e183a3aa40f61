// What the engine says, step by step.
#include "ui/window/player_gui_window.h"

#include "engine/output_lines.h"
#include "playback/time_text.h"
#include "ui/display_panel.h"
#include "ui/progress_row.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype sampleLength = 70;
constexpr int percentPerStep = 10;

} // namespace

void PlayerGuiWindow::onEngineLine(const QString &line, bool isStderr)
{
    using Step = bool (PlayerGuiWindow::*)(const QString &);
    // In the order in which the forms are recognised; a step that returns true ends the line.
    static constexpr std::array steps = {
        &PlayerGuiWindow::warnLine,    &PlayerGuiWindow::scanLine,     &PlayerGuiWindow::sourceLine,
        &PlayerGuiWindow::latencyLine, &PlayerGuiWindow::progressLine, &PlayerGuiWindow::segmentLine,
        &PlayerGuiWindow::doneLine,    &PlayerGuiWindow::percentLine,  &PlayerGuiWindow::plainLine};

    const QString text = engine_line::cleaned(line);
    writeHostCopy(line);
    if (!text.isEmpty() && !engine_line::isMailboxLine(text))
        m_output.lastEngineLine = text;
    collectChain(text);
    countTelemetry(text);
    if (isStderr) {
        if (!text.isEmpty())
            logLine(text, true);
        return;
    }
    for (const Step step : steps) {
        if ((this->*step)(text))
            return;
    }
}

void PlayerGuiWindow::writeHostCopy(const QString &line)
{
    if (!m_link.hostCopy)
        return;
    QByteArray bytes = line.toUtf8();
    if (!bytes.endsWith('\n'))
        bytes.append('\n');
    m_link.hostCopy->write(bytes);
    m_link.hostCopy->flush();
    ++m_link.hostLineCount;
}

bool PlayerGuiWindow::collectChain(const QString &text)
{
    if (text.contains("SIGNAL CHAIN BEGIN"_L1)) {
        m_output.chainBlock.clear();
        m_output.collectingChain = true;
    }
    if (m_output.collectingChain)
        m_output.chainBlock.append(text);
    if (text.contains("SIGNAL CHAIN END"_L1))
        m_output.collectingChain = false;
    return false;
}

bool PlayerGuiWindow::countTelemetry(const QString &text)
{
    const QString key = engine_line::telemetryKey(text);
    if (key.isEmpty())
        return false;
    // Levels and spectra are computed from samples that flow: the track is heard.
    if ((key == "LVL"_L1 || key == "SPC"_L1) && m_link.noAudioTimer)
        m_link.noAudioTimer->stop();
    const qint64 count = ++m_output.telemetryCount[key];
    if (engine_line::isTelemetrySample(count))
        logFileOnly(u"遥测: %1 第 %2 条 —— %3"_s.arg(key).arg(count).arg(text.left(sampleLength)));
    return false;
}

bool PlayerGuiWindow::warnLine(const QString &text)
{
    if (text.contains("WARN "_L1)) {
        logLine(u"⚠ "_s + text, true);
        showMessage(u"⚠ "_s + text);
    }
    return false;
}

bool PlayerGuiWindow::scanLine(const QString &text)
{
    if (!text.startsWith("SCAN "_L1))
        return false;
    const std::optional<engine_line::Scan> scan = engine_line::parseScan(text);
    if (!scan)
        return true;
    const double percent = std::clamp(scan->percent, 0., 100.);
    m_ui.progress->showPercent(percent);
    QString shown = tr("正在扫描（解码）源… %1%").arg(percent, 0, 'f', 0);
    if (scan->totalSec > 0.5)
        shown += u"  %1 / %2"_s.arg(minutesText(scan->doneSec), minutesText(scan->totalSec));
    m_ui.progress->showText(shown);
    showMessage(shown);
    const int step = static_cast<int>(percent) / percentPerStep;
    if (step != std::exchange(m_output.lastScanStep, step))
        logLine(shown);
    return true;
}

bool PlayerGuiWindow::sourceLine(const QString &text)
{
    const std::optional<QString> rest = engine_line::embedded(text, "SRC "_L1);
    const auto source = rest ? engine_line::parseSource(*rest) : std::nullopt;
    if (!source)
        return false;
    m_output.sourceInfo = *source;
    const QString format = engine_line::sourceFormatText(*source);
    QString info = tr("音频: %1 · %2 位 · %3 声道 · %4 秒")
                       .arg(format)
                       .arg(source->depthBits.value_or(0))
                       .arg(source->channels)
                       .arg(source->durationSec, 0, 'f', 1);
    if (source->isDsd())
        info += source->dst ? tr(" · DST: 是") : tr(" · DST: 否");
    m_ui.sourceInfo->setText(info);
    m_ui.display->showFormat(format);
    return false;
}

bool PlayerGuiWindow::latencyLine(const QString &text)
{
    if (const std::optional<double> latencyMs = engine_line::parseOutputLatencyMs(text)) {
        m_output.outputLatencyMs = *latencyMs;
        logLine(tr("电平/频谱已按输出延迟对齐: %1 ms").arg(*latencyMs, 0, 'f', 1));
    }
    return false;
}

bool PlayerGuiWindow::progressLine(const QString &text)
{
    const QString bare = engine_line::stripPlayerPrefix(text);
    if (!bare.startsWith("PG "_L1))
        return false;
    if (const std::optional<engine_line::Progress> progress = engine_line::parseProgress(bare))
        onProgress(progress->percent, progress->positionSec, progress->totalSec);
    return true;
}

bool PlayerGuiWindow::segmentLine(const QString &text)
{
    if (!text.startsWith("SEG "_L1))
        return false;
    if (const std::optional<int> number = engine_line::parseSegment(text))
        segmentChanged(*number);
    return true;
}

bool PlayerGuiWindow::doneLine(const QString &text)
{
    if (!text.startsWith("DONE "_L1))
        return false;
    onDoneLine();
    return true;
}

bool PlayerGuiWindow::percentLine(const QString &text)
{
    const std::optional<double> percent = engine_line::parsePercent(text);
    if (percent)
        updateProgress(*percent, -1., 0.);
    return percent.has_value();
}

bool PlayerGuiWindow::plainLine(const QString &text)
{
    const QString bare = engine_line::stripPlayerPrefix(text);
    if (text.isEmpty() || engine_line::isMailboxLine(bare) || bare.startsWith("WVF "_L1))
        return true;
    noteDeviceFact(text);
    logLine(text);
    return true;
}
