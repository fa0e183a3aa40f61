#include "playback/playlist_change.h"

#include <QCoreApplication>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("PlaylistChange", source);
}

bool sameRow(const PlaylistEntry &a, const PlaylistEntry &b)
{
    return a.text == b.text && a.path == b.path && a.cuePath == b.cuePath && a.isoPath == b.isoPath &&
           a.track == b.track && a.startSec == b.startSec && a.endSec == b.endSec;
}

} // namespace

bool operator==(const PlaylistChange &a, const PlaylistChange &b)
{
    return a.kind == b.kind && a.runs == b.runs &&
           std::equal(a.entries.begin(), a.entries.end(), b.entries.begin(), b.entries.end(), sameRow);
}

PlaylistChange inverseOf(const PlaylistChange &change)
{
    switch (change.kind) {
    case PlaylistChange::Kind::Insert:
        return {PlaylistChange::Kind::Remove, change.runs, change.entries, 0};
    case PlaylistChange::Kind::Remove:
        return {PlaylistChange::Kind::Insert, change.runs, change.entries, 0};
    case PlaylistChange::Kind::Reorder:
        break;
    }
    return {PlaylistChange::Kind::Reorder, inverseOrder(change.runs), {}, 0};
}

int rowAfterChange(const PlaylistChange &change, int row)
{
    switch (change.kind) {
    case PlaylistChange::Kind::Insert:
        return rowAfterInsert(change.runs, row);
    case PlaylistChange::Kind::Remove:
        return rowAfterRemove(change.runs, row);
    case PlaylistChange::Kind::Reorder:
        break;
    }
    return rowAfterOrder(change.runs, row);
}

bool isConsistent(const PlaylistChange &change)
{
    if (change.runs.isEmpty())
        return false;
    if (change.kind == PlaylistChange::Kind::Reorder)
        return change.entries.isEmpty() && isRowOrder(change.runs, rowsIn(change.runs));
    const RowRun &last = change.runs.last();
    return isRowSet(change.runs, last.first + last.count) && rowsIn(change.runs) == change.entries.size();
}

qint64 costOf(const PlaylistChange &change)
{
    constexpr qint64 perEntry = 16;
    qint64 characters = 0;
    for (const PlaylistEntry &entry : change.entries)
        characters += entry.text.size() + entry.path.size() + entry.cuePath.size() + entry.isoPath.size();
    return characters * static_cast<qint64>(sizeof(QChar)) + change.entries.size() * perEntry +
           change.runs.size() * static_cast<qint64>(sizeof(RowRun));
}

QStringView fileNameOf(QStringView path)
{
    return path.sliced(path.lastIndexOf(u'/') + 1);
}

PlaylistEntry slimEntry(PlaylistEntry entry)
{
    if (entry.text == fileNameOf(entry.path))
        entry.text = QString();
    return entry;
}

QString undoText(const PlaylistChange &undone, int count)
{
    const QString rows = QString::number(rowsIn(undone.runs));
    switch (undone.kind) {
    case PlaylistChange::Kind::Insert:
        return text(QT_TRANSLATE_NOOP("PlaylistChange", "已撤销添加的 %1 首 (列表共 %2 首)"))
            .arg(rows, QString::number(count));
    case PlaylistChange::Kind::Remove:
        return text(QT_TRANSLATE_NOOP("PlaylistChange", "已恢复移除的 %1 首 (列表共 %2 首)"))
            .arg(rows, QString::number(count));
    case PlaylistChange::Kind::Reorder:
        break;
    }
    return text(QT_TRANSLATE_NOOP("PlaylistChange", "已恢复原来的播放顺序"));
}

QString redoText(const PlaylistChange &redone, int count)
{
    const QString rows = QString::number(rowsIn(redone.runs));
    switch (redone.kind) {
    case PlaylistChange::Kind::Insert:
        return text(QT_TRANSLATE_NOOP("PlaylistChange", "已重新添加 %1 首 (列表共 %2 首)"))
            .arg(rows, QString::number(count));
    case PlaylistChange::Kind::Remove:
        return text(QT_TRANSLATE_NOOP("PlaylistChange", "已重新移除 %1 首 (列表共 %2 首)"))
            .arg(rows, QString::number(count));
    case PlaylistChange::Kind::Reorder:
        break;
    }
    return text(QT_TRANSLATE_NOOP("PlaylistChange", "已重新调整播放顺序"));
}
