#include "playback/container_listing.h"

#include "engine/probe_text.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

using Fields = QList<QStringView>;

constexpr qsizetype numberField = 1;
constexpr qsizetype startField = 2;
constexpr qsizetype endField = 3;
constexpr qsizetype titleField = 4;
constexpr qsizetype performerField = 5;
constexpr qsizetype fileField = 6;

QString text(const char *source)
{
    return QCoreApplication::translate("ContainerListing", source);
}

QString trimmedField(const Fields &fields, qsizetype index)
{
    return fields.value(index).trimmed().toString();
}

std::optional<double> secondsOf(QStringView field)
{
    bool ok = false;
    const double value = field.toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

/// Number and times of a track; none when they are no numbers.
std::optional<PlaylistEntry> trackOf(const Fields &fields)
{
    bool ok = false;
    PlaylistEntry entry;
    entry.track = fields.at(numberField).toInt(&ok);
    const std::optional<double> start = secondsOf(fields.at(startField));
    const std::optional<double> end = secondsOf(fields.at(endField));
    if (!ok || entry.track < 1 || !start || !end)
        return std::nullopt;
    entry.startSec = *start;
    entry.endSec = *end;
    return entry;
}

QString rowText(int track, const QString &title, const QString &file)
{
    // Title and file may hold a percent sign and a digit, so they are not arguments one after the other.
    return u"%1. %2"_s.arg(QString::number(track).rightJustified(2, u'0'),
                           title.isEmpty() ? QFileInfo(file).fileName() : title);
}

/// Calls read with the fields of each line that begins with a keyword.
template<class Read>
void eachLine(QStringView output, const Read &read)
{
    for (const QStringView line : output.tokenize(u'\n', Qt::SkipEmptyParts))
        read(line.split(u'\t'));
}

} // namespace

bool isCuePath(const QString &path)
{
    return path.endsWith(".cue"_L1, Qt::CaseInsensitive);
}

bool isContainerPath(const QString &path)
{
    return isCuePath(path) || path.endsWith(".iso"_L1, Qt::CaseInsensitive);
}

QString listingFlag(const QString &path)
{
    return isCuePath(path) ? u"-cue-list"_s : u"-iso-list"_s;
}

ContainerListing parseCueListing(QStringView output, const QString &cuePath)
{
    constexpr qsizetype leastFields = 7;
    ContainerListing listing;
    eachLine(output, [&](const Fields &fields) {
        if (fields.first() == "CUE"_L1 && fields.size() >= 2) {
            listing.logLines.append(
                u"CUE: %1 — %2"_s.arg(fields.at(1).toString(), fields.value(2).toString()));
            return;
        }
        if (fields.first() != "TRACK"_L1 || fields.size() < leastFields ||
            listing.rows.size() >= mostContainerTracks)
            return;
        std::optional<PlaylistEntry> entry = trackOf(fields);
        if (!entry)
            return;
        entry->path = trimmedField(fields, fileField);
        entry->cuePath = cuePath;
        entry->text = rowText(entry->track, trimmedField(fields, titleField), entry->path);
        if (const QString performer = trimmedField(fields, performerField); !performer.isEmpty())
            entry->text += u" — "_s + performer;
        listing.rows.append(*entry);
    });
    return listing;
}

ContainerListing parseIsoListing(QStringView output, const QString &isoPath)
{
    constexpr qsizetype leastFields = 4;
    ContainerListing listing;
    eachLine(output, [&](const Fields &fields) {
        if (fields.first() == "ISO"_L1 && fields.size() >= 3) {
            listing.logLines.append(text(QT_TRANSLATE_NOOP("ContainerListing", "SACD ISO: %1 — %2 首"))
                                        .arg(QFileInfo(isoPath).fileName(), fields.at(2).toString()));
            return;
        }
        if (fields.first() != "TRACK"_L1 || fields.size() < leastFields ||
            listing.rows.size() >= mostContainerTracks)
            return;
        std::optional<PlaylistEntry> entry = trackOf(fields);
        if (!entry)
            return;
        entry->path = isoPath;
        entry->isoPath = isoPath;
        entry->text = rowText(entry->track, trimmedField(fields, titleField), isoPath);
        listing.rows.append(*entry);
    });
    return listing;
}

QString containerToolTip(const PlaylistEntry &entry)
{
    return u"%1\n%2 s → %3 s"_s.arg(entry.path, QString::number(entry.startSec),
                                    QString::number(entry.endSec));
}

QString listingComplaint(const QString &path, int rc, const QString &output)
{
    const bool cue = isCuePath(path);
    if (rc < 0) {
        return (cue ? text(QT_TRANSLATE_NOOP("ContainerListing", "CUE 解析失败: %1 (rc=%2)"))
                    : text(QT_TRANSLATE_NOOP("ContainerListing", "ISO 解析失败: %1 (rc=%2)")))
            .arg(path, QString::number(rc));
    }
    return (cue ? text(QT_TRANSLATE_NOOP("ContainerListing",
                                         "cue 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)"))
                : text(QT_TRANSLATE_NOOP("ContainerListing",
                                         "ISO 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)")))
        .arg(path, QString::number(rc), QString::number(output.count(u'\n')), shortProbeText(output));
}
