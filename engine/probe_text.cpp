#include "engine/probe_text.h"

#include <QCoreApplication>
#include <QStringList>

using namespace Qt::StringLiterals;

QString shortProbeText(const QString &output)
{
    constexpr qsizetype mostChars = 200;
    // Cut first, so that a flood is not split into its lines.
    const QString head = output.trimmed().left(mostChars);
    if (head.isEmpty())
        return QCoreApplication::translate("EngineProbe", "(完全没有输出)");
    QStringList lines;
    for (const QString &line : head.split(u'\n', Qt::SkipEmptyParts))
        lines.append(line.trimmed());
    return lines.join(u" | "_s);
}
