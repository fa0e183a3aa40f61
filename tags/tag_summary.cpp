#include "tags/tag_summary.h"

#include "tags/audio_file_info.h"

#include <QFileInfo>

namespace {

QString shown(const std::string &text)
{
    return QString::fromStdString(text).trimmed();
}

} // namespace

TagSummary TagSummaryCache::tagSummaryFor(const QString &path)
{
    const auto known = m_summaries.constFind(path);
    if (known != m_summaries.cend())
        return *known;
    TagSummary summary;
    if (!path.isEmpty()) {
        AudioFileInfo info;
        // Tags are worth showing even where the format's header was not understood.
        (void)readAudioFileInfo(info, path.toStdString());
        summary = {shown(info.title),    shown(info.artist), shown(info.album),
                   shown(info.composer), shown(info.work),   shown(info.movementName)};
        if (summary.artist.isEmpty())
            summary.artist = QFileInfo(path).absolutePath();
    }
    m_summaries.insert(path, summary);
    return summary;
}
