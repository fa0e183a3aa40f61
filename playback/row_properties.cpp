#include "playback/row_properties.h"

#include "playback/playlist_change.h"

#include <QCoreApplication>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("RowProperties", source);
}

QString kindOf(const PlaylistEntry &entry)
{
    if (entry.isStream())
        return text(QT_TRANSLATE_NOOP("RowProperties", "类型: 网络电台"));
    if (!entry.cuePath.isEmpty())
        return text(QT_TRANSLATE_NOOP("RowProperties", "类型: CUE 分轨, 第 %1 轨")).arg(entry.track);
    if (!entry.isoPath.isEmpty())
        return text(QT_TRANSLATE_NOOP("RowProperties", "类型: SACD 镜像, 第 %1 轨")).arg(entry.track);
    if (entry.track >= 1)
        return text(QT_TRANSLATE_NOOP("RowProperties", "类型: 容器里的第 %1 轨")).arg(entry.track);
    return text(QT_TRANSLATE_NOOP("RowProperties", "类型: 音频文件"));
}

QString seconds(double value)
{
    return QString::number(value);
}

} // namespace

QString rowProperties(const PlaylistEntry &entry, int row, int count)
{
    QStringList lines;
    lines += text(QT_TRANSLATE_NOOP("RowProperties", "显示: %1")).arg(entry.text);
    lines += text(QT_TRANSLATE_NOOP("RowProperties", "位置: 第 %1/%2 项"))
                 .arg(QString::number(row + 1), QString::number(count));
    lines += kindOf(entry);
    if (const QString tag = formatTag(entry.path); !tag.isEmpty())
        lines += text(QT_TRANSLATE_NOOP("RowProperties", "格式: %1")).arg(tag);
    lines += text(QT_TRANSLATE_NOOP("RowProperties", "文件: %1")).arg(entry.path);
    if (!entry.cuePath.isEmpty() && !entry.isStream())
        lines += text(QT_TRANSLATE_NOOP("RowProperties", "CUE 表: %1")).arg(entry.cuePath);
    if (entry.endSec > entry.startSec)
        lines +=
            text(QT_TRANSLATE_NOOP("RowProperties", "时间: %1 s → %2 s (长 %3 s)"))
                .arg(seconds(entry.startSec), seconds(entry.endSec), seconds(entry.endSec - entry.startSec));
    return lines.join(u'\n');
}

QString formatTag(QStringView path)
{
    constexpr qsizetype mostCharacters = 5;
    const QStringView name = fileNameOf(path);
    const qsizetype point = name.lastIndexOf(u'.');
    return point < 0 ? QString() : name.sliced(point + 1).toString().toUpper().left(mostCharacters);
}
