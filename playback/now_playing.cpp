#include "playback/now_playing.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestFormat = 5;

NowPlayingLabels idleLabels()
{
    NowPlayingLabels labels;
    labels.track = u"TRACK --"_s;
    labels.format = u"AUDIO"_s;
    labels.title = u"NO DISC"_s;
    labels.artistLine = QCoreApplication::translate("NowPlaying", "选择曲目或导入音频");
    return labels;
}

/// A label has one line, whatever a tag holds: several values are parted by commas in place of their NUL, and
/// line ends and their like become blanks.
QString oneLine(QString text)
{
    text.replace(QChar(u'\0'), u", "_s);
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
            character == QChar::ParagraphSeparator)
            character = u' ';
    }
    return text;
}

} // namespace

QString joinedByPoint(const QString &first, const QString &second)
{
    if (first.isEmpty() || second.isEmpty())
        return first + second;
    return first + u" · "_s + second;
}

NowPlayingLabels nowPlayingLabels(const NowPlayingFacts &facts)
{
    if (facts.row < 0)
        return idleLabels();
    const TagSummary &tags = facts.summary;
    NowPlayingLabels labels;
    labels.track = u"TRACK %1"_s.arg(facts.row + 1, 2, 10, QChar(u'0'));
    if (facts.disc >= 1)
        labels.disc = u"DISC %1"_s.arg(facts.disc);
    labels.format = QFileInfo(facts.entry.path).suffix().toUpper().left(longestFormat);
    labels.title = oneLine(tags.title.isEmpty() ? facts.entry.text : tags.title);
    labels.artistLine = oneLine(joinedByPoint(tags.composer, tags.artist));
    labels.albumLine = oneLine(tags.work.isEmpty() ? tags.album : joinedByPoint(tags.work, tags.movement));
    labels.playCount = facts.playCount ? QString::number(*facts.playCount) : u"—"_s;
    return labels;
}
