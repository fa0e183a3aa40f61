// The answer to a question on a track, which ends in a message box.
#include "engine/track_analysis.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr qsizetype longestText = 400;
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const TrackAnalysis analysis = parseTrackAnalysis(text);
    const TrackAnalysisReport report = analysisReport(0, text, QStringLiteral("a.flac"));
    if (report.logText.isEmpty() || report.boxText.isEmpty() == analysis.answered)
        __builtin_trap();
    if (report.logText.size() > longestText || report.boxText.size() > longestText)
        __builtin_trap();
    return 0;
}
