#include "playback/ab_loop.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

QString translated(const char *source)
{
    return QCoreApplication::translate("AbLoop", source);
}

QString secondsText(double sec)
{
    return QString::number(sec, 'f', 3);
}

} // namespace

QString abLoopLine(const AbLoopState &loop)
{
    return u"ab %1 %2"_s.arg(secondsText(loop.pointA), secondsText(loop.pointB));
}

QString abPointText(const QString &name, double positionSec)
{
    return translated(QT_TRANSLATE_NOOP("AbLoop", "A/B 循环: %1 点 = %2s"))
        .arg(name, secondsText(positionSec));
}

QString abRefusedText(const AbLoopState &loop)
{
    return translated(QT_TRANSLATE_NOOP("AbLoop", "A/B 循环: B 点必须在 A 点之后（A=%1s, B=%2s）"))
        .arg(secondsText(loop.pointA), secondsText(loop.pointB));
}

QString abMarkedText()
{
    return translated(QT_TRANSLATE_NOOP("AbLoop", "A/B 循环: 已标记，开始播放时生效（单曲循环）"));
}

QString abStartedText(const AbLoopState &loop)
{
    return translated(
               QT_TRANSLATE_NOOP("AbLoop", "A/B 循环: %1 → %2 已开始（单曲循环；清除后恢复原来的播放顺序）"))
        .arg(secondsText(loop.pointA) + u's', secondsText(loop.pointB) + u's');
}

QString abClearedText(const QString &restoredOrder)
{
    if (restoredOrder.isEmpty())
        return translated(QT_TRANSLATE_NOOP("AbLoop", "A/B 循环: 已清除"));
    return translated(QT_TRANSLATE_NOOP("AbLoop", "A/B 循环: 已清除，播放顺序恢复为 %1")).arg(restoredOrder);
}

QString abDiscardedText()
{
    return translated(QT_TRANSLATE_NOOP("AbLoop", "A/B 循环: 换曲了，为上一首设的 A/B 点已作废"));
}
