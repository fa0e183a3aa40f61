#include "playback/saved_rows.h"

#include <QFileInfo>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar separator(0x1f);
constexpr qsizetype leastFields = 7;
constexpr int timeDigits = 17;

double secondsOf(QStringView field)
{
    const double value = field.toDouble();
    return std::isfinite(value) ? value : 0.;
}

} // namespace

QString savedRow(const PlaylistEntry &entry)
{
    const QString track = QString::number(entry.track);
    const QString start = QString::number(entry.startSec, 'g', timeDigits);
    const QString end = QString::number(entry.endSec, 'g', timeDigits);
    QString saved;
    saved.reserve(entry.text.size() + entry.path.size() + entry.cuePath.size() + track.size() + start.size() +
                  end.size() + entry.isoPath.size() + leastFields);
    for (const QString *field : {&entry.text, &entry.path, &entry.cuePath, &track, &start, &end})
        saved.append(*field).append(separator);
    return saved.append(entry.isoPath);
}

QString savedFileRow(QStringView text, QStringView path)
{
    static const QString tail =
        separator + u""_s + separator + u'0' + separator + u'0' + separator + u'0' + separator;
    QString saved;
    saved.reserve(text.size() + path.size() + tail.size() + 1);
    return saved.append(text).append(separator).append(path).append(tail);
}

std::optional<PlaylistEntry> parseSavedRow(QStringView saved)
{
    const QList<QStringView> fields = saved.split(separator, Qt::KeepEmptyParts);
    if (fields.size() < leastFields || fields.at(1).isEmpty())
        return std::nullopt;
    PlaylistEntry entry;
    entry.path = fields.at(1).toString();
    entry.text = fields.at(0).isEmpty() ? QFileInfo(entry.path).fileName() : fields.at(0).toString();
    entry.cuePath = fields.at(2).toString();
    entry.track = fields.at(3).toInt();
    entry.startSec = secondsOf(fields.at(4));
    entry.endSec = secondsOf(fields.at(5));
    entry.isoPath = fields.at(6).toString();
    return entry;
}

int restoredCurrentRow(int stored, int count)
{
    return std::max(0, std::min(stored, count - 1));
}
