#include "engine/track_analysis.h"

#include "engine/line_words.h"
#include "engine/player_session.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostValueChars = 40;
constexpr qsizetype mostComplaintChars = 200;

QString text(const char *source)
{
    return QCoreApplication::translate("TrackAnalysis", source);
}

std::optional<QString> valueOf(QStringView value)
{
    const QStringView trimmed = value.trimmed();
    if (trimmed.isEmpty() || trimmed == "none"_L1)
        return std::nullopt;
    return trimmed.left(mostValueChars).toString();
}

/// A tempo is a number above 0, whatever else the line says.
std::optional<QString> tempoOf(QStringView value)
{
    const LineWords words = wordsOf(value, 1);
    const std::optional<double> bpm = words.isEmpty() ? std::nullopt : finiteNumber(words[0]);
    return bpm && *bpm > 0. ? valueOf(words[0]) : std::nullopt;
}

QStringView lastLineOf(QStringView output)
{
    const QStringView trimmed = output.trimmed();
    return trimmed.sliced(trimmed.lastIndexOf(u'\n') + 1).trimmed();
}

QString boxTextOf(const TrackAnalysis &analysis)
{
    const QString unknown = text(QT_TRANSLATE_NOOP("TrackAnalysis", "判不出来"));
    return text(QT_TRANSLATE_NOOP("TrackAnalysis", "BPM: %1\n调性: %2"))
        .arg(analysis.bpm.value_or(unknown), analysis.key.value_or(unknown));
}

QString logTextOf(const TrackAnalysis &analysis)
{
    if (analysis.bpm && analysis.key)
        return text(QT_TRANSLATE_NOOP("TrackAnalysis", "曲目分析: BPM %1, 调性 %2"))
            .arg(*analysis.bpm, *analysis.key);
    if (analysis.bpm)
        return text(QT_TRANSLATE_NOOP("TrackAnalysis", "曲目分析: BPM %1 (调性判不出来, 不硬给)"))
            .arg(*analysis.bpm);
    if (analysis.key)
        return text(QT_TRANSLATE_NOOP("TrackAnalysis", "曲目分析: 调性 %1 (BPM 判不出来, 不硬给)"))
            .arg(*analysis.key);
    return text(QT_TRANSLATE_NOOP("TrackAnalysis", "曲目分析: BPM 和调性都判不出来, 不硬给"));
}

/// The engine could not be asked at all.
bool isUnavailable(int rc)
{
    return rc == session_code::refused || rc == session_code::couldNotStart;
}

} // namespace

TrackAnalysis parseTrackAnalysis(QStringView output)
{
    constexpr auto bpmPrefix = "ANALYZE bpm="_L1;
    constexpr auto keyPrefix = "ANALYZE key="_L1;
    TrackAnalysis analysis;
    for (const QStringView untrimmed : output.tokenize(u'\n')) {
        const QStringView line = untrimmed.trimmed();
        if (!line.startsWith("ANALYZE"_L1))
            continue;
        analysis.answered = true;
        if (!analysis.bpm && line.startsWith(bpmPrefix))
            analysis.bpm = tempoOf(line.sliced(bpmPrefix.size()));
        else if (!analysis.key && line.startsWith(keyPrefix))
            analysis.key = valueOf(line.sliced(keyPrefix.size()));
    }
    return analysis;
}

QString analysisRefusal(bool rowSelected, bool sessionRunning)
{
    if (!rowSelected)
        return text(QT_TRANSLATE_NOOP("TrackAnalysis", "先选一首再分析"));
    if (sessionRunning)
        return text(QT_TRANSLATE_NOOP("TrackAnalysis", "播放中不能分析, 先按停止再来"));
    return {};
}

TrackAnalysisReport analysisReport(int rc, const QString &output, const QString &file)
{
    TrackAnalysisReport report;
    report.boxTitle = text(QT_TRANSLATE_NOOP("TrackAnalysis", "曲目分析"));
    const TrackAnalysis analysis = parseTrackAnalysis(output);
    if (analysis.answered) {
        report.boxText = boxTextOf(analysis);
        report.logText = logTextOf(analysis);
        return report;
    }
    report.isError = true;
    if (isUnavailable(rc)) {
        report.logText = text(QT_TRANSLATE_NOOP("TrackAnalysis", "分析起不来(引擎库不可用, rc=%1)")).arg(rc);
        return report;
    }
    const QString complaint = lastLineOf(output).left(mostComplaintChars).toString();
    report.logText = text(QT_TRANSLATE_NOOP("TrackAnalysis", "分析没有结果: %1"))
                         .arg(complaint.isEmpty() ? file : complaint);
    return report;
}
